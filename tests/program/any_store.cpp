#include "tests/program/any_store.h"

#include <utility>

#include "platform/win32_constants.h"
#include "tests/program/kept.h"

namespace korvale {
namespace {

constexpr std::int32_t kBoxButtonsMask = 0xF;

}  // namespace

void AnyStore::Live(std::function<bool()> saysYes) {
  saysYes_ = std::move(saysYes);
  KorvaleCopy& korvale = NewCopy();
  korvale.host.SetIdle([&] { return CloseModal(korvale); });
  AnswerBoxes(korvale);
  if (korvale.Start()) {
    Use(korvale);
    const Kept before = KeptBy(korvale);
    korvale.Exit();
    ExpectTexts(store, kApp, before);
    EXPECT_EQ(KeptIn(store, kApp), before);
  } else {
    EXPECT_FALSE(korvale.Form().IsLoaded());
  }
  EXPECT_TRUE(hotKeys.Registered().empty());
  End(korvale);
}

void AnyStore::AnswerBoxes(KorvaleCopy& korvale) {
  korvale.host.AnswerOtherBoxes([this](const ShownMessage& box) {
    EXPECT_EQ(box.text.find("VB ERROR"), std::string::npos) << box.text;
    const bool asks = (box.style & kBoxButtonsMask) == win32::kMbYesNo;
    return static_cast<std::int16_t>(!asks        ? win32::kIdOk
                                     : saysYes_() ? win32::kIdYes
                                                  : win32::kIdNo);
  });
}

bool AnyStore::CloseModal(KorvaleCopy& korvale) {
  class Form* const form = static_cast<class Form*>(korvale.Form().Collection().TopModal());
  if (form == nullptr) return false;
  korvale.user.PressCloseBox(form->Handle());
  return true;
}

void AnyStore::Use(KorvaleCopy& korvale) {
  const StartupSettings& startup = korvale.Startup();
  EXPECT_GE(startup.WindowState, 0);
  EXPECT_LE(startup.WindowState, 2);
  EXPECT_GE(startup.OptionsTab, 1);
  EXPECT_LE(startup.OptionsTab, 3);
  korvale.Tags().mnuWindowParentList.ForEach(
      [&](const MenuItem& entry) { EXPECT_LE(entry.index, 9); });
  for (const RegisteredHotKey& hotKey : korvale.HotKeys().Registered()) EXPECT_NE(hotKey.key, 0);
  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
  const clsOptions before = korvale.Options();
  korvale.Form().udmOptions("UPDATE_OPTIONS");
  EXPECT_EQ(korvale.Options(), before);
  korvale.Form().udmSaveOptions();
  // A user can bring it to where they can use it.
  desktop.UserActivates(korvale.Handle());
  if (!startup.Menu) {
    korvale.user.PressKey(korvale.Handle(), 'V', kAlt);
    korvale.user.PressKey(korvale.Handle(), win32::kVkEscape);
  }
}

void AnyStore::End(KorvaleCopy& korvale) {
  const WindowHandle owner = korvale.bridge.Owner();
  EndCopy(korvale);
  desktop.Windows().Destroy(owner);
}

}  // namespace korvale
