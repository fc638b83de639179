#include <atomic>
#include <cstddef>

#include "tests/program/korvale_world.h"

#if !defined(_MSC_VER)
/// Only there in a build with a sanitizer.
extern "C" [[gnu::weak]] int __sanitizer_install_malloc_and_free_hooks(
    void (*malloc_hook)(const volatile void*, std::size_t),
    void (*free_hook)(const volatile void*));
#endif

namespace korvale {
namespace {

std::atomic<int> allocations = 0;

void NoteAllocation(const volatile void* /*block*/, std::size_t /*size*/) { ++allocations; }
void NoteRelease(const volatile void* /*block*/) {}

/// The hooks cannot be taken away again.
bool CountsAllocations() {
#if defined(_MSC_VER)
  return false;
#else
  static const bool counts =
      __sanitizer_install_malloc_and_free_hooks != nullptr &&
      __sanitizer_install_malloc_and_free_hooks(NoteAllocation, NoteRelease) != 0;
  return counts;
#endif
}

class AllocationsTest : public KorvaleWorld {
 protected:
  void SetUp() override {
    if (!CountsAllocations()) GTEST_SKIP() << "this build cannot count allocations";
  }
};

class RefreshAllocationsTest : public AllocationsTest {
 protected:
  int OfARefresh() {
    WindowEnumeration& enumeration = korvale.Form().Parts().desktop.enumeration;
    const int before = allocations;
    enumeration.RefreshTags(1);
    return allocations - before;
  }

  void OpenHundred(const NewWindow& options) {
    const std::string longTitle(200, 'x');
    for (int i = 0; i < 100; ++i) desktop.Open(longTitle, options);
  }

  KorvaleCopy& korvale = StartedCopy();
};

TEST_F(RefreshAllocationsTest, AreAsManyForAnyNumberOfWindows) {
  AddTagEntry(korvale.Tags(), 1, "&1  Gone");
  AddTagEntry(korvale.Tags(), 2, "&2  *** - Nowhere");
  const int ofFewWindows = OfARefresh();
  OpenHundred({.activate = false});
  OpenHundred({.visible = false});
  OpenHundred({.className = std::string(200, 'c'), .activate = false});
  EXPECT_EQ(OfARefresh(), ofFewWindows);
  constexpr int kTagsAndTheList = 16;
  EXPECT_LE(ofFewWindows, kTagsAndTheList);
}

class TickAllocationsTest : public AllocationsTest {
 protected:
  void SetUp() override {
    AllocationsTest::SetUp();
    if (IsSkipped()) return;
    WorkIn(alpha);
    WorkIn(beta);
  }

  void ExpectNoneInATick() {
    const int timer = korvale.Id(korvale.Form(), "tmrWindow");
    const int before = allocations;
    for (int tick = 0; tick < 10; ++tick) korvale.Form().OnTimer(timer);
    EXPECT_EQ(allocations - before, 0);
  }

  const WindowHandle alpha = Open("Alpha");
  const WindowHandle beta = Open("Beta");
  KorvaleCopy& korvale = StartedCopy();
};

TEST_F(TickAllocationsTest, ThereAreNoneWhenNothingHasChanged) {
  ExpectNoneInATick();
  const int before = allocations;
  const std::vector<int> block(1000);
  EXPECT_GT(allocations - before, 0) << "the count works";
}

TEST_F(TickAllocationsTest, ThereAreNoneWhileATitleChanges) {
  desktop.CountReadings(beta);
  ExpectNoneInATick();
}

TEST_F(TickAllocationsTest, ThereAreNoneInTheMainWindow) {
  WorkIn(korvale.Handle());
  ExpectNoneInATick();
}

TEST_F(TickAllocationsTest, ThereAreNoneOverTheBareDesktop) {
  WorkIn(desktop.FindWindowA("Program Manager"));
  ExpectNoneInATick();
}

TEST_F(TickAllocationsTest, ThereAreNoneOverAToolWindow) {
  WorkIn(desktop.Open("Tool", {.exStyle = win32::kWsExToolWindow}));
  ExpectNoneInATick();
}

TEST_F(TickAllocationsTest, ThereAreNoneOverADialogThatIsNotFollowed) {
  WorkIn(desktop.OpenModalDialog(beta, "Save As"));
  ExpectNoneInATick();
  WorkIn(desktop.Open("Find", {.owner = alpha, .style = win32::kDsModalFrame}));
  ExpectNoneInATick();
}

}  // namespace
}  // namespace korvale
