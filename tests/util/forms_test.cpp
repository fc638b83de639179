#include "util/forms.h"

#include <gtest/gtest.h>

#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace korvale {
namespace {

class FormsOfTest : public LoadedForms {
 public:
  explicit FormsOfTest(std::vector<LoadedForm> forms) : forms_(std::move(forms)) {}

  void ForEach(const std::function<void(std::string_view, WindowHandle)>& visit) const override {
    for (const LoadedForm& form : forms_) visit(form.name, form.handle);
  }

 private:
  std::vector<LoadedForm> forms_;
};

TEST(IsFormLoadedTest, FindsAFormIgnoringCase) {
  const FormsOfTest forms({{"frmMain", 1}, {"frmMsgBox2", 2}});
  EXPECT_TRUE(IsFormLoaded(forms, "FRMMSGBOX2"));
  EXPECT_TRUE(IsFormLoaded(forms, "frmmain", true));
}

TEST(IsFormLoadedTest, DoesNotFindOtherForms) {
  EXPECT_FALSE(IsFormLoaded(FormsOfTest({{"frmMain", 1}}), "frmMsgBox2"));
  EXPECT_FALSE(IsFormLoaded(FormsOfTest({}), "frmMain"));
}

TEST(FormHandleTest, IsTheWindowOfTheForm) {
  const FormsOfTest forms({{"frmMain", 1}, {"frmOptions", 7}});
  EXPECT_EQ(FormHandle(forms, "FrmOptions"), 7);
}

TEST(FormHandleTest, IsTheFirstOfTwoOfOneName) {
  EXPECT_EQ(FormHandle(FormsOfTest({{"frmMain", 3}, {"frmMain", 4}}), "frmMain"), 3);
}

TEST(LoadedFormsTest, AreListedInTheirOrder) {
  const std::vector<LoadedForm> list = FormsOfTest({{"frmMain", 3}, {"frmOptions", 4}}).List();
  ASSERT_EQ(list.size(), 2U);
  EXPECT_EQ(list[0].name, "frmMain");
  EXPECT_EQ(list[0].handle, 3);
  EXPECT_EQ(list[1].name, "frmOptions");
  EXPECT_EQ(list[1].handle, 4);
}

TEST(FormHandleTest, IsZeroForAFormThatIsNotLoaded) {
  EXPECT_EQ(FormHandle(FormsOfTest({{"frmMain", 1}}), "frmOptions"), 0);
}

}  // namespace
}  // namespace korvale
