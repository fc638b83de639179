#pragma once

#include <string>
#include <vector>

#include "forms/main_form_design.h"
#include "tests/program/korvale_world.h"

namespace korvale {

/// Started copies, and how their main window looks.
class MainWindowTest : public KorvaleWorld {
 protected:
  void Store(const std::string& key, const std::string& value) {
    store.SaveSetting("Korvale - Work", "Startup", key, value);
  }
  std::string Stored(const std::string& key) {
    return store.GetSetting("Korvale - Work", "Startup", key).value_or("(missing)");
  }

  static TwipsRect Place(KorvaleCopy& copy) { return copy.user.Place(copy.Handle()); }
  static Twips Height(KorvaleCopy& copy) { return Place(copy).height; }
  static int Field(KorvaleCopy& copy, const char* name = "txtWindow") {
    return copy.Id(copy.Form(), name);
  }
  static bool IsShown(KorvaleCopy& copy, const char* field) {
    return copy.user.IsShown(copy.Handle(), Field(copy, field));
  }
  static Color ColorOf(KorvaleCopy& copy, const char* field) {
    return copy.user.Look(copy.Handle(), Field(copy, field)).backColor;
  }
  static bool MenuIsShown(KorvaleCopy& copy) {
    return !copy.user.MenuBarItems(copy.Handle()).empty();
  }
  static void Choose(KorvaleCopy& copy, const std::vector<std::string>& path) {
    copy.user.ChooseMenu(copy.Handle(), path);
  }
  static bool IsChecked(KorvaleCopy& copy, const std::string& menu, const std::string& caption) {
    for (const ShownMenuItem& item : copy.user.MenuItems(copy.Handle(), {menu})) {
      if (item.caption == caption) return item.checked;
    }
    FailTest("there is no \"" + caption + "\"");
  }
  static void HideMenu(KorvaleCopy& copy) {
    copy.host.AnswerNext(win32::kIdOk);
    Choose(copy, {"View", "Menu"});
  }
  static void Resize(KorvaleCopy& copy, Twips width, Twips height) {
    TwipsRect place = Place(copy);
    place.width = width;
    place.height = height;
    copy.user.Drag(copy.Handle(), place);
  }
};

}  // namespace korvale
