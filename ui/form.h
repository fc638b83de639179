#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "platform/form_host.h"
#include "platform/form_model.h"
#include "ui/control.h"
#include "ui/form_collection.h"

namespace korvale {

/// The frame that the designs count on: both side borders, and title bar with both borders.
inline constexpr Twips kClassicFrameWidth = 90;
inline constexpr Twips kClassicFrameHeight = 400;

/// The fixed properties of a form.
struct FormDesign {
  const char* name;
  const char* caption;
  TwipsRect place;
  BorderStyle border = BorderStyle::kFixedDialog;
  bool minimizeBox = false;
  bool maximizeBox = false;
  bool modalFrame = true;
  bool inTaskbar = false;
  /// Stands above all windows and never takes the keyboard focus.
  bool aside = false;
  /// Its size counts the frame and menu that the window really has; otherwise it counts the classic
  /// frame and the window grows with a larger one, so that no control is cut.
  bool countsRealFrame = false;
  FormRole role = FormRole::kDialog;
  std::span<const ControlRow> controls = {};
  std::span<const MenuRow> menu = {};
};

/// A form: its model, and what the user's actions mean. A form is loaded (its window exists,
/// hidden), shown, and unloaded; it can be loaded again afterwards.
class Form : public FormEvents, public CollectedForm, private ControlOwner {
 public:
  Form(const FormDesign& design, FormCollection& forms);
  ~Form() override;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const final;
  bool IsLoaded() const { return handle_ != 0; }
  /// The form's window, 0 while it is not loaded.
  WindowHandle Handle() const final;
  const FormState& State() const { return state_; }

  /// Makes the window from the design and runs Form_Load; does nothing when it is loaded.
  void Load();
  /// Asks Form_QueryUnload, then runs Form_Unload and destroys the window; false when the form
  /// refused. Does nothing when it is not loaded.
  bool Unload(CloseReason reason = CloseReason::kCode) final;
  /// Loads the form if need be and shows it.
  void Show() final;
  /// As Show, but the active window stays active.
  void ShowInactive();
  /// Shows the form and returns when it has been unloaded; no other form of the program takes input
  /// meanwhile.
  void ShowModal();

  const std::string& Caption() const { return state_.caption; }
  void SetCaption(std::string_view caption);
  /// Place and size in twips. Without FormDesign::countsRealFrame the size counts the classic one.
  const TwipsRect& Place() const { return place_; }
  void SetPlace(const TwipsRect& place);
  /// The place to come back to: Place(), or where it would be if the screen had room for it.
  TwipsRect PlaceToKeep() const { return wished_.value_or(place_); }
  /// Moves a form that the user sizes into the work area of its monitor, and makes it as narrow as
  /// that is. It takes its own place again as soon as there is room.
  void FitIntoWorkArea();
  /// Limits the sizes that the user can give the form, frame included.
  void SetSizeLimits(const SizeLimits& limits);
  bool Enabled() const final;
  void SetEnabled(bool enabled);
  bool Visible() const { return state_.visible; }
  ShowState WindowState() const { return state_.windowState; }
  void SetWindowState(ShowState state);

  /// A text that belongs to the program's routines ("GOTFOCUS", "NO_SHOW").
  const std::string& Tag() const { return tag_; }
  void SetTag(std::string_view tag) { tag_ = tag; }

  /// The control of this name and array index; error 340 when there is none.
  Control& Find(std::string_view name, int index = -1);
  const Control& Find(std::string_view name, int index = -1) const;
  Control& ById(int id);
  std::deque<Control>& Controls() { return controls_; }

  /// The menu entry of this name; error 340 when there is none.
  MenuItem& Menu(std::string_view name, int index = -1);
  void SetMenuShown(bool shown);

  FormCollection& Collection() { return *forms_; }
  /// The control that has the focus, 0 = none.
  int FocusedControl() const { return focused_; }

  // What the host reports (FormEvents).
  void OnClick(int control) final;
  void OnTextTyped(int control, const std::string& text) final;
  void OnListPicked(int control, int listIndex) final;
  void OnListDropDown(int control) final;
  void OnListClosedUp(int control) final;
  bool OnKeyDown(int control, int virtualKey, unsigned shift, bool repeated) final;
  bool OnKeyUp(int control, int virtualKey, unsigned shift) final;
  bool OnCharacter(int control, char32_t character, unsigned shift) final;
  void OnMouse(int control, const MouseInput& input) final;
  void OnFocusMoved(int control) final;
  void OnMenuOpened(MenuItem& menu) final;
  void OnMenuClicked(MenuItem& item) final;
  void OnActivated() final;
  void OnPlaced(ShowState state, const TwipsRect& place) final;
  void OnDpiChanged() final;
  void OnMetricsChanged() final;
  void OnSysColorChange() final;
  void OnCloseRequested(CloseReason reason) final;
  void OnTimer(int control) final;
  void OnUncaught() noexcept final;

 protected:
  using Handler = std::function<void(int index)>;
  using Handlers = std::map<std::string, Handler, std::less<>>;

  // What a form does; the shared code above calls these.
  /// An error here unloads the form again and reaches the caller of Load.
  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  /// Sees each key before any control; set `key` to 0 to swallow it.
  virtual void Form_KeyDown(int& key, unsigned shift);
  /// During Form_KeyDown: the key was down already.
  bool KeyRepeats() const { return keyRepeats_; }
  virtual void Form_KeyUp(Control* focused, int& key, unsigned shift);
  /// Set `cancel` to keep the form open.
  virtual void Form_QueryUnload(bool& cancel, CloseReason reason);
  virtual void Form_Unload() {}
  /// The form is shown for the first time, or its size or state has changed.
  virtual void Form_Resize() {}
  /// The system's colours have changed; the form must update those that it chose to go with them.
  virtual void Form_SysColorChange() {}
  /// The user, or Windows for them, has moved the form without resizing it.
  virtual void Form_Move() {}
  virtual void Form_MouseMove(const MouseInput& input);
  virtual void Control_Mouse(Control& control, const MouseInput& input);

  /// Binds the click of a control (for lists: the choice; for timers: the tick; for text boxes: a
  /// change by typing) or of a menu entry to its handler, which gets the array index (-1 = none).
  void WhenClicked(std::string_view name, Handler handler);
  void WhenDroppedDown(std::string_view name, Handler handler);
  /// Binds the closing of a list, with or without a choice; it may come before or after the choice.
  void WhenClosedUp(std::string_view name, Handler handler);
  void WhenMenuOpens(std::string_view name, Handler handler);
  void WhenMenuClicked(std::string_view name, Handler handler);

 private:
  // form.cpp: the life of a form.
  FormHost& Host() const final;
  void BuildFromDesign();
  int ContainerId(const ControlRow& row) const;
  TwipsRect FrameGrowth() const;
  TwipsSize Content() const;
  TwipsRect RealPlace() const;
  void ShowAs(bool active);
  bool AgreesToUnload(CloseReason reason);
  void Destroy();
  ControlState& StateOf(int control);
  const ControlState& StateOf(int control) const;

  // form_fit.cpp: a form that the user sizes stays where it can be seen.
  void NoteWhetherInside();
  void NoteUsersPlace(ShowState state, const TwipsRect& place);

  // form_events.cpp: what the user's actions mean.
  static void RaiseFor(const Handlers& handlers, std::string_view name, int index);
  void RaiseClick(Control& control) final;
  void UnchooseNeighbours(const Control& chosen) final;
  void StartOrStopTimer(const Control& timer) final;
  bool IsNews(ShowState state, const TwipsRect& place) const;
  bool TakePress(int control, const MouseInput& input);
  bool TakesInput() const;
  /// True for the number of a control of a loaded form.
  bool IsControl(int control) const;

  // form_keys.cpp: keys of dialogs, access keys and the focus.
  bool DialogKey(int control, int virtualKey, unsigned shift);
  bool MoveFocus(int from, bool backwards);
  bool MoveChoice(int from, bool backwards);
  bool PressAccessKey(int focused, char32_t character, bool alt);
  bool UseAccessKey(Control& control, char32_t character);
  void FocusOn(int control) final;
  void EnsureFocus();
  void KeepFocusReachable() final;
  void MarkDefaultButton();
  Control* DefaultButtonFor(int focused);
  Control* ButtonWithFlag(unsigned flag);
  std::vector<int> TabStops() const;
  int TabStopOf(int control) const;
  bool CanTakeInput(const ControlState& control) const;
  bool CanTakeFocus(const ControlState& control) const;

  const FormDesign design_;
  const std::vector<ControlRow> rows_;  ///< The design's controls in the order of the windows.
  FormCollection* forms_;
  FormState state_;
  TwipsRect place_;
  std::deque<Control> controls_;
  WindowHandle handle_ = 0;
  int focused_ = 0;
  int pressed_ = 0;       ///< The control that the left button went down on.
  bool altUsed_ = false;  ///< Alt is held, and a key pressed with it had an effect.
  std::optional<TwipsRect> givenInstead_;  ///< Where Windows put it, not the model.
  std::optional<TwipsRect> wished_;        ///< Where it would be, had the screen room for it.
  bool inside_ = false;                    ///< All of it was within the work area.
  bool fitting_ = false;                   ///< It is being fitted into the work area.
  bool keyRepeats_ = false;
  bool shownBefore_ = false;
  bool unloading_ = false;
  bool loadedBefore_ = false;  ///< The next loading starts again from the design.
  std::string tag_;
  Handlers clicked_;
  Handlers droppedDown_;
  Handlers closedUp_;
  Handlers menuOpens_;
  Handlers menuClicked_;
};

}  // namespace korvale
