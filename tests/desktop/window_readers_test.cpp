#include "desktop/window_readers.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>

#include "platform/win32_constants.h"
#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

class WindowReaders : public DesktopCase {};

std::string Repeated(const std::string& text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

TEST_F(WindowReaders, TitleIsRead) {
  EXPECT_EQ(GetWindowTitle(desktop, desktop.Open("Untitled - Notepad")), "Untitled - Notepad");
}

TEST_F(WindowReaders, TitleInAnyWritingIsRead) {
  for (const char* const title :
       {"Безымянный — Блокнот", "無題 - メモ帳", "🦊 - 👩‍💻", "é"}) {
    EXPECT_EQ(GetWindowTitle(desktop, desktop.Open(title)), title);
  }
}

TEST_F(WindowReaders, TitleOfUntitledWindowIsEmpty) {
  EXPECT_EQ(GetWindowTitle(desktop, desktop.Open("")), "");
}

TEST_F(WindowReaders, TitleOfNoWindowIsEmpty) {
  EXPECT_EQ(GetWindowTitle(desktop, 0), "");
  EXPECT_EQ(GetWindowTitle(desktop, 0x7777), "");
}

TEST_F(WindowReaders, OrdinaryTitleIsReadWithOneCall) {
  const std::string longest(507, 'x');
  for (const std::string& title : {std::string("Alpha"), std::string(), longest}) {
    const WindowHandle hwnd = desktop.Open(title);
    log.NameWindow(hwnd, "Alpha");
    std::string read;
    const Calls calls = CallsOf([&] { read = GetWindowTitle(desktop, hwnd); });
    EXPECT_EQ(read, title);
    EXPECT_EQ(calls, Calls{"GetWindowTextA(Alpha, 512)"});
  }
}

TEST_F(WindowReaders, TitleThatMayBeCutIsReadAgainAtItsReportedLength) {
  for (const std::size_t length : {508U, 511U, 512U, 3000U}) {
    const WindowHandle hwnd = desktop.Open(std::string(length, 'x'));
    log.NameWindow(hwnd, "Alpha");
    std::string read;
    const Calls calls = CallsOf([&] { read = GetWindowTitle(desktop, hwnd); });
    EXPECT_EQ(read, std::string(length, 'x'));
    const std::string size = length < 1000 ? "1024" : "3005";
    EXPECT_EQ(calls, (Calls{"GetWindowTextA(Alpha, 512)", "GetWindowTextLengthA(Alpha)",
                            "GetWindowTextA(Alpha, " + size + ")"}));
  }
}

TEST_F(WindowReaders, TitleThatGrowsWhileItIsReadIsNotCut) {
  for (const int times : {1, 150, 300, 5000}) {
    const WindowHandle hwnd = desktop.Open(Repeated("Жук ", 100));
    log.NameWindow(hwnd, "Alpha");
    const std::string grown = Repeated("Жук ", times);
    log.WhenCalled("GetWindowTextLengthA(Alpha", [&] {
      log.WhenCalled("GetWindowTextA(Alpha", [&] { desktop.Rename(hwnd, grown); });
    });
    EXPECT_EQ(GetWindowTitle(desktop, hwnd), grown);
  }
}

TEST_F(WindowReaders, TitleThatGrowsFromEmptyBetweenLengthAndTextIsNotCut) {
  for (const int times : {1, 150, 300, 5000}) {
    const WindowHandle hwnd = desktop.Open(Repeated("Жук ", 100));
    log.NameWindow(hwnd, "Alpha");
    const std::string grown = Repeated("Жук ", times);
    log.WhenCalled("GetWindowTextLengthA(Alpha", [&] {
      desktop.Rename(hwnd, "");
      log.WhenCalled("GetWindowTextA(Alpha", [&] { desktop.Rename(hwnd, grown); });
    });
    EXPECT_EQ(GetWindowTitle(desktop, hwnd), grown);
  }
}

TEST_F(WindowReaders, LongTitleThatGoesWhileItIsReadIsEmpty) {
  const WindowHandle hwnd = desktop.Open(Repeated("Жук ", 100));
  log.WhenCalled("GetWindowTextLengthA", [&] { desktop.Close(hwnd); });
  EXPECT_EQ(GetWindowTitle(desktop, hwnd), "");
}

TEST_F(WindowReaders, TitleThatShrinksWhileItIsReadIsTheShortOne) {
  const WindowHandle hwnd = desktop.Open("Alpha and more");
  log.WhenCalled("GetWindowTextA(Alpha", [&] { desktop.Rename(hwnd, "A"); });
  EXPECT_EQ(GetWindowTitle(desktop, hwnd), "A");
}

TEST_F(WindowReaders, TitleOfAWindowThatGoesWhileItIsReadIsEmpty) {
  const WindowHandle hwnd = desktop.Open("Alpha");
  log.WhenCalled("GetWindowTextA(Alpha", [&] { desktop.Close(hwnd); });
  EXPECT_EQ(GetWindowTitle(desktop, hwnd), "");
}

TEST_F(WindowReaders, TitleThatKeepsGrowingEndsAtTheLargestBufferWithAWholeCharacter) {
  // Of 65535 bytes at most, the first two are of one byte each.
  for (const auto& [character, size] : {std::pair("x", 65535U), std::pair("é", 65534U),
                                        std::pair("メ", 65534U), std::pair("🦊", 65534U)}) {
    const std::string all = "xy" + Repeated(character, 70000);
    const WindowHandle hwnd = desktop.Open(std::string(600, 'x'));
    log.WhenCalled("GetWindowTextLengthA",
                   [&] { log.WhenCalled("GetWindowTextA", [&] { desktop.Rename(hwnd, all); }); });
    const std::string title = GetWindowTitle(desktop, hwnd);
    EXPECT_EQ(title.size(), size);
    EXPECT_TRUE(all.starts_with(title));
    EXPECT_EQ((title.size() - 2) % std::string(character).size(), 0U);
  }
}

TEST_F(WindowReaders, LongTitleIsReadWhole) {
  const std::string all = Repeated("🦊", 50000);
  EXPECT_EQ(GetWindowTitle(desktop, desktop.Open(all)), all);
}

TEST_F(WindowReaders, ClassIsReadIntoABufferOf255) {
  const WindowHandle hwnd = desktop.Open("Alpha", {.className = "Notepad"});
  std::string className;
  const Calls calls = CallsOf([&] { className = GetWindowClass(desktop, hwnd); });
  EXPECT_EQ(className, "Notepad");
  EXPECT_EQ(calls, Calls{"GetClassNameA(Alpha, 255)"});
}

TEST_F(WindowReaders, ClassOfNoWindowIsEmpty) {
  EXPECT_EQ(GetWindowClass(desktop, 0), "");
  EXPECT_EQ(GetWindowClass(desktop, 0x7777), "");
}

TEST_F(WindowReaders, ClassLongerThanTheBufferIsCutAtIt) {
  const WindowHandle hwnd = desktop.Open("Alpha", {.className = std::string(256, 'c')});
  EXPECT_EQ(GetWindowClass(desktop, hwnd), std::string(254, 'c'));
}

TEST_F(WindowReaders, LongClassIsNeverCutThroughACharacter) {
  for (const std::string character : {"é", "ऀ", "メ", "🦊"}) {
    for (const std::size_t before : {0U, 1U, 2U, 3U}) {
      const std::string all = std::string(before, 'x') + Repeated(character, 200);
      const WindowHandle hwnd = desktop.Open("Alpha", {.className = all});
      const std::string className = GetWindowClass(desktop, hwnd);
      EXPECT_GT(className.size() + character.size(), 254U) << "nothing else is lost";
      EXPECT_TRUE(all.starts_with(className));
      EXPECT_EQ((className.size() - before) % character.size(), 0U) << character << before;
    }
  }
}

TEST_F(WindowReaders, Related1IsTheFirstChild) {
  const WindowHandle hwnd = desktop.Open("Alpha", {.children = 2});
  EXPECT_EQ(GetRelatedWindow(desktop, hwnd, 1), desktop.GetWindow(hwnd, win32::kGwChild));
  EXPECT_NE(GetRelatedWindow(desktop, hwnd, 1), 0);
}

TEST_F(WindowReaders, Related1IsNoneWithoutChildren) {
  EXPECT_EQ(GetRelatedWindow(desktop, desktop.Open("Alpha", {.children = 0}), 1), 0);
}

TEST_F(WindowReaders, Related2IsTheOwnerWithAMinimizeBox) {
  const WindowHandle holder = desktop.Open("Holder");
  const WindowHandle owned = desktop.Open("Owned", {.owner = holder});
  EXPECT_EQ(GetRelatedWindow(desktop, owned, 2), holder);
}

TEST_F(WindowReaders, Related2IsNoneWhenTheOwnerHasNoMinimizeBox) {
  const WindowHandle holder = desktop.Open("Holder", {.style = win32::kWsMaximizeBox});
  const WindowHandle owned = desktop.Open("Owned", {.owner = holder});
  EXPECT_EQ(GetRelatedWindow(desktop, owned, 2), 0);
}

TEST_F(WindowReaders, Related2IsNoneWithoutAnOwner) {
  const WindowHandle hwnd = desktop.Open("Alpha");
  const Calls calls = CallsOf([&] { EXPECT_EQ(GetRelatedWindow(desktop, hwnd, 2), 0); });
  EXPECT_EQ(calls, Calls{"GetWindow(Alpha, GW_OWNER)"});
}

TEST_F(WindowReaders, OtherRelationsAreNoneAndReadNothing) {
  const WindowHandle holder = desktop.Open("Holder");
  const WindowHandle owned = desktop.Open("Owned", {.owner = holder});
  for (const auto which : std::initializer_list<std::int16_t>{-1, 0, 3, 32767}) {
    const Calls calls = CallsOf([&] { EXPECT_EQ(GetRelatedWindow(desktop, owned, which), 0); });
    EXPECT_EQ(calls, Calls{});
  }
}

}  // namespace
}  // namespace korvale
