#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which they need; the second makes those behind it define their identifiers.
#include <commctrl.h>
#include <initguid.h>
#include <objbase.h>
#include <oleacc.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <future>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/windows/handles.h"
#include "tests/endtoend/contract/kept_roles.h"
#include "tests/endtoend/contract/real_form.h"

namespace korvale {
namespace {

constexpr FormDesign WithRole(FormRole role) {
  FormDesign design = DialogDesign("frmRole");
  design.role = role;
  return design;
}

/// What a screen reader gets of real windows.
class WindowsScreenReaderTest : public RealForm {
 protected:
  WindowsScreenReaderTest() : com_(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {
    told_.clear();
    hook_ = SetWinEventHook(EVENT_SYSTEM_ALERT, EVENT_SYSTEM_ALERT, nullptr, Note,
                            GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
  }
  ~WindowsScreenReaderTest() override {
    UnhookWinEvent(hook_);
    if (SUCCEEDED(com_)) CoUninitialize();
  }

  /// The windows of the alerts that have been told of since the last call.
  std::vector<HWND> Told() {
    User().LetPass(100);
    return std::exchange(told_, {});
  }
  /// False where the system keeps no roles, as Wine does.
  static bool SystemKeepsRoles() {
    IAccPropServices* services = nullptr;
    if (FAILED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                                IID_IAccPropServices, reinterpret_cast<void**>(&services)))) {
      return false;
    }
    const HRESULT cleared = services->ClearHwndProps(
        GetDesktopWindow(), static_cast<DWORD>(OBJID_CURSOR), CHILDID_SELF, &PROPID_ACC_ROLE, 1);
    services->Release();
    return SUCCEEDED(cleared);
  }
  static LONG RoleOf(HWND window) {
    const HMODULE library = LoadLibraryW(L"oleacc.dll");
    using Get = HRESULT(WINAPI*)(HWND, DWORD, REFIID, void**);
    const auto get = reinterpret_cast<Get>(
        reinterpret_cast<void*>(GetProcAddress(library, "AccessibleObjectFromWindow")));
    IAccessible* object = nullptr;
    get(window, static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
        reinterpret_cast<void**>(&object));
    VARIANT self{};
    self.vt = VT_I4;
    VARIANT role{};
    object->get_accRole(self, &role);
    object->Release();
    return role.lVal;
  }

  /// Asks for the text of the first tab as a screen reader does, from outside.
  LRESULT AskAboutTab(TCITEMW* question) {
    const HWND strip = Control("tabPages");
    std::future<LRESULT> answer = std::async(std::launch::async, [=] {
      return SendMessageW(strip, TCM_GETITEMW, 0, reinterpret_cast<LPARAM>(question));
    });
    while (answer.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
      User().LetPass(10);
    }
    return answer.get();
  }

  HRESULT com_;

 private:
  static void CALLBACK Note(HWINEVENTHOOK, DWORD, HWND window, LONG, LONG, DWORD, DWORD) {
    told_.push_back(window);
  }

  static inline std::vector<HWND> told_;
  HWINEVENTHOOK hook_ = nullptr;
};

TEST_F(WindowsScreenReaderTest, IsToldOfAnAlertThatComesUpAndOfEveryOtherTextInIt) {
  RecordingForm alert(WithRole(FormRole::kAlert), forms_);
  alert.Load();
  alert.Find("cmdOK").SetText("Fine");
  EXPECT_TRUE(Told().empty());
  alert.Show();
  EXPECT_EQ(Told(), std::vector{ToHwnd(alert.Handle())});
  alert.Find("cmdOK").SetText("Well");
  EXPECT_EQ(Told(), std::vector{ToHwnd(alert.Handle())});
}

TEST_F(WindowsScreenReaderTest, IsNotDisturbedByOtherForms) {
  for (const FormRole role : {FormRole::kDialog, FormRole::kWindow}) {
    RecordingForm form(WithRole(role), forms_);
    form.Show();
    form.Find("cmdOK").SetText("Fine");
    EXPECT_TRUE(Told().empty());
  }
}

TEST_F(WindowsScreenReaderTest, LearnsTheRoleOfAForm) {
  // Where the system keeps no roles, what it would be told counts.
  std::optional<KeptRoles> kept;
  if (!SystemKeepsRoles()) kept.emplace();
  const auto role = [&](HWND window) { return kept ? kept->RoleOf(window) : RoleOf(window); };
  RecordingForm dialog(WithRole(FormRole::kDialog), forms_);
  dialog.Show();
  EXPECT_EQ(role(ToHwnd(dialog.Handle())), ROLE_SYSTEM_DIALOG);
  RecordingForm alert(WithRole(FormRole::kAlert), forms_);
  alert.Show();
  EXPECT_EQ(role(ToHwnd(alert.Handle())), ROLE_SYSTEM_ALERT);
  ShowForm();
  const HWND page = Control("picPage", 0);
  EXPECT_EQ(role(page), ROLE_SYSTEM_PROPERTYPAGE);
  if (!kept) return;
  const HWND gone = ToHwnd(dialog.Handle());
  dialog.Unload();
  form_.Unload();
  EXPECT_EQ(kept->RoleOf(gone), 0);
  EXPECT_EQ(kept->RoleOf(page), 0);
}

/// A question about a tab in one piece of memory with the room for its text.
struct TabQuestion {
  TCITEMW question{};
  std::array<wchar_t, 20> text{};

  TabQuestion() {
    question.mask = TCIF_TEXT;
    question.pszText = text.data();
    question.cchTextMax = static_cast<int>(text.size());
  }
};

TEST_F(WindowsScreenReaderTest, LearnsTheTextOfATab) {
  ShowForm();
  TabQuestion whole;
  EXPECT_EQ(AskAboutTab(&whole.question), TRUE);
  EXPECT_EQ(std::wstring(whole.text.data()), L"One");
  TabQuestion shortened;
  shortened.question.cchTextMax = 3;
  EXPECT_EQ(AskAboutTab(&shortened.question), TRUE);
  EXPECT_EQ(std::wstring(shortened.text.data()), L"On");
}

TEST_F(WindowsScreenReaderTest, IsToldOfATabOnlyWhereItAsks) {
  ShowForm();
  static wchar_t elsewhere[20] = L"ours";
  TabQuestion misled;
  misled.question.pszText = elsewhere;
  EXPECT_EQ(AskAboutTab(&misled.question), FALSE);
  EXPECT_EQ(std::wstring(elsewhere), L"ours");
  TabQuestion roomless;
  roomless.question.cchTextMax = -1;
  EXPECT_EQ(AskAboutTab(&roomless.question), FALSE);
  EXPECT_EQ(AskAboutTab(reinterpret_cast<TCITEMW*>(std::uintptr_t{64})), FALSE);
}

}  // namespace
}  // namespace korvale
