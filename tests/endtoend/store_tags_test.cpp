#include <cstdint>

#include "tests/endtoend/store_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";

class StoredTags : public StoreTest {
 protected:
  Pairs Captions() const { return settings().Section("ParentWindowList"); }
  Pairs Classes() const { return settings().Section("ParentWindowClass"); }
};

TEST_F(StoredTags, AreKeptAsTheUserMadeThem) {
  Start();
  const Window alpha = WorkInNew("Alpha & Sons");
  const AddWindowDialog dialog = OpenAddWindow();
  ASSERT_TRUE(dialog.SelectTag(3));
  ASSERT_TRUE(dialog.Confirm());
  ASSERT_TRUE(InFront(main()));
  ASSERT_TRUE(Exit());
  EXPECT_EQ(Captions(), (Pairs{{"3", "&3  Alpha & Sons"}}));
  EXPECT_EQ(Classes(), (Pairs{{"3", kClass}}));
  ASSERT_TRUE(StartAgain());
  ASSERT_TRUE(WorkIn(Open("Beta")));
  Press(TagKey(3));
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(StoredTags, HaveAClassOnlyWhenItIsKnown) {
  installation_.StoreTag(2, "Never seen", "");
  installation_.StoreTag(4, "Seen once", kClass);
  Start();
  ASSERT_TRUE(Exit());
  EXPECT_EQ(Captions(), (Pairs{{"2", "&2  Never seen"}, {"4", "&4  Seen once"}}));
  EXPECT_EQ(Classes(), (Pairs{{"4", kClass}}));
}

TEST_F(StoredTags, LearnTheirClassFromTheWindowThatTheySelect) {
  installation_.StoreTag(2, "Alpha", "");
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  Press(TagKey(2));
  ASSERT_TRUE(InFront(alpha));
  ASSERT_TRUE(Exit());
  EXPECT_EQ(Classes(), (Pairs{{"2", kClass}}));
}

TEST_F(StoredTags, AreNotWrittenAgainByTheirKeysUntilSomethingChanges) {
  installation_.StoreTag(1, "Alpha", kClass);
  installation_.StoreTag(2, "Beta", kClass);
  Start();
  const Window alpha = Open("Alpha");
  const Window beta = Open("Beta");
  ASSERT_TRUE(WorkIn(beta));
  const std::uint64_t before = settings().LastWritten();
  ASSERT_NE(before, 0U);
  for (int press = 0; press < 3; ++press) {
    Press(TagKey(1));
    ASSERT_TRUE(InFront(alpha));
    Press(TagKey(2));
    ASSERT_TRUE(InFront(beta));
    Press(TagKey(0));
    ASSERT_TRUE(InFront(alpha));
  }
  EXPECT_EQ(settings().LastWritten(), before);
  SetWindowPos(main().handle(), nullptr, 150, 210, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  Press(TagKey(2));
  ASSERT_TRUE(InFront(beta));
  EXPECT_TRUE(WaitFor([&] { return settings().LastWritten() > before; }));
}

TEST_F(StoredTags, ComeOnlyFromTheNumbersOneToNine) {
  for (const char* const key : {"0", "10", "x", "01", " 1"}) {
    settings().Set("ParentWindowList", key, std::string("&").append(key) + "  Alpha");
    settings().Set("ParentWindowClass", key, kClass);
  }
  installation_.StoreTag(8, "Beta", kClass);
  Start();
  ASSERT_TRUE(Exit());
  EXPECT_EQ(Captions(), (Pairs{{"8", "&8  Beta"}}));
  EXPECT_EQ(Classes(), (Pairs{{"8", kClass}}));
}

TEST_F(StoredTags, ComeOnlyFromCaptionsWithTheirOwnNumber) {
  const Pairs wrong = {{"1", ""},   {"2", "Alpha"},    {"3", "&4  Alpha"}, {"4", "&4 Alpha"},
                       {"5", "&5"}, {"6", "6  Alpha"}, {"7", " &7  Alpha"}};
  for (const auto& [key, caption] : wrong) settings().Set("ParentWindowList", key, caption);
  for (const auto& [key, caption] : wrong) settings().Set("ParentWindowClass", key, kClass);
  settings().SetNumber("ParentWindowList", "8", 8);
  installation_.StoreTag(9, "Beta", kClass);
  Start();
  ASSERT_TRUE(Exit());
  EXPECT_EQ(Captions(), (Pairs{{"9", "&9  Beta"}}));
  EXPECT_EQ(Classes(), (Pairs{{"9", kClass}}));
}

}  // namespace
}  // namespace korvale::endtoend
