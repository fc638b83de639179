#include "forms/about_form.h"

#include <utility>

#include "app/core/form_names.h"
#include "platform/win32_constants.h"
#include "ui/form_collection.h"
#include "ui/readable_colors.h"

namespace korvale {
namespace {

using enum ControlKind;

constexpr const char* kSplashMode = "S";
constexpr const char* kDialogMode = "";

constexpr std::uint32_t kSplashMilliseconds = 2000;
constexpr std::uint32_t kDialogMilliseconds = 15000;

constexpr Color kLinkColor = 0x00CC6600;

constexpr ControlRow Label(const char* name, const char* toolTip, Twips top, unsigned flags) {
  return MakeRow(kLabel, name, -1, "", toolTip, {1080, top, 4260, 255}, flags | kNoPrefix);
}

constexpr ControlRow LinkLabel() {
  ControlRow row = Label("lblWebSite", " opens the web site in your browser  (Click) ", 1590,
                         kClickable | kHidden);
  row.foreColor = kLinkColor;
  return row;
}

constexpr ControlRow kAboutControls[] = {
    // Nobody sees the caption of a picture; screen readers say it.
    {kImage, "imaProduct", -1, "Icon of Korvale", "", {240, 300, 600, 600}},
    Label("lblProduct", "", 300, kNoFlags),
    Label("lblFileDescription", "", 660, kNoFlags),
    Label("lblCopyright", "", 1125, kNoFlags),
    LinkLabel(),
    MakeRow(kButton, "cmdOK", -1, "OK", " Close  (Enter) ", {2138, 2130, 1215, 345},
            kDefaultButton),
    MakeRow(kTimer, "tmrUnload", -1, "", "", {}, kDisabled),
};

constexpr FormDesign kAboutDesign = {
    .name = kAboutForm, .caption = "", .place = {0, 0, 5580, 3030}, .controls = kAboutControls};

}  // namespace

frmMsgBox2::frmMsgBox2(FormCollection& forms, Clock& clock, const ProgramIdentity& identity)
    : Form(kAboutDesign, forms), clock_(&clock), identity_(&identity) {
  WhenClicked("cmdOK", [this](int) { CloseAbout(); });
  WhenClicked("tmrUnload", [this](int) { CloseAbout(); });
  WhenClicked("lblWebSite", [this](int) {
    if (openWebSite_) openWebSite_();
  });
}

frmMsgBox2::~frmMsgBox2() = default;

void frmMsgBox2::SetWebSite(std::string address, std::function<void()> open) {
  webSite_ = std::move(address);
  openWebSite_ = std::move(open);
}

void frmMsgBox2::ShowAbout(Form& owner, FormDisplay& display) {
  Prepare(kDialogMode);
  display.ShowFormNonModal(*this, {}, &owner);
}

void frmMsgBox2::ShowSplash(FormDisplay& display) {
  Prepare(kSplashMode);
  display.ShowFormNonModal(*this, {.takeForeground = 0}, nullptr);
}

void frmMsgBox2::Prepare(std::string_view mode) {
  Load();
  const bool splash = mode == kSplashMode;
  SetTag(mode);
  SetCaption(splash ? "Korvale" : "About Korvale");
  Find("lblProduct").SetText(std::string(kProductName) + " " + identity_->versionText);
  Find("lblFileDescription").SetText(identity_->fileDescription);
  Find("lblCopyright").SetText(identity_->legalNotice);
  Find("lblWebSite").SetText(webSite_);
  Find("lblWebSite").SetVisible(!webSite_.empty());
  PaintLink();
  Find("cmdOK").SetVisible(!splash);
  Control& tmrUnload = Find("tmrUnload");
  tmrUnload.SetInterval(splash ? kSplashMilliseconds : kDialogMilliseconds);
  tmrUnload.SetEnabled(true);
}

void frmMsgBox2::PaintLink() {
  Find("lblWebSite")
      .SetForeColor(
          LinkTextColor(Collection().Screen(), kLinkColor, {kButtonFaceColor, kButtonTextColor}));
}

void frmMsgBox2::Form_SysColorChange() { PaintLink(); }

void frmMsgBox2::Form_KeyDown(int& key, unsigned shift) {
  const bool escape = key == win32::kVkEscape && Find("tmrUnload").Enabled();
  if (!escape && !(key == win32::kVkF4 && shift == kAlt)) return StayAnew();
  key = 0;
  CloseAbout();
}

void frmMsgBox2::StayAnew() {
  Control& tmrUnload = Find("tmrUnload");
  if (!tmrUnload.Enabled()) return;
  tmrUnload.SetEnabled(false);
  tmrUnload.SetEnabled(true);
}

void frmMsgBox2::Form_Unload() { aboutClosed_ = clock_->GetTickCount64(); }

}  // namespace korvale
