#include "tests/program/korvale_world.h"

#include <algorithm>

namespace korvale {

KorvaleCopy::KorvaleCopy(KorvaleWorld& world, const std::string& folder, int process)
    : system(world.log, world.session),
      bridge(world.desktop.Windows(), process),
      host(bridge, world.log),
      user(host, world.clock),
      platform{world.desktop, world.desktop, world.hotKeys, world.store,  system,
               system,        world.clock,   world.clock,   host,         host,
               host,          host,          host,          world.desktop},
      program(platform) {
  system.executablePath = "C:\\Programs\\" + folder + "\\Korvale.exe";
  system.files.insert(system.executablePath);
  // Time passes by itself only while the program waits for it and not for the user.
  host.SetIdle([this, &world] {
    return FindForm("frmWaitWindow") != nullptr && world.clock.AdvanceToNextTick();
  });
}

KorvaleCopy::~KorvaleCopy() = default;

void KorvaleCopy::ChooseLate(const std::string& name, int index) {
  MenuItem& item = Form().Menu(name, index);
  item.enabled = true;
  Form().OnMenuClicked(item);
}

class Form* KorvaleCopy::FindForm(const std::string& name) {
  const WindowHandle hwnd = FormHandle(Form().Collection(), name);
  return hwnd == 0 ? nullptr : dynamic_cast<class Form*>(host.Window(hwnd).events);
}

class Form& KorvaleCopy::Loaded(const std::string& name) {
  class Form* form = FindForm(name);
  if (form == nullptr) FailTest(name + " is not open");
  return *form;
}

int KorvaleCopy::Id(class Form& form, const std::string& control, int index) {
  return form.Find(control, index).Id();
}

void KorvaleCopy::ExpectBox(const std::string& text, std::int16_t answer) {
  host.WhenMessageBox([=](const ShownMessage& box) {
    EXPECT_EQ(box.text, text);
    return answer;
  });
}

void KorvaleCopy::ExpectBox(const std::string& text, const std::string& title, std::int32_t style,
                            std::int16_t answer) {
  host.WhenMessageBox([=](const ShownMessage& box) {
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.title, title);
    EXPECT_EQ(box.style, style);
    return answer;
  });
}

void KorvaleCopy::EndSessionAtBox(std::int16_t answer) {
  host.WhenMessageBox([this, answer](const ShownMessage& /*box*/) {
    Form().OnCloseRequested(CloseReason::kSession);
    return answer;
  });
}

void KorvaleCopy::TagPrevious(const std::function<void(class Form&)>& prepare) {
  host.WhenModal("frmGetWindow", [this, prepare](class Form& dialog) {
    if (prepare) prepare(dialog);
    user.Click(dialog.Handle(), dialog.Find("cmdOK").Id());
  });
  const std::vector<ShownMenuItem> items = WindowMenuItems();
  user.ChooseMenu(Handle(), {"Window", items.back().caption});
}

KorvaleWorld::KorvaleWorld()
    : desktop(log),
      hotKeys(log, [this](WindowHandle hwnd) { return desktop.Windows().Find(hwnd) != nullptr; }),
      store(log),
      clock(log),
      session(std::make_shared<FakeSession>()) {
  desktop.UseClock(clock);
  desktop.OpenShell();
}

KorvaleWorld::~KorvaleWorld() = default;

KorvaleCopy& KorvaleWorld::NewCopy(const std::string& folder) {
  copies_.push_back(std::make_unique<KorvaleCopy>(*this, folder, ++lastProcess_));
  return *copies_.back();
}

KorvaleCopy& KorvaleWorld::StartedCopy(const std::string& folder) {
  KorvaleCopy& copy = NewCopy(folder);
  store.SaveSetting("Korvale - " + folder, "Options", "SplashScreen", "False");
  EXPECT_TRUE(copy.Start());
  LetTick();
  log.Clear();
  return copy;
}

KorvaleCopy& KorvaleWorld::StartedAfter(WindowHandle window) {
  KorvaleCopy& copy = StartedCopy();
  WorkIn(window);
  WorkIn(copy.Handle());
  return copy;
}

void KorvaleWorld::ExpectEnded(KorvaleCopy& copy) {
  EXPECT_FALSE(copy.Form().IsLoaded());
  EXPECT_TRUE(hotKeys.Registered().empty());
}

void KorvaleWorld::EndCopy(KorvaleCopy& copy) {
  std::erase_if(copies_, [&](const auto& owned) { return owned.get() == &copy; });
}

void KorvaleWorld::StoreTag(int tag, const std::string& text, const std::string& className) {
  const std::string key = std::to_string(tag);
  store.SaveSetting("Korvale - Work", "ParentWindowList", key, "&" + key + "  " + text);
  store.SaveSetting("Korvale - Work", "ParentWindowClass", key, className);
}

WindowHandle KorvaleWorld::Open(const std::string& title, const NewWindow& options) {
  const WindowHandle hwnd = desktop.Open(title, options);
  LetTick();
  return hwnd;
}

std::string KorvaleWorld::EntryThatBegins(const std::vector<ShownMenuItem>& items,
                                          std::string_view beginning) {
  const auto found = std::ranges::find_if(items, [&](const ShownMenuItem& item) {
    return !beginning.empty() && item.enabled && item.caption.starts_with(beginning);
  });
  return found == items.end() ? std::string() : found->caption;
}

void KorvaleWorld::WorkIn(WindowHandle hwnd) {
  desktop.UserActivates(hwnd);
  LetTick();
}

void KorvaleWorld::PressHotKey(std::uint32_t modifiers, std::uint32_t key) {
  EXPECT_TRUE(hotKeys.Press(modifiers, key)) << modifiers << "+" << key << " is no hot key";
  LetTick();
}

}  // namespace korvale
