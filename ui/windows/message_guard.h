#pragma once

#include <windows.h>

#include "platform/windows/handles.h"

namespace korvale {

/// Any program may put any message into the queue of our windows, and send any to them. While this
/// exists, queued ones that Windows itself never queues, and those that would make a window follow
/// a pointer, arrive as WM_NULL, in every message loop of the thread that made it (WH_GETMESSAGE).
/// Sent ones of these kinds do not reach the message boxes and dialogs of Windows, nor the lists of
/// combo boxes (WH_CBT); the windows that we make ourselves ask IsForgedForClass. It judges only
/// who a message comes from, never what it means.
class MessageGuard {
 public:
  MessageGuard();

 private:
  UniqueHook queued_;
  UniqueHook windows_;
};

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
bool ReadParameter(LPARAM address, RECT& value);

}  // namespace korvale
