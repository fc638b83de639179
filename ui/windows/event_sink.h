#pragma once

#include "platform/form_events.h"

namespace korvale {

/// Reports events to a form and keeps what it throws from reaching Windows. Silent before Connect
/// and after Disconnect.
class EventSink {
 public:
  void Connect(FormEvents& events) { events_ = &events; }
  void Disconnect() { events_ = nullptr; }
  bool Connected() const { return events_ != nullptr; }

  template <typename Call>
  void Tell(Call call) {
    FormEvents* const events = events_;
    if (events == nullptr) return;
    try {
      call(*events);
    } catch (...) {
      events->OnUncaught();
    }
  }

  /// As Tell, for events with an answer; false when the event ended with an error.
  template <typename Call>
  bool Ask(Call call) {
    bool answer = false;
    Tell([&](FormEvents& events) { answer = call(events); });
    return answer;
  }

 private:
  FormEvents* events_ = nullptr;
};

}  // namespace korvale
