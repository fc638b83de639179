#include "tests/endtoend/harness/spoken.h"

// After windows.h, which they need; the second makes those behind it define their identifiers.
#include <commctrl.h>
#include <initguid.h>
#include <objbase.h>
#include <oleacc.h>

#include <algorithm>
#include <array>
#include <cctype>

#include "tests/endtoend/harness/lent_memory.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

/// One blank instead of several and of line breaks, none at the ends.
std::string OnOneLine(const std::string& text) {
  std::string line;
  for (const char each : text) {
    const bool blank = std::isspace(static_cast<unsigned char>(each)) != 0;
    if (!blank || (!line.empty() && line.back() != ' ')) line += blank ? ' ' : each;
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

/// What Active Accessibility knows of a window.
class Accessible {
 public:
  explicit Accessible(Window window) {
    AccessibleObjectFromWindow(window.handle(), static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                               reinterpret_cast<void**>(&object_));
  }
  ~Accessible() {
    if (object_ != nullptr) object_->Release();
  }
  Accessible(const Accessible&) = delete;
  Accessible& operator=(const Accessible&) = delete;

  std::string Name() const { return Text(&IAccessible::get_accName); }
  std::string Value() const { return Text(&IAccessible::get_accValue); }
  std::string AccessKey() const { return Text(&IAccessible::get_accKeyboardShortcut); }
  LONG Role() const { return Number(&IAccessible::get_accRole); }
  LONG State() const { return Number(&IAccessible::get_accState); }

 private:
  static VARIANT Self() {
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    return self;
  }
  std::string Text(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, BSTR*)) const {
    BSTR text = nullptr;
    if (object_ == nullptr || (object_->*get)(Self(), &text) != S_OK) return "";
    const std::string result = Utf8({text, SysStringLen(text)});
    SysFreeString(text);
    return result;
  }
  LONG Number(HRESULT (STDMETHODCALLTYPE IAccessible::*get)(VARIANT, VARIANT*)) const {
    VARIANT number{};
    if (object_ == nullptr || (object_->*get)(Self(), &number) != S_OK) return 0;
    return number.lVal;
  }

  IAccessible* object_ = nullptr;
};

bool IsClass(Window control, const char* name) {
  return _stricmp(control.ClassName().c_str(), name) == 0;
}

LONG DocumentedRoleOfButton(Window button) {
  switch (button.Style() & BS_TYPEMASK) {
    case BS_GROUPBOX:
      return ROLE_SYSTEM_GROUPING;
    case BS_CHECKBOX:
    case BS_AUTOCHECKBOX:
      return ROLE_SYSTEM_CHECKBUTTON;
    case BS_RADIOBUTTON:
    case BS_AUTORADIOBUTTON:
      return ROLE_SYSTEM_RADIOBUTTON;
    default:
      return ROLE_SYSTEM_PUSHBUTTON;
  }
}

LONG DocumentedRole(Window control) {
  if (IsClass(control, "Button")) return DocumentedRoleOfButton(control);
  if (IsClass(control, "Edit")) return ROLE_SYSTEM_TEXT;
  if (IsClass(control, "ComboBox")) return ROLE_SYSTEM_COMBOBOX;
  if (IsClass(control, "SysTabControl32")) return ROLE_SYSTEM_PAGETABLIST;
  if (IsClass(control, "Korvale.Page")) return ROLE_SYSTEM_PROPERTYPAGE;
  if (!IsClass(control, "Static")) return ROLE_SYSTEM_CLIENT;
  const bool icon = (control.Style() & SS_TYPEMASK) == SS_ICON;
  return icon ? ROLE_SYSTEM_GRAPHIC : ROLE_SYSTEM_STATICTEXT;
}

const char* Word(LONG role) {
  switch (role) {
    case ROLE_SYSTEM_STATICTEXT:
      return "text";
    case ROLE_SYSTEM_TEXT:
      return "text box";
    case ROLE_SYSTEM_PUSHBUTTON:
      return "button";
    case ROLE_SYSTEM_CHECKBUTTON:
      return "check box";
    case ROLE_SYSTEM_RADIOBUTTON:
      return "option";
    case ROLE_SYSTEM_GROUPING:
      return "group";
    case ROLE_SYSTEM_COMBOBOX:
      return "list";
    case ROLE_SYSTEM_PAGETABLIST:
      return "tabs";
    case ROLE_SYSTEM_PROPERTYPAGE:
      return "page";
    case ROLE_SYSTEM_GRAPHIC:
      return "picture";
    default:
      return "window";
  }
}

/// The static control before a list. Windows takes the list's name from it, hidden or not, and the
/// access key from the one that is seen (`seen`).
Window LabelOf(Window list, bool seen) {
  constexpr LONG_PTR kEnd = WS_GROUP | WS_TABSTOP;
  const auto fits = [&](Window label) {
    return IsClass(label, "Static") && (!seen || (label.Style() & WS_VISIBLE) != 0);
  };
  Window label(GetWindow(list.handle(), GW_HWNDPREV));
  while (label && !fits(label) && (label.Style() & kEnd) != kEnd) {
    label = Window(GetWindow(label.handle(), GW_HWNDPREV));
  }
  return label && fits(label) ? label : Window();
}

std::string States(Window control, LONG role, LONG state) {
  std::string states;
  const auto add = [&](bool holds, const char* word) {
    if (holds) states += std::string(", ") + word;
  };
  const bool choice = role == ROLE_SYSTEM_CHECKBUTTON || role == ROLE_SYSTEM_RADIOBUTTON;
  const bool button = role == ROLE_SYSTEM_PUSHBUTTON;
  add((state & STATE_SYSTEM_UNAVAILABLE) != 0, "unavailable");
  add(choice && control.Send(BM_GETCHECK) == BST_CHECKED, "checked");
  add(role == ROLE_SYSTEM_TEXT && (state & STATE_SYSTEM_READONLY) != 0, "read-only");
  add(button && (control.Style() & BS_TYPEMASK) == BS_DEFPUSHBUTTON, "default");
  add(FocusOf(control) == control, "focused");
  return states;
}

/// The text of a tab, read as other programs do it: question and answer lie in a piece of the
/// program's own memory.
std::string TabText(Window strip, WPARAM tab) {
  constexpr int kLength = 100;
  const LentMemory piece(strip.ProcessId(), sizeof(TCITEMW) + kLength * sizeof(wchar_t));
  TCITEMW question{};
  question.mask = TCIF_TEXT;
  question.pszText = reinterpret_cast<wchar_t*>(piece.Address() + sizeof(question));
  question.cchTextMax = kLength;
  piece.Write(&question, sizeof(question));
  strip.Send(TCM_GETITEMW, tab, reinterpret_cast<LPARAM>(piece.Address()));
  std::array<wchar_t, kLength> text{};
  piece.Read(sizeof(question), text.data(), sizeof(text));
  return Utf8(text.data());
}

void AddTabs(Window strip, std::vector<std::string>& lines) {
  const LRESULT count = strip.Send(TCM_GETITEMCOUNT);
  for (LRESULT tab = 0; tab < count; ++tab) {
    const bool chosen = strip.Send(TCM_GETCURSEL) == tab;
    lines.push_back("tab " + Said(TabText(strip, static_cast<WPARAM>(tab))) +
                    (chosen ? ", selected" : ""));
  }
}

void Add(Window control, std::vector<std::string>& lines) {
  const Accessible object(control);
  const bool known = object.Role() != ROLE_SYSTEM_CLIENT;
  const LONG role = known ? object.Role() : DocumentedRole(control);
  const bool list = role == ROLE_SYSTEM_COMBOBOX;
  const Accessible label(list && !known ? LabelOf(control, false) : control);
  const Accessible seen(list && !known ? LabelOf(control, true) : control);
  std::string line = Word(role) + (" " + Said(label.Name()));
  if (list || role == ROLE_SYSTEM_TEXT) {
    line += " = " + Said(list && !known ? control.Text() : object.Value());
  }
  line += States(control, role, object.State());
  std::string key = seen.AccessKey();
  if (!key.empty()) key.back() = static_cast<char>(std::toupper(key.back()));
  if (!key.empty()) line += ", " + key;
  // Lines are texts without a name.
  if (role != ROLE_SYSTEM_STATICTEXT || !label.Name().empty()) lines.push_back(line);
  if (role == ROLE_SYSTEM_PAGETABLIST) AddTabs(control, lines);
}

void AddControls(Window window, std::vector<std::string>& lines) {
  for (const Window control : window.Children()) {
    if ((control.Style() & WS_VISIBLE) == 0) continue;
    Add(control, lines);
    if (IsClass(control, "Korvale.Page")) AddControls(control, lines);
  }
}

std::vector<HWND>& Changed() {
  static std::vector<HWND> windows;
  return windows;
}

void CALLBACK Note(HWINEVENTHOOK /*hook*/, DWORD event, HWND window, LONG /*object*/,
                   LONG /*child*/, DWORD /*thread*/, DWORD /*time*/) {
  const bool change = event == EVENT_OBJECT_NAMECHANGE || event == EVENT_OBJECT_VALUECHANGE;
  if (change) Changed().push_back(window);
}

}  // namespace

std::string Said(const std::string& text) { return "'" + OnOneLine(text) + "'"; }

std::string Table(const std::vector<std::string>& lines) {
  std::string table;
  for (const std::string& line : lines) table += "\n" + line;
  return table;
}

std::vector<std::string> Spoken(Window window) {
  const HRESULT com = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  std::vector<std::string> lines;
  Add(window, lines);
  AddControls(window, lines);
  if (SUCCEEDED(com)) CoUninitialize();
  return lines;
}

Told::Told(DWORD process)
    : hook_(SetWinEventHook(EVENT_OBJECT_NAMECHANGE, EVENT_OBJECT_VALUECHANGE, nullptr, Note,
                            process, 0, WINEVENT_OUTOFCONTEXT)) {
  Changed().clear();
}

Told::~Told() { UnhookWinEvent(hook_); }

bool Told::Change(Window window, std::chrono::milliseconds limit) const {
  const auto told = [&] {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) DispatchMessageW(&message);
    return std::ranges::find(Changed(), window.handle()) != Changed().end();
  };
  return WaitFor(told, limit);
}

}  // namespace korvale::endtoend
