#include "ui/form.h"

#include <algorithm>
#include <utility>

#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "ui/form_collection.h"
#include "util/raised_flag.h"

namespace korvale {
namespace {

/// How a form comes up; a minimized one must not take the foreground.
int ShowCommand(ShowState state) {
  switch (state) {
    case ShowState::kMinimized:
      return win32::kSwShowMinNoActive;
    case ShowState::kMaximized:
      return win32::kSwMaximize;
    case ShowState::kNormal:
      break;
  }
  return win32::kSwShow;
}

std::vector<ControlRow> InWindowOrder(std::span<const ControlRow> table) {
  std::vector<ControlRow> rows(table.begin(), table.end());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].tabIndex < 0) rows[i].tabIndex = static_cast<int>(i);
  }
  std::ranges::stable_sort(rows, {}, &ControlRow::tabIndex);
  return rows;
}

ControlState StateFromRow(const ControlRow& row, int id, int container) {
  return {.id = id,
          .kind = row.kind,
          .name = row.name,
          .index = row.index,
          .text = row.caption,
          .toolTip = row.toolTip,
          .place = row.place,
          .container = container,
          .flags = row.flags,
          .visible = (row.flags & kHidden) == 0,
          .enabled = (row.flags & kDisabled) == 0,
          .backColor = row.backColor,
          .foreColor = row.foreColor,
          .border = (row.flags & kSingleBorder) != 0,
          .items = {}};
}

}  // namespace

Form::Form(const FormDesign& design, FormCollection& forms)
    : design_(design), rows_(InWindowOrder(design.controls)), forms_(&forms) {
  BuildFromDesign();
}

Form::~Form() { Destroy(); }

const std::string& Form::Name() const { return state_.name; }
WindowHandle Form::Handle() const { return handle_; }
bool Form::Enabled() const { return state_.enabled; }
FormHost& Form::Host() const { return forms_->Host(); }

void Form::BuildFromDesign() {
  state_ = FormState();
  state_.name = design_.name;
  state_.caption = design_.caption;
  state_.border = design_.border;
  state_.minimizeBox = design_.minimizeBox;
  state_.maximizeBox = design_.maximizeBox;
  state_.modalFrame = design_.modalFrame;
  state_.inTaskbar = design_.inTaskbar;
  state_.aside = design_.aside;
  state_.role = design_.role;
  state_.menu = MenuBar(design_.menu);
  place_ = design_.place;
  focused_ = 0;
  pressed_ = 0;
  altUsed_ = false;
  givenInstead_.reset();
  wished_.reset();
  inside_ = false;
  shownBefore_ = false;
  controls_.clear();
  state_.controls.reserve(rows_.size());
  for (const ControlRow& row : rows_) {
    const int id = static_cast<int>(state_.controls.size()) + 1;
    state_.controls.push_back(StateFromRow(row, id, ContainerId(row)));
  }
  for (ControlState& control : state_.controls) {
    controls_.emplace_back(static_cast<ControlOwner&>(*this), control);
  }
}

int Form::ContainerId(const ControlRow& row) const {
  const auto found = std::ranges::find_if(state_.controls, [&](const ControlState& control) {
    return control.name == row.container && control.index == row.containerIndex;
  });
  return found == state_.controls.end() ? 0 : found->id;
}

void Form::Load() {
  if (IsLoaded()) return;
  // References to menus and controls that were taken before the first loading stay valid.
  if (std::exchange(loadedBefore_, true)) BuildFromDesign();
  state_.content = Content();
  state_.place = RealPlace();
  handle_ = forms_->Host().CreateWindowExW(state_, *this);
  if (handle_ == 0) throw RunTimeError(RunTimeError::kOutOfMemory, "no window for " + Name());
  forms_->Add(*this);
  if (!state_.enabled) forms_->Host().EnableWindow(handle_, false);
  for (const Control& control : controls_) {
    const bool runs = control.State().kind == ControlKind::kTimer && control.Enabled();
    if (runs) StartOrStopTimer(control);
  }
  try {
    Form_Load();
  } catch (...) {
    Destroy();
    throw;
  }
}

bool Form::Unload(CloseReason reason) {
  // A closing form may be asked to close again, for example by its own close handler.
  if (!IsLoaded() || unloading_) return true;
  const RaisedFlag unloading(unloading_);
  if (!AgreesToUnload(reason)) return false;
  Form_Unload();
  Destroy();
  return true;
}

bool Form::AgreesToUnload(CloseReason reason) {
  bool cancel = false;
  Form_QueryUnload(cancel, reason);
  return !cancel;
}

void Form::Destroy() {
  if (!IsLoaded()) return;
  for (const ControlState& control : state_.controls) {
    if (control.kind == ControlKind::kTimer) forms_->Timers().KillTimer(handle_, control.id);
  }
  state_.visible = false;
  forms_->Remove(*this);
  forms_->Host().DestroyWindow(std::exchange(handle_, 0));
}

void Form::Show() { ShowAs(true); }

void Form::ShowInactive() { ShowAs(false); }

void Form::ShowAs(bool active) {
  Load();
  if (!IsLoaded()) return;
  if (!shownBefore_) {
    shownBefore_ = true;
    EnsureFocus();
    Form_Resize();
    if (!IsLoaded()) return;
  }
  state_.visible = true;
  const bool takesKeyboard = active && !state_.aside;
  forms_->Host().ShowWindow(handle_,
                            takesKeyboard ? ShowCommand(state_.windowState) : win32::kSwShowNa);
  NoteWhetherInside();
}

void Form::ShowModal() {
  Load();
  if (IsLoaded()) forms_->RunModal(*this);
}

void Form::SetCaption(std::string_view caption) {
  if (state_.caption == caption) return;
  state_.caption = caption;
  if (IsLoaded()) forms_->Host().SetWindowTextW(handle_);
}

TwipsRect Form::FrameGrowth() const {
  if (design_.countsRealFrame || state_.border == BorderStyle::kNone) return {};
  const TwipsRect frame = forms_->Host().AdjustWindowRectEx(state_);
  return {0, 0, frame.width - kClassicFrameWidth, frame.height - kClassicFrameHeight};
}

TwipsSize Form::Content() const {
  if (state_.border == BorderStyle::kSizable) return {};
  if (state_.border == BorderStyle::kNone) return {place_.width, place_.height};
  return {place_.width - kClassicFrameWidth, place_.height - kClassicFrameHeight};
}

TwipsRect Form::RealPlace() const {
  const TwipsRect growth = FrameGrowth();
  return {place_.left, place_.top, place_.width + growth.width, place_.height + growth.height};
}

void Form::SetPlace(const TwipsRect& place) {
  if (state_.windowState != ShowState::kNormal || place == place_) return;
  const bool sized = place.width != place_.width || place.height != place_.height;
  place_ = place;
  if (!IsLoaded()) return;
  state_.content = Content();
  state_.place = RealPlace();
  forms_->Host().MoveWindow(handle_);
  if (sized && IsLoaded()) Form_Resize();
  NoteWhetherInside();
}

void Form::SetSizeLimits(const SizeLimits& limits) {
  if (state_.limits == limits) return;
  state_.limits = limits;
  if (!state_.visible || state_.windowState != ShowState::kMaximized) return;
  if (limits.height == 0 || limits.height == state_.place.height) return;
  // Windows asks for the limits only when it maximizes.
  state_.place.height = limits.height;
  place_.height = limits.height - FrameGrowth().height;
  forms_->Host().MoveWindow(handle_);
}

void Form::SetEnabled(bool enabled) {
  if (state_.enabled == enabled) return;
  state_.enabled = enabled;
  if (IsLoaded()) forms_->Host().EnableWindow(handle_, enabled && !forms_->IsBlocked(*this));
}

void Form::SetWindowState(ShowState state) {
  if (state_.windowState == state) return;
  if (!state_.visible) {
    state_.windowState = state;
    return;
  }
  // The host reports through OnPlaced what has become of it.
  const int command = state == ShowState::kNormal      ? win32::kSwRestore
                      : state == ShowState::kMinimized ? win32::kSwMinimize
                                                       : win32::kSwMaximize;
  forms_->Host().ShowWindow(handle_, command);
}

Control& Form::Find(std::string_view name, int index) {
  for (Control& control : controls_) {
    if (control.Name() == name && control.Index() == index) return control;
  }
  throw RunTimeError(RunTimeError::kNoSuchControlArrayElement, name);
}

const Control& Form::Find(std::string_view name, int index) const {
  for (const Control& control : controls_) {
    if (control.Name() == name && control.Index() == index) return control;
  }
  throw RunTimeError(RunTimeError::kNoSuchControlArrayElement, name);
}

Control& Form::ById(int id) { return controls_.at(static_cast<std::size_t>(id) - 1); }

ControlState& Form::StateOf(int control) {
  return state_.controls.at(static_cast<std::size_t>(control) - 1);
}

const ControlState& Form::StateOf(int control) const { return state_.Control(control); }

MenuItem& Form::Menu(std::string_view name, int index) {
  if (MenuItem* const item = state_.menu.Find(name, index)) return *item;
  throw RunTimeError(RunTimeError::kNoSuchControlArrayElement, name);
}

void Form::SetMenuShown(bool shown) {
  if (state_.menuShown == shown) return;
  state_.menuShown = shown;
  if (!IsLoaded()) return;
  forms_->Host().DrawMenuBar(handle_);
  const TwipsRect place = RealPlace();
  if (state_.windowState != ShowState::kNormal || place == state_.place) return;
  state_.place = place;
  forms_->Host().MoveWindow(handle_);
}

}  // namespace korvale
