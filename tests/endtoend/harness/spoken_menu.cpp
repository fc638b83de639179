#include "tests/endtoend/harness/spoken_menu.h"

#include <stdexcept>

#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/process.h"
#include "tests/endtoend/harness/spoken.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/menu_reader/menu_reader.h"

namespace korvale::endtoend {
namespace {

/// Memory that the part within the other program writes its answer to.
class AnswerMemory {
 public:
  AnswerMemory()
      : memory_(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                   sizeof(MenuAnswer), kMenuAnswer)),
        answer_(static_cast<MenuAnswer*>(
            MapViewOfFile(memory_.get(), FILE_MAP_READ, 0, 0, sizeof(MenuAnswer)))) {
    if (answer_ == nullptr) throw std::runtime_error("no memory for what menus hold");
  }
  ~AnswerMemory() { UnmapViewOfFile(answer_); }
  AnswerMemory(const AnswerMemory&) = delete;
  AnswerMemory& operator=(const AnswerMemory&) = delete;

  const MenuAnswer& operator*() const { return *answer_; }

 private:
  Handle memory_;
  const MenuAnswer* answer_;
};

/// The part within the program of a window, for as long as this exists.
class PartWithin {
 public:
  explicit PartWithin(Window window)
      : library_(LoadLibraryW(Wide(OwnFolder() + "menu_reader.dll").c_str())),
        hook_(SetWindowsHookExW(WH_CALLWNDPROC,
                                reinterpret_cast<HOOKPROC>(reinterpret_cast<void*>(
                                    GetProcAddress(library_, "HearMessage"))),
                                library_, GetWindowThreadProcessId(window.handle(), nullptr))) {
    if (hook_ == nullptr) throw std::runtime_error("menus cannot be read");
  }
  ~PartWithin() {
    UnhookWindowsHookEx(hook_);
    FreeLibrary(library_);
  }
  PartWithin(const PartWithin&) = delete;
  PartWithin& operator=(const PartWithin&) = delete;

 private:
  HMODULE library_;
  HHOOK hook_;
};

std::string Say(const MenuAnswerItem& item) {
  if ((item.type & MFT_SEPARATOR) != 0) return "separator";
  std::wstring name;
  std::wstring key;
  for (const wchar_t* text = item.text.data(); *text != L'\0'; ++text) {
    const bool mark = *text == L'&' && text[1] != L'\0';
    if (mark) ++text;
    if (mark && *text != L'&') key = *text;
    name += *text;
  }
  std::string line = "entry " + Said(Utf8(name));
  if (item.opensMenu != FALSE) line += ", with a menu";
  if ((item.state & MFS_CHECKED) != 0) line += ", checked";
  if ((item.state & MFS_DISABLED) != 0) line += ", unavailable";
  if (!key.empty()) {
    CharUpperW(key.data());
    line += ", " + Utf8(key);
  }
  return line;
}

}  // namespace

std::vector<std::string> SpokenMenu(Window window) {
  const AnswerMemory answer;
  const PartWithin part(window);
  window.Send(RegisterWindowMessageW(kMenuQuestion));
  std::vector<std::string> lines;
  for (int i = 0; i < (*answer).count; ++i) {
    lines.push_back(Say((*answer).items.at(static_cast<size_t>(i))));
  }
  return lines;
}

}  // namespace korvale::endtoend
