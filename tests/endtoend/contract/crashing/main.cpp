// Crashes in the way that its first argument names and reports it to the file of the second one.
#include <windows.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>

#include "platform/windows/windows_crash_api.h"
#include "platform/windows/windows_system_api.h"

// With internal linkage the compiler would know the only function that can be meant.
struct Base {
  Base() {
    Base* volatile self = this;
    self->Pure();
  }
  virtual ~Base() = default;
  virtual void Pure() = 0;
};
struct Derived : Base {
  void Pure() override {}
};

namespace {

// The compiler must not see that this page is never there, and that this depth is never reached.
int* volatile nowhere = reinterpret_cast<int*>(8);
volatile int deepest = -1;

std::atomic<bool> reporting = false;

/// True once the loader has let a second thread begin: the one that reports is the first of them.
std::atomic<bool> anotherBegan = false;

void NTAPI OnThread(void* /*module*/, DWORD reason, void* /*reserved*/) {
  if (reason != DLL_THREAD_ATTACH) return;
  anotherBegan = true;
  anotherBegan.notify_all();
}

// Among the callbacks of this section the loader calls those of the program for each thread.
[[gnu::section(".CRT$XLC"), gnu::used]] PIMAGE_TLS_CALLBACK onThread = OnThread;

void Access() { *nowhere = 1; }

/// With `left` bytes of the stack left, says what Windows says when there are none.
// NOLINTNEXTLINE(misc-no-recursion): it is meant to need more stack than there is.
int Overflow(int depth, ULONG_PTR left) {
  ULONG_PTR end = 0;
  ULONG_PTR begin = 0;
  GetCurrentThreadStackLimits(&end, &begin);
  volatile char room[512];
  room[0] = static_cast<char>(depth);
  if (reinterpret_cast<ULONG_PTR>(&room) - end < left) {
    RaiseException(static_cast<DWORD>(STATUS_STACK_OVERFLOW), 0, 0, nullptr);
  }
  return depth == deepest ? 0 : Overflow(depth + 1, left) + room[0];
}

/// Crashes while no other thread can load a library.
void AccessInLoader() {
  const auto lock =
      reinterpret_cast<LONG(NTAPI*)(ULONG, ULONG*, ULONG_PTR*)>(reinterpret_cast<void (*)()>(
          GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "LdrLockLoaderLock")));
  // A thread cannot begin without the loader, and the one that reports has begun long before.
  anotherBegan.wait(false);
  ULONG_PTR cookie = 0;
  if (lock(0, nullptr, &cookie) == 0) Access();
}

void ThrowUncaught() { throw std::runtime_error("nobody expected this"); }

const std::map<std::string, void (*)()> kCrashes = {
    {"access", Access},
    {"loader", AccessInLoader},
    {"overflow", [] { Overflow(1, 0); }},
    {"used up stack", [] { Overflow(1, 48 * 1024); }},
    {"thread", [] { std::thread(Access).join(); }},
    {"exception of a thread", [] { std::thread(ThrowUncaught).join(); }},
    {"thread while the program ends",
     [] {
       std::thread(Access).detach();
       reporting.wait(false);
     }},
    {"exception", ThrowUncaught},
    {"terminate", [] { std::terminate(); }},
    {"abort", [] { std::abort(); }},
    {"pure call", [] { Derived object; }},
};

std::string Caught() {
  if (!std::current_exception()) return "";
  try {
    throw;
  } catch (const std::exception& error) {
    return error.what();
  }
}

void Append(const std::string& path, const std::string& text) {
  if (FILE* const file = std::fopen(path.c_str(), "ab")) {
    std::fputs(text.c_str(), file);
    std::fclose(file);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) return 2;
  const std::string crash = argv[1];
  const std::string report = argv[2];
  const std::string inFilter = argv[3];
  const DWORD mainThread = GetCurrentThreadId();
  korvale::WindowsCrashApi api;
  api.SetUnhandledExceptionFilter([&](const korvale::Crash& crashed) {
    reporting = true;
    reporting.notify_all();
    char code[16];
    std::snprintf(code, sizeof(code), "%08X", static_cast<unsigned>(crashed.code));
    const bool other = GetCurrentThreadId() != mainThread;
    Append(report, std::string(code) + (other ? " " : " on the same thread ") + Caught() + "\n");
    if (inFilter == "dump") {
      // Whoever ends the program meanwhile has time for it.
      Sleep(300);
      const bool written = api.MiniDumpWriteDump(report + ".dmp");
      Append(report, written ? "dumped\n" : "not dumped\n");
    } else if (inFilter == "log") {
      korvale::WindowsSystemApi system;
      const bool known = !system.GetEnvironmentVariableW("LOCALAPPDATA").empty();
      const bool possible = system.CanAppendToFile(report);
      const std::string line[] = {known && possible ? "logged\n" : "not logged\n"};
      system.AppendToFile(report, line);
    } else if (inFilter == "wait") {
      // Another thread crashes meanwhile, which waits for the end too.
      std::thread(Access).detach();
      Sleep(300);
      Append(report, "waited\n");
    } else if (inFilter == "hang") {
      api.TerminateProcessAfter(std::nullopt);
      Sleep(1000);
      Append(report, "not ended\n");
      api.TerminateProcessAfter(100);
      Sleep(INFINITE);
    } else if (inFilter == "throw") {
      throw std::runtime_error("again");
    } else if (inFilter != "-") {
      kCrashes.at(inFilter)();
    }
  });
  if (crash == "taken back") {
    api.SetUnhandledExceptionFilter({});
  } else if (crash != "none") {
    kCrashes.at(crash)();
  }
  return 7;
}
