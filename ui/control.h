#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/form_host.h"
#include "platform/form_model.h"

namespace korvale {

class Control;

/// The form that a control stands in, as the control sees it: keeps Control below Form, which
/// includes it.
class ControlOwner {
 public:
  virtual ~ControlOwner() = default;

  /// The form's window, 0 while it has none.
  virtual WindowHandle Handle() const = 0;
  virtual FormHost& Host() const = 0;

  virtual void RaiseClick(Control& control) = 0;
  virtual void UnchooseNeighbours(const Control& chosen) = 0;
  virtual void StartOrStopTimer(const Control& timer) = 0;
  virtual void FocusOn(int control) = 0;
  /// Moves the focus away from a control that the user cannot reach any more.
  virtual void KeepFocusReachable() = 0;
};

/// One control of a loaded form. Setters change the model, show the change and raise the event that
/// belongs to it; setting a property to the value it has does nothing.
class Control : public TimerControl {
 public:
  Control(ControlOwner& form, ControlState& state) : form_(&form), state_(&state) {}

  const ControlState& State() const { return *state_; }
  int Id() const { return state_->id; }
  int Index() const { return state_->index; }
  const std::string& Name() const { return state_->name; }

  /// Caption of a button or label, text of a text box. Changing the text of a text box by code
  /// raises no event.
  const std::string& Text() const { return state_->text; }
  void SetText(std::string_view text);

  bool Visible() const { return state_->visible; }
  void SetVisible(bool visible);

  /// Enables the control; for a timer, starts or stops it.
  bool Enabled() const override { return state_->enabled; }
  void SetEnabled(bool enabled) override;
  /// Disables a timer for a moment: only a tick that comes meanwhile, and is dropped, stops it.
  /// Error 5 for a control that is none.
  void Pause();

  const TwipsRect& Place() const { return state_->place; }
  void SetPlace(const TwipsRect& place);
  void SetTop(Twips top);
  void SetWidth(Twips width);
  void SetHeight(Twips height);

  /// 1 = chosen, 0 = not. Choosing an option button clears the others in its container. Raises
  /// Click when the value changes (for option buttons: when it becomes 1).
  int Value() const { return state_->value; }
  void SetValue(int value);

  void SetBackColor(Color color);
  void SetForeColor(Color color);
  void SetBorder(bool border);

  std::span<const ListItem> Items() const { return state_->items; }
  /// Adds an entry at the end; the first tab of a strip is chosen by that.
  void AddItem(std::string_view text, std::int32_t itemData = 0);
  /// Adds many entries to a list, which is redrawn only once.
  void AddItems(std::span<const ListItem> items);
  /// Error 380 when there is no such entry.
  void SetItemText(int listIndex, std::string_view text);
  /// Removes all entries; nothing is selected then.
  void Clear();
  int ListIndex() const { return state_->listIndex; }
  /// Selects an entry, -1 = none; raises Click when the selection changes. Error 380 when there is
  /// no such entry.
  void SetListIndex(int listIndex);
  /// Item data of the selected entry; 0 when nothing is selected.
  std::int32_t SelectedItemData() const;
  /// Text of the selected entry; "" when nothing is selected.
  std::string SelectedText() const;

  /// Moves the focus here; does nothing while the user could not reach the control.
  void SetFocus();
  /// The list of a drop-down list or combo box is open.
  bool Dropped() const;
  TextSelection Selection() const;
  void SetSelection(TextSelection selection);

  std::uint32_t Interval() const { return state_->interval; }
  void SetInterval(std::uint32_t milliseconds) override;

  /// A text that belongs to the form's own routines.
  const std::string& Tag() const override { return tag_; }
  void SetTag(std::string_view tag) override { tag_ = tag; }

 private:
  friend class Form;

  void Changed(ControlProperty property);
  template <typename Value>
  void Change(Value& field, const Value& value, ControlProperty property) {
    if (field == value) return;
    field = value;
    Changed(property);
  }
  void TakeListIndex(int listIndex);

  ControlOwner* form_;
  ControlState* state_;
  std::string tag_;
};

}  // namespace korvale
