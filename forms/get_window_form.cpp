#include "forms/get_window_form.h"

#include <utility>

#include "app/core/identity.h"
#include "app/core/stored_tags.h"
#include "desktop/title_match.h"
#include "desktop/window_readers.h"
#include "forms/get_window_design.h"
#include "platform/win32_constants.h"
#include "ui/form_collection.h"
#include "ui/readable_colors.h"
#include "ui/shortened_text.h"
#include "util/text.h"

namespace korvale {
namespace {

// What the option buttons offer.
constexpr int kTitle = 0;
constexpr int kLeftPart = 1;
constexpr int kRightPart = 2;

constexpr Color kRed = 255;
constexpr Color kBlue = 0xC00000;

constexpr Twips kDroppedWidth = 4785;
constexpr Twips kHeightWithoutChildSection = 3465;
constexpr Twips kButtonTopWithoutChildSection = 2700;

// What the label and the option buttons have room for, in columns.
constexpr int kLabelColumns = 50;
constexpr int kChoiceColumns = 72;

/// How the list shows a Tag: its caption without the mark of the access key.
std::string ListText(int tag, std::string_view identification) {
  return TagCaption(tag, identification).substr(1);
}

/// What a Tag of the list stands for, "" when it is free.
std::string AssignedText(std::string_view item) {
  return WithoutTagPrefix("&" + std::string(item));
}

std::string ShownChoice(int index, const std::string& identification) {
  const std::string line = OnOneLine(identification);
  if (index != kLeftPart) return ShortenedText(line, kChoiceColumns);
  const std::string_view left =
      std::string_view(line).substr(0, line.size() - kLeftPartMark.size());
  return ShortenedText(left, kChoiceColumns, kLeftPartMark);
}

}  // namespace

frmGetWindow::frmGetWindow(FormCollection& forms, AddWindowContext context)
    : Form(GetWindowDesign(), forms), context_(context) {
  WhenClicked("cmdOK", [this](int) { cmdOK_Click(); });
  WhenClicked("cmdClose", [this](int) { cmdClose_Click(); });
  WhenClicked("cmdRemove", [this](int) { cmdRemove_Click(); });
  WhenClicked("cboWindow", [this](int) { cboWindow_Click(); });
  WhenClicked("txtWindow", [this](int) { SetChoice(kTitle, Find("txtWindow").Text()); });
  WhenDroppedDown("cboWindow", [this](int) { cboWindow_DropDown(); });
  // A list that is closed without a choice must not stay wide with Remove disabled.
  WhenClosedUp("cboWindow", [this](int) { cboWindow_CloseUp(); });
}

frmGetWindow::~frmGetWindow() = default;

void frmGetWindow::PrepareForWindowMenu() {
  SetCaption(std::string(kProductName) + " - Add Window");
  for (const char* const name : {"lblChildWindow", "Line3", "chkChildWindow", "cboChildWindow"}) {
    Find(name).SetVisible(false);
  }
  Find("lblIdentifyWindow").SetText("Identify &Window");
  TwipsRect place = Place();
  place.height = kHeightWithoutChildSection;
  SetPlace(place);
  Find("cmdOK").SetTop(kButtonTopWithoutChildSection);
  Find("cmdClose").SetTop(kButtonTopWithoutChildSection);
}

void frmGetWindow::Form_Load() {
  activatedBefore_ = false;
  designWidthOfTags_ = Find("cboWindow").Place().width;
  FillTags();
  SelectLowestFreeTag();
  ShowTagState();
  switch (std::exchange(context_.mode, AddWindowMode::kNone)) {
    case AddWindowMode::kPreviousWindow:
      LoadPreviousWindow();
      break;
    case AddWindowMode::kThisWindow:
    case AddWindowMode::kNone:
      LoadThisWindow();
      break;
  }
  Find("optWindow", kTitle).SetValue(1);
}

void frmGetWindow::FillTags() {
  Control& tags = Find("cboWindow");
  for (int tag = 1; tag <= kTagCount; ++tag) tags.AddItem(DecimalText(tag), tag);
  context_.tags.mnuWindowParentList.ForEach([&](const MenuItem& entry) {
    if (!IsTag(entry.index)) return;
    std::string text = OnOneLine(IdentificationText(entry));
    if (Trim(text).empty()) text = kUntitled;
    tags.SetItemText(entry.index - 1, ListText(entry.index, text));
  });
}

void frmGetWindow::SelectLowestFreeTag() {
  Control& tags = Find("cboWindow");
  int lowest = 0;
  for (int i = kTagCount - 1; i >= 0; --i) {
    if (AssignedText(tags.Items()[static_cast<std::size_t>(i)].text).empty()) lowest = i;
  }
  tags.SetListIndex(lowest);
}

void frmGetWindow::ShowTagState() {
  const std::string text = AssignedText(Find("cboWindow").SelectedText());
  Control& lblWindow = Find("lblWindow");
  lblWindow.SetText(text.empty() ? "Available" : ShortenedText(text, kLabelColumns));
  lblWindow.SetForeColor(MarkedTextColor(Collection().Screen(), text.empty() ? kBlue : kRed,
                                         {kButtonFaceColor, kButtonTextColor}));
  Find("cmdRemove").SetEnabled(!text.empty());
}

void frmGetWindow::LoadPreviousWindow() {
  SetTag("PREVIOUS_WINDOW");
  const WindowTriple& previous = context_.previous.current;
  window_ = previous.handle;
  windowClass_ = previous.className;
  Find("txtWindow").SetText(previous.text);
  Find("txtWindowClass").SetText(previous.className);
  SetChoice(kTitle, previous.text);
  if (previous.text.empty()) {
    HideParts();
  } else {
    OfferParts(previous.text);
  }
}

void frmGetWindow::LoadThisWindow() {
  SetTag("THIS_WINDOW");
  window_ = context_.mainWindow.MainHandle();
  windowClass_ = GetWindowClass(context_.windows, window_);
  const std::string title = context_.mainWindow.MainCaption();
  Find("txtWindow").SetText(title);
  Find("txtWindowClass").SetText(windowClass_);
  SetChoice(kTitle, title);
  HideParts();
}

void frmGetWindow::OfferParts(const std::string& title) {
  SetChoice(kLeftPart, std::string(LeftTitlePart(title)).append(kLeftPartMark));
  SetChoice(kRightPart, std::string(kRightPartMark).append(RightTitlePart(title)));
  // A caption loses the blanks at its ends; without them, some parts would not find their window.
  for (const int part : {kLeftPart, kRightPart}) {
    const std::string caption = TagCaption(1, choices_[static_cast<std::size_t>(part)]);
    Find("optWindow", part).SetVisible(TitleMatches(caption, title, true));
  }
}

void frmGetWindow::HideParts() {
  Find("optWindow", kLeftPart).SetVisible(false);
  Find("optWindow", kRightPart).SetVisible(false);
}

void frmGetWindow::SetChoice(int index, std::string identification) {
  Find("optWindow", index).SetText(ShownChoice(index, identification));
  choices_[static_cast<std::size_t>(index)] = std::move(identification);
}

std::string frmGetWindow::ChosenIdentification() const {
  for (std::size_t i = 0; i < choices_.size(); ++i) {
    if (Find("optWindow", static_cast<int>(i)).Value() == 1) return choices_[i];
  }
  return choices_.front();
}

void frmGetWindow::cmdOK_Click() {
  SetChoice(kTitle, Find("txtWindow").Text());
  const Control& tags = Find("cboWindow");
  if (tags.ListIndex() < 0) return;
  const int tag = tags.SelectedItemData();
  RemoveEntry(tag);
  const bool ofChild = Find("chkChildWindow").Value() == 1;
  AddEntry(tag, (ofChild ? ListText : TagCaption)(tag, ChosenIdentification()));
  cmdClose_Click();
}

void frmGetWindow::AddEntry(int tag, const std::string& caption) {
  MenuItem& entry = AddTagEntry(context_.tags, tag, caption);
  // Deliberately, only a window with a child window is stored with its handle and class.
  const bool hasChild = GetRelatedWindow(context_.windows, window_, 1) != 0;
  // Another window may have got the handle while the dialog was open.
  const bool known = hasChild && StillExists(context_.windows, {window_, windowClass_});
  entry.tag = known ? DecimalText(window_) : "0";
  TagClass(context_.tags, entry) = known ? windowClass_ : "";
}

void frmGetWindow::RemoveEntry(int tag) {
  const MenuItemArray& entries = context_.tags.mnuWindowParentList;
  if (entries.Find(tag) != nullptr) entries.Unload(tag);
}

void frmGetWindow::cmdClose_Click() { Unload(); }

void frmGetWindow::cmdRemove_Click() {
  Control& tags = Find("cboWindow");
  if (tags.ListIndex() < 0) return;
  const int tag = tags.SelectedItemData();
  RemoveEntry(tag);
  tags.Clear();
  FillTags();
  tags.SetListIndex(tag - 1);
  ShowTagState();
}

void frmGetWindow::cboWindow_DropDown() {
  Find("cmdRemove").SetEnabled(false);
  Find("cboWindow").SetWidth(kDroppedWidth);
}

void frmGetWindow::cboWindow_Click() {
  if (Find("cboWindow").Dropped()) {
    // The arrow keys move through the open list; resizing it would close it.
    ShowTagState();
    Find("cmdRemove").SetEnabled(false);
  } else {
    cboWindow_CloseUp();
  }
}

void frmGetWindow::cboWindow_CloseUp() {
  ShowTagState();
  Find("cboWindow").SetWidth(designWidthOfTags_);
}

void frmGetWindow::Form_Activate() {
  // Coming back from another program, the user finds the focus where it was.
  if (!std::exchange(activatedBefore_, true)) Find("cboWindow").SetFocus();
}

void frmGetWindow::Form_SysColorChange() { ShowTagState(); }

void frmGetWindow::Form_KeyDown(int& key, unsigned shift) {
  if (shift != kAlt) return;
  if (key == 'P') {
    key = 0;
    ToggleTitleSelection();
  } else if (key == win32::kVkF4) {
    key = 0;
    cmdClose_Click();
  }
}

void frmGetWindow::ToggleTitleSelection() {
  Control& txtWindow = Find("txtWindow");
  txtWindow.SetFocus();
  const int length = CharacterCount(txtWindow.Text());
  const bool selectAll = txtWindow.Selection().length < length;
  txtWindow.SetSelection({0, selectAll ? length : 0});
}

}  // namespace korvale
