#include <algorithm>

#include "tests/ui/form_test.h"

namespace korvale {
namespace {

using FormPlaceTest = FormTest;

TEST_F(FormPlaceTest, TheWindowGrowsWithAFrameHigherAndWiderThanTheClassicOne) {
  host_.SetFrame({60, 500, 120, 560}, 285);
  RecordingForm dialog(DialogDesign("frmDialog"), forms_);
  dialog.Load();
  EXPECT_EQ(user_.Place(dialog.Handle()), (TwipsRect{2100, 2100, 3030, 1660}));
  EXPECT_EQ(dialog.Place(), (TwipsRect{2100, 2100, 3000, 1500}));
  dialog.SetPlace({0, 0, 4000, 2000});
  EXPECT_EQ(user_.Place(dialog.Handle()), (TwipsRect{0, 0, 4030, 2160}));
}

TEST_F(FormPlaceTest, AFormWithoutFrameOrWithAnExactHeightDoesNotGrow) {
  host_.SetFrame({60, 500, 120, 560}, 285);
  FormDesign bare = Bare("frmBare");
  bare.border = BorderStyle::kNone;
  RecordingForm frameless(bare, forms_);
  frameless.Load();
  EXPECT_EQ(user_.Place(frameless.Handle()), bare.place);
  RecordingForm strip(kStripDesign, forms_);
  strip.Load();
  EXPECT_EQ(user_.Place(strip.Handle()), kStripDesign.place);
}

TEST_F(FormPlaceTest, HidingTheMenuTakesItsHeightFromAFormThatGrewWithIt) {
  form_.Show();
  const Twips height = user_.Place(form_.Handle()).height;
  form_.SetMenuShown(false);
  EXPECT_EQ(user_.Place(form_.Handle()).height, height - 300);
  form_.SetMenuShown(true);
  EXPECT_EQ(user_.Place(form_.Handle()).height, height);
  log_.Clear();
  form_.SetMenuShown(true);
  EXPECT_EQ(log_.Calls(), Lines{});
}

TEST_F(FormPlaceTest, AResizeIsRaisedWhenFirstShownAndWhenTheSizeChanges) {
  form_.Load();
  form_.OnPlaced(ShowState::kNormal, {0, 0, 4500, 3000});
  EXPECT_EQ(form_.resizes, 0);
  EXPECT_EQ(form_.State().place, (TwipsRect{0, 0, 4500, 3000}));
  form_.Show();
  EXPECT_EQ(form_.resizes, 1);
  form_.Show();
  EXPECT_EQ(form_.resizes, 1);
  TwipsRect place = form_.Place();
  place.left += 150;
  form_.SetPlace(place);
  EXPECT_EQ(form_.resizes, 1);
  place.width += 150;
  form_.SetPlace(place);
  EXPECT_EQ(form_.resizes, 2);
  form_.SetPlace(place);
  EXPECT_EQ(form_.resizes, 2);
}

TEST_F(FormPlaceTest, AMinimizedFormKeepsItsPlaceAndCannotBeMoved) {
  form_.Show();
  form_.SetWindowState(ShowState::kMinimized);
  EXPECT_EQ(form_.WindowState(), ShowState::kMinimized);
  form_.SetPlace({0, 0, 300, 300});
  EXPECT_EQ(form_.Place(), kContractDesign.place);
  form_.SetMenuShown(false);
  EXPECT_EQ(form_.Place(), kContractDesign.place);
  form_.SetWindowState(ShowState::kMaximized);
  EXPECT_EQ(form_.WindowState(), ShowState::kMaximized);
  EXPECT_EQ(form_.State().place, (TwipsRect{0, 0, 15360, 11100}));
}

TEST_F(FormPlaceTest, TheIconOfAMinimizedFormIsNotItsPlace) {
  form_.Show();
  form_.OnPlaced(ShowState::kMinimized, {-480000, -480000, 2400, 420});
  EXPECT_EQ(form_.Place(), kContractDesign.place);
  EXPECT_EQ(form_.WindowState(), ShowState::kMinimized);
}

TEST_F(FormPlaceTest, WhatTheUserDragsCountsTheClassicFrameToo) {
  host_.SetFrame({60, 500, 120, 560}, 285);
  FormDesign sizable = Bare("frmSizable");
  sizable.border = BorderStyle::kSizable;
  RecordingForm form(sizable, forms_);
  form.Show();
  user_.Drag(form.Handle(), {300, 300, 4530, 2160});
  EXPECT_EQ(form.Place(), (TwipsRect{300, 300, 4500, 2000}));
  EXPECT_EQ(form.resizes, 2);
  user_.Drag(form.Handle(), {600, 600, 4530, 2160});
  EXPECT_EQ(form.Place(), (TwipsRect{600, 600, 4500, 2000}));
  EXPECT_EQ(form.resizes, 2);
}

TEST_F(FormPlaceTest, ADragToTheSideMovesAndOneOfAnEdgeSizes) {
  FormDesign sizable = Bare("frmSizable");
  sizable.border = BorderStyle::kSizable;
  RecordingForm form(sizable, forms_);
  form.Show();
  TwipsRect place = form.Place();
  const int moves = form.moves;
  const int resizes = form.resizes;
  place.left += 300;
  user_.Drag(form.Handle(), place);
  EXPECT_EQ(form.moves, moves + 1);
  EXPECT_EQ(form.resizes, resizes);
  place.width += 300;
  user_.Drag(form.Handle(), place);
  EXPECT_EQ(form.moves, moves + 1);
  EXPECT_EQ(form.resizes, resizes + 1);
}

TEST_F(FormPlaceTest, AStateSetBeforeShowingHoldsWhenShown) {
  form_.Load();
  form_.SetWindowState(ShowState::kMinimized);
  EXPECT_FALSE(user_.IsShown(form_.Handle()));
  form_.Show();
  EXPECT_EQ(log_.Calls().back(), "ShowWindow(frmContract, SW_SHOWMINNOACTIVE)");
  EXPECT_EQ(form_.activations, 0);
  RecordingForm other(DialogDesign("frmOther"), forms_);
  other.Load();
  other.SetWindowState(ShowState::kMaximized);
  other.Show();
  EXPECT_EQ(log_.Calls().back(), "ShowWindow(frmOther, SW_MAXIMIZE)");
}

TEST_F(FormPlaceTest, AFormThatIsInItsStateAlreadyIsNotActivatedByIt) {
  form_.Show();
  log_.Clear();
  form_.SetWindowState(ShowState::kNormal);
  EXPECT_EQ(log_.Calls(), Lines{});
}

TEST_F(FormPlaceTest, OnlyAMaximizedFormTakesANewLimitOfItsHeightAtOnce) {
  RecordingForm form(kStripDesign, forms_);
  form.Show();
  const TwipsRect before = user_.Place(form.Handle());
  form.SetSizeLimits({.height = before.height + 300});
  EXPECT_EQ(user_.Place(form.Handle()), before);
  form.SetWindowState(ShowState::kMaximized);
  form.SetSizeLimits({.height = before.height + 600});
  EXPECT_EQ(user_.Place(form.Handle()).height, before.height + 600);
}

TEST_F(FormPlaceTest, AMaximizedFormThatGrewWithItsFrameCountsItsHeightWithoutThat) {
  host_.SetFrame({60, 500, 120, 560}, 285);
  form_.Show();
  form_.SetWindowState(ShowState::kMaximized);
  form_.SetSizeLimits({.height = 3000});
  EXPECT_EQ(user_.Place(form_.Handle()).height, 3000);
  // The frame is 160 higher than the classic one, and the menu bar comes with it.
  EXPECT_EQ(form_.Place().height, 3000 - 160 - 285);
}

TEST_F(FormPlaceTest, AFormThatNobodySeesTakesItsLimitsWhenShown) {
  RecordingForm form(kStripDesign, forms_);
  form.Load();
  form.SetWindowState(ShowState::kMaximized);
  log_.Clear();
  form.SetSizeLimits({.height = 900});
  EXPECT_EQ(log_.Calls(), Lines{});
  form.Show();
  EXPECT_EQ(user_.Place(form.Handle()).height, 900);
}

TEST_F(FormPlaceTest, AFormThatInsistsOnARefusedPlaceAsksForItTwice) {
  RecordingForm form(kStripDesign, forms_);
  form.Load();
  form.SetSizeLimits({.minimumWidth = 3000});
  form.onResize = [&] { form.SetPlace({0, 0, 2000, 1500}); };
  form.Show();
  EXPECT_EQ(user_.Place(form.Handle()), (TwipsRect{0, 0, 3000, 1500}));
  for (int told = 0; told < 3; ++told) form.OnPlaced(ShowState::kNormal, {0, 0, 3000, 1500});
  EXPECT_EQ(std::ranges::count(log_.Calls(), "MoveWindow(frmStrip)"), 2);
}

}  // namespace
}  // namespace korvale
