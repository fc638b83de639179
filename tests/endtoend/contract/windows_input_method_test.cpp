#include <windows.h>
// After windows.h, which it needs.
#include <imm.h>

#include "tests/endtoend/contract/real_form.h"

namespace korvale {
namespace {

/// A text box as input methods use it. No real input method on Windows has been tried on it yet.
class WindowsInputMethod : public RealForm {
 protected:
  void SetUp() override {
    ShowForm();
    FocusOn("txtName");
    box_ = Control("txtName");
    context_ = ImmGetContext(box_);
  }

  void TearDown() override { ImmReleaseContext(box_, context_); }

  /// What the user has typed so far; false where no input method is at hand.
  bool Compose(std::wstring text) {
    const auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    return ImmSetCompositionStringW(context_, SCS_SETSTR, text.data(), size, nullptr, 0) != FALSE;
  }

  HWND box_ = nullptr;
  HIMC context_ = nullptr;
};

TEST_F(WindowsInputMethod, GivesTheTextBoxWhatTheUserHasComposed) {
  if (!Compose(L"\x306B\x307B\x3093")) GTEST_SKIP() << "no input method";
  // Enter, Esc and the arrows choose among what the input method offers.
  Press(VK_PROCESSKEY);
  EXPECT_EQ(Focus(), "txtName");
  ASSERT_TRUE(Compose(L"\x65E5\x672C"));
  ImmNotifyIME(context_, NI_COMPOSITIONSTR, CPS_COMPLETE, 0);
  User().LetPass(50);
  EXPECT_EQ(Text("txtName"), "日本");
  EXPECT_EQ(form_.Find("txtName").Text(), "日本");
  const Lines told = form_.Take();
  EXPECT_EQ(std::ranges::count(told, "click txtName"), std::ssize(told));
  Press(win32::kVkReturn);
  EXPECT_EQ(form_.Take(), Lines{"click cmdGo"});
}

TEST_F(WindowsInputMethod, CanBeLeftWithoutAText) {
  if (!Compose(L"\x306B\x307B\x3093")) GTEST_SKIP() << "no input method";
  ImmNotifyIME(context_, NI_COMPOSITIONSTR, CPS_CANCEL, 0);
  User().LetPass(50);
  EXPECT_EQ(Text("txtName"), "");
  EXPECT_EQ(form_.Find("txtName").Text(), "");
  EXPECT_TRUE(form_.IsLoaded());
}

TEST_F(WindowsInputMethod, MayGiveEachCharacterByAMessage) {
  for (const wchar_t unit : std::wstring(L"\x5B57\xD83D\xDE00")) {
    SendMessageW(box_, WM_IME_CHAR, unit, 1);
  }
  User().LetPass(50);
  EXPECT_EQ(Text("txtName"), "字😀");
  EXPECT_EQ(form_.Find("txtName").Text(), "字😀");
}

}  // namespace
}  // namespace korvale
