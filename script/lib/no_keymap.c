/* Preloaded into Wine. Whenever a window gets the focus or the pointer, the display tells Wine
   which of its own keys are down. SendInput's are not among them: Wine lets go of these, and writes
   the state of all keys back, so that a key pressed or released meanwhile is undone. Without asking
   for KeymapNotify it is not told. */
#define _GNU_SOURCE
#include <X11/Xlib.h>
#include <dlfcn.h>

#define NEXT(function) ((__typeof__(&function))dlsym(RTLD_NEXT, #function))

static unsigned long WithoutKeymap(unsigned long mask, XSetWindowAttributes* wanted) {
  if (mask & CWEventMask) wanted->event_mask &= ~KeymapStateMask;
  return mask;
}

int XSelectInput(Display* display, Window window, long events) {
  return NEXT(XSelectInput)(display, window, events & ~KeymapStateMask);
}

int XChangeWindowAttributes(Display* display, Window window, unsigned long mask,
                            XSetWindowAttributes* wanted) {
  return NEXT(XChangeWindowAttributes)(display, window, WithoutKeymap(mask, wanted), wanted);
}

Window XCreateWindow(Display* display, Window parent, int x, int y, unsigned width, unsigned height,
                     unsigned border, int depth, unsigned class, Visual* visual, unsigned long mask,
                     XSetWindowAttributes* wanted) {
  return NEXT(XCreateWindow)(display, parent, x, y, width, height, border, depth, class, visual,
                             WithoutKeymap(mask, wanted), wanted);
}
