#include "forms/msg_tip_form.h"

#include "platform/win32_constants.h"

namespace korvale {
namespace {

using enum ControlKind;

constexpr Twips kWidth = 8400;
constexpr Twips kDesignHeight = 3400;

// Distances from the lower edge of the form, its frame included.
constexpr Twips kTextAboveBottom = 1800;
constexpr Twips kCheckBoxAboveBottom = 1275;
constexpr Twips kButtonAboveBottom = 795;

/// Gives a control its place among the windows; a screen reader reads the text first.
constexpr ControlRow InOrder(int tabIndex, ControlRow row) {
  row.tabIndex = tabIndex;
  return row;
}

constexpr ControlRow kTipControls[] = {
    InOrder(1, MakeRow(kCheckBox, "chkStopMsg", -1, "&In the future, do not show this message",
                       " Do not show this message again  (Alt+I) ",
                       {150, kDesignHeight - kCheckBoxAboveBottom, 5000, 270})),
    InOrder(2, MakeRow(kButton, "cmdOK", -1, "OK", " Close  (Enter) ",
                       {3540, kDesignHeight - kButtonAboveBottom, 1215, 345}, kDefaultButton)),
    InOrder(0, MakeRow(kLabel, "lblTip", -1, "*get what*", "",
                       {150, 150, 8010, kDesignHeight - kTextAboveBottom}, kWordWrap | kNoPrefix)),
};

constexpr FormDesign kMsgTipDesign = {.name = "frmMsgTip",
                                      .caption = "",
                                      .place = {0, 0, kWidth, kDesignHeight},
                                      .controls = kTipControls};

constexpr bool ClosesTip(int key, unsigned shift) {
  return (key == win32::kVkEscape && shift == kNoShift) || (key == win32::kVkF4 && shift == kAlt);
}

}  // namespace

const FormDesign& MsgTipDesign() { return kMsgTipDesign; }

frmMsgTip::frmMsgTip(FormCollection& forms) : Form(kMsgTipDesign, forms) {
  WhenClicked("cmdOK", [this](int) { cmdOK_Click(); });
}

frmMsgTip::~frmMsgTip() = default;

void frmMsgTip::Form_Load() { SetTag(""); }

void frmMsgTip::Prepare(std::string_view caption, std::string_view text, Twips height) {
  SetCaption(caption);
  Find("lblTip").SetText(text);
  TwipsRect place = Place();
  place.height = height;
  SetPlace(place);
  Find("lblTip").SetHeight(height - kTextAboveBottom);
  Find("chkStopMsg").SetTop(height - kCheckBoxAboveBottom);
  Find("cmdOK").SetTop(height - kButtonAboveBottom);
}

void frmMsgTip::cmdOK_Click() { Unload(); }

void frmMsgTip::Form_KeyDown(int& key, unsigned shift) {
  if (!ClosesTip(key, shift)) return;
  key = 0;
  cmdOK_Click();
}

void frmMsgTip::Form_QueryUnload(bool& /*cancel*/, CloseReason reason) {
  // The close box does what cmdOK does; when the session ends nobody has answered.
  if (reason != CloseReason::kSession) KeepResult();
}

void frmMsgTip::KeepResult() { SetTag(Find("chkStopMsg").Value() == 1 ? kNoShow : ""); }

}  // namespace korvale
