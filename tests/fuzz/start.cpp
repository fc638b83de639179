#include <algorithm>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/fuzz/fuzz.h"
#include "tests/program/korvale_world.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr const char* kCommandLineTip = "Korvale does not accept command line arguments.";

/// A folder that Windows can have: no such character in a name, no empty name.
std::string FolderFrom(const std::string& line) {
  std::string folder = "C:";
  for (const char each : "\\" + line) {
    const bool control = each >= 0 && each < ' ';
    if (each == '\\' && folder.ends_with('\\')) continue;
    folder +=
        control || std::string_view("<>:\"/|?*").find(each) != std::string_view::npos ? '_' : each;
  }
  if (folder.ends_with('\\')) folder.pop_back();
  return folder;
}

class Starts : public KorvaleWorld {
 public:
  Starts(std::string commandLine, const std::string& folder)
      : commandLine_(std::move(commandLine)), folder_(folder) {}

  /// Another program has left this in the register.
  void Register(const std::string& entry) {
    const std::size_t equals = entry.find('=');
    if (equals == std::string::npos) return;
    store.SaveSetting("Korvale Installations", "0", entry.substr(0, equals),
                      entry.substr(equals + 1));
  }
  void Check() {
    KorvaleCopy& first = NewCopyHere();
    // Nothing but its own program is on the disk.
    EXPECT_TRUE(first.Start());
    if (HasFailure()) return;
    EXPECT_EQ(first.Form().Caption(), "Korvale - " + folder_.substr(folder_.rfind('\\') + 1));
    const bool blank = commandLine_.find_first_not_of(" \t\r\n\v\f") == std::string::npos;
    EXPECT_EQ(std::ranges::count(tips_, kCommandLineTip), blank ? 0 : 1);
    const std::size_t held = hotKeys.Registered().size();
    const std::size_t boxes = first.host.Messages().size();
    CheckSecond(first.Form().Caption());
    EXPECT_EQ(hotKeys.Registered().size(), held);
    EXPECT_EQ(first.host.Messages().size(), boxes);
    EXPECT_TRUE(first.Form().IsLoaded());
    EXPECT_EQ(desktop.GetForegroundWindow(), first.Handle());
    UseClockOf(first);
    first.Exit();
    EXPECT_FALSE(first.Form().IsLoaded());
  }

 private:
  void TestBody() override {}

  KorvaleCopy& NewCopyHere() {
    KorvaleCopy& copy = NewCopy();
    copy.system.files.clear();
    copy.system.executablePath = folder_ + "\\Korvale.exe";
    copy.system.files.insert(copy.system.executablePath);
    copy.system.commandLine = commandLine_;
    copy.host.SetIdle([this, &copy] { return CloseTip(copy); });
    copy.host.AnswerOtherBoxes([](const ShownMessage& box) {
      EXPECT_EQ(box.text.find("VB ERROR"), std::string::npos) << box.text;
      return (box.style & win32::kMbYesNo) != 0 ? win32::kIdNo : win32::kIdOk;
    });
    return copy;
  }
  void UseClockOf(KorvaleCopy& copy) {
    clock.SetTickHandler([&copy](WindowHandle hwnd, int id) { copy.host.DeliverTimer(hwnd, id); });
  }
  bool CloseTip(KorvaleCopy& copy) {
    class Form* const form = static_cast<class Form*>(copy.Form().Collection().TopModal());
    if (form == nullptr) return false;
    tips_.push_back(form->Find("lblTip").Text());
    copy.user.PressCloseBox(form->Handle());
    return true;
  }
  /// The same installation is started once more.
  void CheckSecond(const std::string& caption) {
    KorvaleCopy& second = NewCopyHere();
    EXPECT_FALSE(second.Start());
    ASSERT_EQ(second.host.Messages().size(), 1U);
    EXPECT_EQ(second.host.Messages().front().text, "'" + caption + "' is already open.");
    EndCopy(second);
  }

  std::string commandLine_;
  std::string folder_;
  std::vector<std::string> tips_;
};

}  // namespace

/// Lines: the command line, the program's folder, and the register as "name=folder".
void Fuzz(std::string_view input) {
  const std::string commandLine = TakeLine(input);
  Starts starts(commandLine, FolderFrom(TakeLine(input)));
  while (!input.empty()) starts.Register(TakeLine(input));
  starts.Check();
}

}  // namespace korvale
