"""Keeps the pointer of the display to itself, so no window hears from the display where it is.

Prints a line once it has the pointer, and lets go of it when it ends.
"""

import ctypes
import signal

ASYNC = 1

x11 = ctypes.CDLL("libX11.so.6")
x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XDefaultRootWindow.restype = ctypes.c_ulong
display = ctypes.c_void_p(x11.XOpenDisplay(None))
root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
nothing = ctypes.c_ulong(0)
if x11.XGrabPointer(display, root, 0, 0, ASYNC, ASYNC, nothing, nothing, nothing) != 0:
    raise SystemExit("somebody else has the pointer")
print("the pointer is kept", flush=True)
signal.pause()
