#include "ui/spoken_name.h"

#include <gtest/gtest.h>

namespace korvale {
namespace {

ControlState Text(const char* text) {
  ControlState label;
  label.text = text;
  return label;
}

FormState Saying(FormRole role, const char* caption) {
  FormState form;
  form.role = role;
  form.caption = caption;
  form.controls = {Text("One"), Text(""), Text("Two"), Text("hidden")};
  form.controls[3].visible = false;
  return form;
}

TEST(SpokenNameTest, AnAlertIsReadWithItsTexts) {
  EXPECT_EQ(SpokenName(Saying(FormRole::kAlert, "Korvale")), "Korvale: One: Two");
  EXPECT_EQ(SpokenName(Saying(FormRole::kAlert, "")), "One: Two");
}

TEST(SpokenNameTest, ADialogIsCalledByItsCaptionOrElseByItsTexts) {
  EXPECT_EQ(SpokenName(Saying(FormRole::kDialog, "Options")), "Options");
  EXPECT_EQ(SpokenName(Saying(FormRole::kDialog, "")), "One: Two");
}

}  // namespace
}  // namespace korvale
