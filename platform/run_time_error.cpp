#include "platform/run_time_error.h"

#include <array>
#include <cstddef>
#include <limits>
#include <new>
#include <stdexcept>

namespace korvale {
namespace {

struct Description {
  std::int16_t number;
  std::string_view text;
};

constexpr std::array kDescriptions = {
    Description{RunTimeError::kInvalidCall, "Invalid procedure call or argument"},
    Description{RunTimeError::kOverflow, "Overflow"},
    Description{RunTimeError::kOutOfMemory, "Out of memory"},
    Description{RunTimeError::kSubscriptOutOfRange, "Subscript out of range"},
    Description{RunTimeError::kInternalError, "Internal error"},
    Description{RunTimeError::kPermissionDenied, "Permission denied"},
    Description{RunTimeError::kPathFileAccess, "Path/File access error"},
    Description{RunTimeError::kObjectNotSet, "Object variable or With block variable not set"},
    Description{RunTimeError::kNoSuchControlArrayElement,
                "Control array element '|' doesn't exist"},
    Description{RunTimeError::kObjectAlreadyLoaded, "Object already loaded"},
    Description{RunTimeError::kCannotUnloadDesignControl,
                "Can't unload controls created at design time"},
    Description{RunTimeError::kInvalidPropertyValue, "Invalid property value"},
};

std::string DescriptionWith(std::int16_t number, std::string_view argument) {
  std::string text = RunTimeErrorDescription(number);
  const std::size_t mark = text.find('|');
  if (mark != std::string::npos) text.replace(mark, 1, argument);
  return text;
}

}  // namespace

RunTimeError::RunTimeError(std::int16_t number, std::string_view argument)
    : std::runtime_error(DescriptionWith(number, argument)), number_(number) {}

std::string RunTimeErrorDescription(std::int16_t number) {
  for (const Description& description : kDescriptions) {
    if (description.number == number) return std::string(description.text);
  }
  return "Application-defined or object-defined error";
}

std::int16_t CurrentErrorNumber() {
  try {
    throw;
  } catch (const RunTimeError& error) {
    return error.Number();
  } catch (const std::out_of_range&) {
    return RunTimeError::kSubscriptOutOfRange;
  } catch (const std::bad_alloc&) {
    return RunTimeError::kOutOfMemory;
  } catch (...) {
    return RunTimeError::kInternalError;
  }
}

std::int16_t ToInt16(std::int32_t value) {
  using Limits = std::numeric_limits<std::int16_t>;
  if (value < Limits::min() || value > Limits::max()) throw RunTimeError(RunTimeError::kOverflow);
  return static_cast<std::int16_t>(value);
}

std::int16_t AddInt16(std::int16_t left, std::int16_t right) { return ToInt16(left + right); }

}  // namespace korvale
