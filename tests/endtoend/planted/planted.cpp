// A library that lies where it has no business, under the name of one of Windows' own.

#include <windows.h>

BOOL WINAPI DllMain(HINSTANCE /*library*/, DWORD /*reason*/, void* /*reserved*/) { return TRUE; }
