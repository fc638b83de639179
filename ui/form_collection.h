#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "platform/form_events.h"
#include "platform/form_host.h"
#include "platform/message_loop.h"
#include "platform/screen_queries.h"
#include "util/forms.h"

namespace korvale {

class Form;

/// A form as the collection sees it: keeps the collection below Form, which includes it.
class CollectedForm {
 public:
  virtual ~CollectedForm() = default;

  virtual const std::string& Name() const = 0;
  virtual WindowHandle Handle() const = 0;
  virtual bool Enabled() const = 0;
  virtual void Show() = 0;
  virtual bool Unload(CloseReason reason) = 0;
};

/// The loaded forms of the program and what they share: the host that shows them, the message loop,
/// the screen, their timers and the handler that reports the errors of event handlers.
class FormCollection : public LoadedForms {
 public:
  FormCollection(FormHost& host, MessageLoop& loop, ScreenQueries& screen, TimerApi& timers)
      : host_(&host), loop_(&loop), screen_(&screen), timers_(&timers) {}

  FormHost& Host() { return *host_; }
  MessageLoop& Loop() { return *loop_; }
  ScreenQueries& Screen() { return *screen_; }
  TimerApi& Timers() { return *timers_; }

  void ForEach(const std::function<void(std::string_view, WindowHandle)>& visit) const override;
  /// Unloads every loaded form except the one of this name, the one loaded last first.
  void UnloadAllExcept(std::string_view name);

  /// Disables every other loaded form, shows `form`, runs messages until it is no longer shown, and
  /// enables the forms again that were enabled before.
  void RunModal(CollectedForm& form);
  /// Runs a dialog of Windows, which disables its owner itself, and keeps all other forms disabled
  /// meanwhile.
  void RunSystemDialog(const CollectedForm& owner, const std::function<void()>& dialog);
  /// The form shown modally on top; null when there is none or a dialog of Windows is above it.
  CollectedForm* TopModal() const { return modal_.empty() ? nullptr : modal_.back().form; }

  /// Called inside a catch block with an error that left an event handler; must not throw.
  void SetUncaughtHandler(std::function<void()> handler) { uncaught_ = std::move(handler); }
  void ReportUncaught() noexcept;

 private:
  friend class Form;

  /// A form shown modally, null for a dialog of Windows, and the forms that it keeps from taking
  /// input.
  struct Modal {
    CollectedForm* form;
    std::vector<CollectedForm*> blocked;
  };

  void Add(CollectedForm& form) { loaded_.push_back(&form); }
  void Remove(CollectedForm& form);
  bool IsModal(const CollectedForm& form) const;
  bool IsBlocked(const CollectedForm& form) const;
  /// Lets the blocked forms take input again, unless a modal form above this one blocks them.
  void EndModal(const CollectedForm* form);
  /// The forms that a new modal form keeps from taking input.
  std::vector<CollectedForm*> Block(CollectedForm* modal);

  FormHost* host_;
  MessageLoop* loop_;
  ScreenQueries* screen_;
  TimerApi* timers_;
  std::vector<CollectedForm*> loaded_;
  std::vector<Modal> modal_;
  std::function<void()> uncaught_;
};

}  // namespace korvale
