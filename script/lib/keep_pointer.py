"""Keeps the pointer of the display to itself, so no window hears from the display where it is.

  keep_pointer.py FOLDER

Prints a line once it has the pointer. Whoever puts it somewhere makes a file FOLDER/X,Y, which is
gone once the display has it there too.
"""

import ctypes
import os
import sys
import time

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
while True:
    for place in os.listdir(sys.argv[1]):
        x, y = map(int, place.split(","))
        x11.XWarpPointer(display, nothing, root, 0, 0, 0, 0, x, y)
        x11.XSync(display, 0)
        os.unlink(os.path.join(sys.argv[1], place))
    time.sleep(0.002)
