#include "desktop/tag_list_storage.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

class StoredTagListTest : public DesktopCase {
 protected:
  std::vector<int> Entries() { return tags.mnuWindowParentList.Indexes(); }
};

TEST_F(StoredTagListTest, HasTheStoredCaptionsAndClasses) {
  RestoreTagList(tags, {{2, "&2  A&B", "Notepad"}, {9, "&9  無題 - ***", ""}});
  ASSERT_EQ(Entries(), (std::vector<int>{0, 2, 9}));
  const MenuItem& second = *tags.mnuWindowParentList.Find(2);
  EXPECT_EQ(second.caption, "&2  A&B");
  EXPECT_EQ(second.tag, "0");
  EXPECT_TRUE(second.visible);
  EXPECT_EQ(tags.mnuWindowParentList.Find(9)->caption, "&9  無題 - ***");
  EXPECT_EQ(ClassOfTag(2), "Notepad");
  EXPECT_EQ(ClassOfTag(9), "");
}

TEST_F(StoredTagListTest, ReplacesTheFormerOne) {
  AddTag(1, "Alpha", "Old").tag = "17";
  AddTag(2, "Beta", "Old").tag = "18";
  RestoreTagList(tags, {{2, "&2  Gamma", ""}});
  EXPECT_EQ(Entries(), (std::vector<int>{0, 2}));
  EXPECT_EQ(tags.mnuWindowParentList.Find(2)->caption, "&2  Gamma");
  EXPECT_EQ(HandleOfTag(2), 0);
  EXPECT_EQ(ClassOfTag(1), "");
  EXPECT_EQ(ClassOfTag(2), "");
}

TEST_F(StoredTagListTest, IsStoredAsTheCaptionsAndClassesOfItsEntries) {
  AddTag(9, "無題 - ***", "").tag = "17";
  AddTag(2, "A&B", "Notepad");
  EXPECT_EQ(TagsToStore(tags),
            (StoredTagList{{2, "&2  A&B", "Notepad"}, {9, "&9  無題 - ***", ""}}));
  EXPECT_EQ(Entries(), (std::vector<int>{0, 2, 9}));
}

TEST_F(StoredTagListTest, IsStoredAsNothingWhenThereIsNoTag) {
  EXPECT_TRUE(TagsToStore(tags).empty());
}

}  // namespace
}  // namespace korvale
