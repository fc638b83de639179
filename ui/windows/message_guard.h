#pragma once

#include <windows.h>

#include <cstddef>

#include "platform/windows/handles.h"

namespace korvale {

/// Any program may put any message into the queue of our windows, and send any to them. While this
/// exists, queued ones that Windows itself never queues, and those that would make a window follow
/// a pointer, arrive as WM_NULL, in every message loop of the thread that made it (WH_GETMESSAGE).
/// Sent ones of these kinds do not reach the message boxes and dialogs of Windows, nor the lists of
/// combo boxes (WH_CBT); the windows that we make ourselves ask IsForgedForClass. It judges only
/// who a message comes from, never what it means. A thread has one at most.
class MessageGuard {
 public:
  MessageGuard();
  ~MessageGuard();
  MessageGuard(const MessageGuard&) = delete;
  MessageGuard& operator=(const MessageGuard&) = delete;

  /// Sees the messages of every loop, as it does from the beginning.
  void Watch();
  /// Sees those of other loops no more until Watch, since each costs the hook. For the outermost
  /// loop, which hands its own to Disarm; whatever may begin another one wakes the guard: a new
  /// window, a system command, moving or sizing (WH_CBT), and WatchQueue.
  void Rest();
  bool Rests() const { return !queued_; }

  /// Makes a message that can only be forged a WM_NULL.
  static void Disarm(MSG& message);

 private:
  UniqueHook queued_;
  UniqueHook windows_;
};

/// Wakes the guard of this thread, if it has one: Windows may begin a message loop of its own.
void WatchQueue();

/// True while no loop but our outermost one can be running on this thread.
bool IsOnlyOurLoop();

/// True while the message being handled was sent by another thread (InSendMessage).
bool IsSentByOthers();

/// True for the messages that make and end a window.
bool IsLifeMessage(UINT message);

/// True for messages that each window class defines for itself and that may carry pointers.
bool IsPrivateMessage(UINT message);

/// True for messages that give a text box an address to call or to keep its text at; this program
/// never sends any.
bool NamesAnAddress(UINT message);

/// True for a WM_ACTIVATE that tells a window of its activation when it is not the active one.
bool IsForgedActivation(HWND window, UINT message, WPARAM wParam);

/// True for a message that only Windows may send and that another program has sent to a window of
/// one of Windows' own classes. `privateToo` = private messages count as well.
bool IsForgedForClass(HWND window, UINT message, WPARAM wParam, bool privateToo);

/// Copies the structure that a message points to; false when there is none to read.
bool ReadParameter(LPARAM address, void* value, std::size_t size);
template <typename Value>
bool ReadParameter(LPARAM address, Value& value) {
  return ReadParameter(address, &value, sizeof(value));
}

}  // namespace korvale
