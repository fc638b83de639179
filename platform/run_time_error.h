#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace korvale {

/// An unexpected error with the number and the description that the error reporters show.
class RunTimeError : public std::runtime_error {
 public:
  static constexpr std::int16_t kInvalidCall = 5;
  static constexpr std::int16_t kOverflow = 6;
  static constexpr std::int16_t kOutOfMemory = 7;
  static constexpr std::int16_t kSubscriptOutOfRange = 9;
  static constexpr std::int16_t kInternalError = 51;
  static constexpr std::int16_t kPermissionDenied = 70;
  static constexpr std::int16_t kPathFileAccess = 75;
  static constexpr std::int16_t kObjectNotSet = 91;
  static constexpr std::int16_t kNoSuchControlArrayElement = 340;
  static constexpr std::int16_t kObjectAlreadyLoaded = 360;
  static constexpr std::int16_t kCannotUnloadDesignControl = 362;
  static constexpr std::int16_t kInvalidPropertyValue = 380;

  /// `argument` takes the place of "|" in the description.
  explicit RunTimeError(std::int16_t number, std::string_view argument = "");

  std::int16_t Number() const { return number_; }

 private:
  std::int16_t number_;
};

/// The description of an error number, "Application-defined or object-defined error" for a number
/// that has none.
std::string RunTimeErrorDescription(std::int16_t number);

/// The number of the exception being handled: 9 for std::out_of_range, 7 for std::bad_alloc, 51 for
/// one without a number of its own. Only inside a catch block.
std::int16_t CurrentErrorNumber();

/// The value in 16 bits; throws RunTimeError 6 (Overflow) when it does not fit.
std::int16_t ToInt16(std::int32_t value);

/// The sum in 16 bits; throws RunTimeError 6 (Overflow) when it does not fit.
std::int16_t AddInt16(std::int16_t left, std::int16_t right);

}  // namespace korvale
