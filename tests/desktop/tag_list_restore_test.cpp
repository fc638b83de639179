#include "desktop/tag_list_restore.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

class RestoredTagList : public DesktopCase {
 protected:
  std::vector<int> Entries() { return tags.mnuWindowParentList.Indexes(); }
};

TEST_F(RestoredTagList, HasTheStoredCaptionsAndClasses) {
  RestoreTagList(tags, {{"9", "&9  無題 - ***"}, {"2", "&2  A&B"}}, {{"2", "Notepad"}});
  ASSERT_EQ(Entries(), (std::vector<int>{0, 2, 9}));
  const MenuItem& second = *tags.mnuWindowParentList.Find(2);
  EXPECT_EQ(second.caption, "&2  A&B");
  EXPECT_EQ(second.tag, "0");
  EXPECT_TRUE(second.visible);
  EXPECT_EQ(tags.mnuWindowParentList.Find(9)->caption, "&9  無題 - ***");
  EXPECT_EQ(ClassOfTag(2), "Notepad");
  EXPECT_EQ(ClassOfTag(9), "");
}

TEST_F(RestoredTagList, ReplacesTheFormerOne) {
  AddTag(1, "Alpha", "Old").tag = "17";
  AddTag(2, "Beta", "Old").tag = "18";
  RestoreTagList(tags, {{"2", "&2  Gamma"}}, {});
  EXPECT_EQ(Entries(), (std::vector<int>{0, 2}));
  EXPECT_EQ(tags.mnuWindowParentList.Find(2)->caption, "&2  Gamma");
  EXPECT_EQ(HandleOfTag(2), 0);
  EXPECT_EQ(ClassOfTag(1), "");
  EXPECT_EQ(ClassOfTag(2), "");
}

TEST_F(RestoredTagList, LeavesOutKeysThatAreNoTag) {
  RestoreTagList(tags,
                 {{"0", "&0  x"}, {"10", "&1  x"}, {"-1", "&1  x"}, {"", "&1  x"}, {"a", "&a  x"}},
                 {{"0", "c"}, {"10", "c"}, {"a", "c"}});
  EXPECT_EQ(Entries(), std::vector<int>{0});
  EXPECT_EQ(tags.mnuWindowParentList.Find(0)->caption, "&0  Previous Window");
}

TEST_F(RestoredTagList, LeavesOutCaptionsOfAnotherForm) {
  RestoreTagList(tags, {{"1", "&2  x"}, {"2", "&2 x"}, {"3", "3  x"}, {"4", ""}, {"5", "&5"}}, {});
  EXPECT_EQ(Entries(), std::vector<int>{0});
}

TEST_F(RestoredTagList, LeavesOutAClassWithoutItsCaption) {
  RestoreTagList(tags, {{"1", "&1  x"}}, {{"1", "One"}, {"2", "Two"}});
  EXPECT_EQ(ClassOfTag(1), "One");
  EXPECT_EQ(ClassOfTag(2), "");
}

}  // namespace
}  // namespace korvale
