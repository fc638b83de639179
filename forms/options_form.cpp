#include "forms/options_form.h"

#include "app/core/identity.h"
#include "app/core/stored_tags.h"
#include "forms/hot_key_lists.h"
#include "forms/options_design.h"
#include "platform/win32_constants.h"
#include "ui/form_collection.h"
#include "ui/readable_colors.h"

namespace korvale {
namespace {

constexpr std::string_view kLegend = "lblLegend";

/// Shows the hourglass for a scope.
class Hourglass {
 public:
  explicit Hourglass(OptionsDialogOwner& owner) : owner_(&owner) {
    owner.SetMousePointer(MousePointer::kHourglass);
  }
  ~Hourglass() { owner_->SetMousePointer(MousePointer::kDefault); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  OptionsDialogOwner* owner_;
};

/// What a screen reader calls the list of an operation's key. It does not see the label's colours.
std::string KeyListName(const OperationRow& row, bool enabled) {
  return enabled ? row.note : std::string(row.note) + "-- Hot Key is Disabled ";
}

}  // namespace

frmOptions::frmOptions(FormCollection& forms, OptionsDialogOwner& owner)
    : Form(OptionsDesign(), forms), owner_(&owner) {
  WhenClicked("cmdOK", [this](int) { cmdOK_Click(); });
  WhenClicked("cmdCancel", [this](int) { cmdCancel_Click(); });
  WhenClicked("cmdApply", [this](int) { cmdApply_Click(); });
  WhenClicked("cmdReset", [this](int) { cmdReset_Click(); });
  WhenClicked("tabOptions", [this](int) { tabOptions_Click(); });
  WhenClicked("chkHotKeyParent", [this](int) { HotKeyChanged(); });
  // A number alone is hard to hit.
  WhenClicked("lblTagParent", [this](int tag) {
    Find("chkHotKeyParent", tag).SetFocus();
    OnClick(Find("chkHotKeyParent", tag).Id());
  });
  for (const HotKeyControls& controls : kHotKeyControls) {
    WhenClicked(controls.key, [this](int) { HotKeyChanged(); });
  }
}

frmOptions::~frmOptions() = default;

void frmOptions::Form_Load() {
  loading_ = true;
  Control& tabs = Find("tabOptions");
  tabs.Clear();
  for (const OptionsPage& page : kOptionsPages) tabs.AddItem(page.title);
  FillHotKeyLists(*this);
  ShowPage(owner_->OptionsTab());
  loading_ = false;
}

void frmOptions::Form_Unload() { owner_->OptionsDialogClosed(); }

void frmOptions::tabOptions_Click() {
  const auto tab = static_cast<std::int16_t>(Find("tabOptions").ListIndex() + 1);
  ShowPage(tab);
  if (!loading_) owner_->SetOptionsTab(tab);
}

void frmOptions::ShowPage(std::int16_t tab) {
  const std::int16_t shown = tab >= kGeneralPage && tab <= kLastOptionsPage ? tab : kGeneralPage;
  // The new page comes first, so that the focus finds a place on it.
  Find("picOptions", shown).SetVisible(true);
  for (const OptionsPage& page : kOptionsPages) {
    Find("picOptions", page.number).SetVisible(page.number == shown);
  }
  Find("tabOptions").SetListIndex(shown - 1);
}

void frmOptions::cmdOK_Click() {
  if (!Validate()) return;
  Save();
  Unload();
}

void frmOptions::cmdCancel_Click() { Unload(); }

void frmOptions::cmdApply_Click() {
  if (Validate()) Save();
}

void frmOptions::Save() {
  const Hourglass hourglass(*owner_);
  owner_->udmOptions("UPDATE_OPTIONS");
  owner_->SaveOrTell();
  // The session may end while a message is shown.
  if (!IsLoaded()) return;
  if (!owner_->HotKeys().HotKeysActive()) {
    owner_->HotKeys().SetHotKeysActive(true);
    owner_->Messages().ShowMessageBox(
        "The hot keys are currently deactivated.  They will now be re-activated, for any changes "
        "(if any) made to the hot keys on the Hot Keys tab of the Options dialog box can take "
        "effect.",
        win32::kMbOk, std::string(kProductName) + " - Options (Save)");
    if (!IsLoaded()) return;
  }
  RegisterHotKeysAnew();
}

void frmOptions::cmdReset_Click() {
  const std::int16_t answer = owner_->Messages().ShowMessageBox(
      "Reset all Options to default ?\r\rThe default options will be Applied automatically.\r\r"
      "Note:  This operation will not effect any of the Settings changed from the View menu.",
      win32::kMbOkCancel, std::string(kProductName) + " - Options");
  if (answer != win32::kIdOk || !IsLoaded()) return;
  const Hourglass hourglass(*owner_);
  owner_->udmDeleteOptions();
  if (!IsLoaded()) return;
  owner_->udmLoadOptions();
  owner_->udmOptions("LOAD_AND_OR_REFRESH");
  // Active means that all hot keys are registered, as they are below.
  owner_->HotKeys().SetHotKeysActive(true);
  RegisterHotKeysAnew();
}

void frmOptions::RegisterHotKeysAnew() {
  owner_->HotKeys().SetHotKeys("REMOVE");
  owner_->HotKeys().SetHotKeys("SET");
  RefreshConflictLine();
}

void frmOptions::HotKeyChanged() {
  if (!loading_) udmRefreshHotKeyLabels();
}

void frmOptions::udmRefreshHotKeyLabels() {
  PaintLabel(kLegend, kEnabledLegend, true);
  PaintLabel(kLegend, kDisabledLegend, false);
  for (int tag = 0; tag <= kTagCount; ++tag) {
    PaintLabel("lblTagParent", tag, Find("chkHotKeyParent", tag).Value() == 1);
  }
  // A stored key that the list does not have stays registered, so its label stays enabled.
  for (const OperationRow& row : kOperations) {
    const auto [modifiers, stored] = OperationFields(shown_, row);
    const HotKeyControls& controls = ControlsOf(row);
    const bool enabled = Chosen(controls.key, row.index, stored) != 0;
    PaintLabel(controls.label, row.index, enabled);
    Find(controls.keyName, row.index).SetText(KeyListName(row, enabled));
  }
}

void frmOptions::PaintLabel(std::string_view label, int index, bool enabled) {
  const TextColors colors = enabled ? OnChosenColor(Collection().Screen(), colHotKeyEnabled_,
                                                    {kHighlightColor, kHighlightTextColor})
                                    : TextColors{kButtonFaceColor, kButtonTextColor};
  Control& control = Find(label, index);
  control.SetBackColor(colors.back);
  control.SetForeColor(colors.text);
  if (label != kLegend) control.SetBorder(enabled);
}

void frmOptions::RefreshConflictLine() {
  const std::vector<RegisteredHotKey>& wanted = owner_->HotKeys().LastSet();
  const std::string refused = NotAvailableText(wanted);
  const std::string doubles = ChosenTwiceText(wanted);
  std::string text;
  if (!refused.empty()) text = "Not available, in use by Windows or another program:  " + refused;
  if (!refused.empty() && !doubles.empty()) text += '\r';
  if (!doubles.empty()) text += "Chosen twice:  " + doubles;
  Control& line = Find("lblConflicts");
  line.SetText(text);
  line.SetVisible(!text.empty());
}

void frmOptions::Form_Activate() { keyListKeys_.Forget(); }

void frmOptions::Form_KeyDown(int& key, unsigned shift) {
  if (key == win32::kVkTab && (shift & ~kShift) == kCtrl) {
    key = 0;
    TurnPage((shift & kShift) != 0);
  } else if (key == 'C' && (shift & ~kShift) == kAlt &&
             Find("tabOptions").ListIndex() == kHotKeysPage - 1) {
    key = 0;
    if (!KeyRepeats()) PressLegend(shift & kShift);
  } else if (FocusedControl() != 0 && IsKeyList(ById(FocusedControl()))) {
    keyListKeys_.Down(ById(FocusedControl()), key, shift, KeyRepeats());
  }
}

void frmOptions::TurnPage(bool backwards) {
  Control& tabs = Find("tabOptions");
  constexpr int kPages = kLastOptionsPage;
  const int tab = (tabs.ListIndex() + (backwards ? kPages - 1 : 1)) % kPages;
  tabs.SetListIndex(tab);
  Find(kOptionsPages.at(static_cast<std::size_t>(tab)).firstControl).SetFocus();
}

void frmOptions::Form_KeyUp(Control* focused, int& key, unsigned shift) {
  if (focused != nullptr && IsKeyList(*focused)) keyListKeys_.Up(*focused, key, shift);
}

void frmOptions::Control_Mouse(Control& control, const MouseInput& input) {
  const bool legend = control.Name() == kLegend && control.Index() == kEnabledLegend;
  if (!legend || input.event != MouseEvent::kUp || input.button != MouseButton::kLeft) return;
  PressLegend(input.shift);
}

void frmOptions::PressLegend(unsigned shift) {
  if (shift == kShift) {
    SetEnabledColor(kDefaultHotKeyEnabledColor);
  } else if (shift == kNoShift) {
    const std::optional<Color> chosen = owner_->udmShowColorPalette(colHotKeyEnabled_);
    if (chosen) SetEnabledColor(*chosen);
  }
}

void frmOptions::Form_SysColorChange() { udmRefreshHotKeyLabels(); }

void frmOptions::SetEnabledColor(Color color) {
  colHotKeyEnabled_ = color;
  udmRefreshHotKeyLabels();
}

}  // namespace korvale
