#include "tests/endtoend/harness/default_settings.h"

namespace korvale::endtoend {

namespace {

constexpr DefaultSetting kSettings[] = {
    {"Options", "SplashScreen", "True", "2"},
    {"Options", "SelectPrevWinOnStart", "False", "2"},
    {"Options", "AllowNoTextWindow", "False", "2"},
    {"Options", "AllowToolbarWindow", "False", "2"},
    {"Options", "HotKeyEnabled", "8454143", "2147483648"},
    {"Options", "HotKeyModParent", "1", "32768"},
    {"Options", "HotKeyParent0", "True", "2"},
    {"Options", "HotKeyParent1", "True", "2"},
    {"Options", "HotKeyParent2", "True", "2"},
    {"Options", "HotKeyParent3", "True", "2"},
    {"Options", "HotKeyParent4", "True", "2"},
    {"Options", "HotKeyParent5", "True", "2"},
    {"Options", "HotKeyParent6", "True", "2"},
    {"Options", "HotKeyParent7", "True", "2"},
    {"Options", "HotKeyParent8", "True", "2"},
    {"Options", "HotKeyParent9", "True", "2"},
    {"Options", "HotKeyModAction0", "1", "32768"},
    {"Options", "HotKeyModAction1", "1", "-32769"},
    {"Options", "HotKeyAction0", "40", "32768"},
    {"Options", "HotKeyAction1", "38", "99999999999"},
    {"Options", "HotKeyModGeneral0", "8", "32768"},
    {"Options", "HotKeyModGeneral1", "8", "32768"},
    {"Options", "HotKeyModGeneral2", "0", "32768"},
    {"Options", "HotKeyGeneral0", "79", "32768"},
    {"Options", "HotKeyGeneral1", "87", "32768"},
    {"Options", "HotKeyGeneral2", "19", "32768"},
    {"Startup", "WindowState", "0", "3"},
    {"Startup", "Left", "-1", "2147483647"},
    {"Startup", "Top", "-1", "-2147483648"},
    {"Startup", "Width", "4500", "2147483648"},
    {"Startup", "Height", "1100", "2147483648"},
    {"Startup", "AlwaysOnTop", "False", "2"},
    {"Startup", "WI1BackColor", "10485759", "2147483648"},
    {"Startup", "WI2BackColor", "11468718", "-2147483649"},
    {"Startup", "Tips", "", ""},
    {"Startup", "DisplayTips", "True", "2"},
    {"Startup", "LastColorSelected", "16777215", "2147483648"},
    {"Startup", "Menu", "True", "2"},
    {"Startup", "OptionsTab", "1", "4"},
    {"Startup", "WindowInfo", "True", "2"},
};

}  // namespace

std::span<const DefaultSetting> DefaultSettings() { return kSettings; }

}  // namespace korvale::endtoend
