#include "app/core/error_reports.h"

#include <exception>
#include <utility>

#include "app/core/identity.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {
namespace {

std::string PlaceText(ErrorPlace place) { return DecimalText(static_cast<std::int16_t>(place)); }

std::string RunTimeErrorText(std::int16_t number) {
  return "VB ERROR " + DecimalText(number) + " - " + RunTimeErrorDescription(number);
}

std::string JoinSentences(const std::string& first, const std::string& second) {
  return first + (first.empty() || second.empty() ? "" : "  ") + second;
}

// For the last steps of a program that ends no matter how they turn out.
void RunAndForgetErrors(const std::function<void()>& step) {
  try {
    step();
  } catch (...) {
    return;
  }
}

void Show(MessageBoxes& messages, const std::string& text) {
  messages.ShowMessageBox(text, win32::kMbOk | win32::kMbSetForeground,
                          std::string(kProductName) + " - ERROR");
}

}  // namespace

std::string TellAndRecord(MessageBoxes& messages, ErrorLog& log, ErrorPlace intErrorNumber,
                          std::int16_t intVB_ErrNumber, const FatalErrorTexts& texts) {
  const std::string runTimeError = intVB_ErrNumber != 0 ? RunTimeErrorText(intVB_ErrNumber) : "";
  const std::string place = PlaceText(intErrorNumber);
  std::string folder = log.ProgramFolder();
  std::string where;
  RunAndForgetErrors([&] {
    folder = log.Folder();
    where = log.OtherFolderText(folder);
  });
  RunAndForgetErrors([&] {
    Show(messages, runTimeError + "\r\rKorvale Error #" + place + "\r" +
                       JoinSentences(texts.strUserMessage, where));
  });
  const std::string problem = runTimeError + " -- " + texts.strDescForErrorLog;
  RunAndForgetErrors(
      [&] { folder = log.Append(folder, place, problem, texts.strLocalsForErrorLog); });
  return folder;
}

ErrorReports::ErrorReports(MessageBoxes& messages, ErrorLog& log, std::function<void()> shutDown)
    : messages_(&messages), log_(&log), shutDown_(std::move(shutDown)) {}

void ErrorReports::udmNonFatalError(ErrorPlace intErrorNumber, std::int16_t intVB_ErrNumber) {
  Show(*messages_,
       RunTimeErrorText(intVB_ErrNumber) + "\r\rKorvale Error #" + PlaceText(intErrorNumber));
}

void ErrorReports::udmFatalError(ErrorPlace intErrorNumber, std::int16_t intVB_ErrNumber,
                                 const FatalErrorTexts& texts) {
  TellAndRecord(*messages_, *log_, intErrorNumber, intVB_ErrNumber, texts);
  RunAndForgetErrors(shutDown_);
  throw ProgramEnded();
}

std::string DescribeCaught() {
  try {
    throw;
  } catch (const ProgramEnded&) {
    throw;
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
    return "";
  }
}

}  // namespace korvale
