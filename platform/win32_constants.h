#pragma once

#include <cstdint>

#include "platform/types.h"

/// The numbers of the Windows API that portable code passes through the interfaces of this folder.
/// The Windows adapters check them against the Windows headers with static_assert.
namespace korvale::win32 {

// GetLastError
inline constexpr std::uint32_t kErrorFileNotFound = 2;
inline constexpr std::uint32_t kErrorPathNotFound = 3;

// GetWindow
inline constexpr std::uint32_t kGwOwner = 4;
inline constexpr std::uint32_t kGwChild = 5;

// GetWindowLongA
inline constexpr int kGwlStyle = -16;
inline constexpr int kGwlExStyle = -20;

// Window styles
inline constexpr std::int32_t kWsChild = 0x40000000;
inline constexpr std::int32_t kWsMinimize = 0x20000000;
inline constexpr std::int32_t kWsVisible = 0x10000000;
inline constexpr std::int32_t kWsDisabled = 0x08000000;
inline constexpr std::int32_t kWsMinimizeBox = 0x00020000;
inline constexpr std::int32_t kWsMaximizeBox = 0x00010000;
inline constexpr std::int32_t kDsModalFrame = 0x00000080;
inline constexpr std::int32_t kDsSysModal = 0x00000002;
inline constexpr std::int32_t kWsExTopmost = 0x00000008;
inline constexpr std::int32_t kWsExToolWindow = 0x00000080;

// DwmGetWindowAttribute
inline constexpr std::uint32_t kDwmCloakedApp = 1;
inline constexpr std::uint32_t kDwmCloakedShell = 2;
inline constexpr std::uint32_t kDwmCloakedInherited = 4;

// ShowWindow
inline constexpr int kSwHide = 0;
inline constexpr int kSwShowNormal = 1;
inline constexpr int kSwMaximize = 3;
inline constexpr int kSwShowNoActivate = 4;
inline constexpr int kSwShow = 5;
inline constexpr int kSwMinimize = 6;
inline constexpr int kSwShowMinNoActive = 7;
inline constexpr int kSwShowNa = 8;
inline constexpr int kSwRestore = 9;

// SetWindowPos
inline constexpr WindowHandle kHwndTop = 0;
inline constexpr WindowHandle kHwndTopmost = -1;
inline constexpr WindowHandle kHwndNoTopmost = -2;
inline constexpr std::uint32_t kSwpNoSize = 0x0001;
inline constexpr std::uint32_t kSwpNoMove = 0x0002;
inline constexpr std::uint32_t kSwpNoZOrder = 0x0004;
inline constexpr std::uint32_t kSwpNoActivate = 0x0010;
inline constexpr std::uint32_t kSwpAsyncWindowPos = 0x4000;

// RegisterHotKey
inline constexpr std::uint32_t kModAlt = 1;
inline constexpr std::uint32_t kModControl = 2;
inline constexpr std::uint32_t kModShift = 4;
inline constexpr std::uint32_t kModWin = 8;

// Messages
inline constexpr std::uint32_t kWmNull = 0x0000;
inline constexpr std::uint32_t kWmPowerBroadcast = 0x0218;
inline constexpr std::uint32_t kPbtApmResumeSuspend = 0x0007;
inline constexpr std::uint32_t kPbtApmResumeAutomatic = 0x0012;
inline constexpr std::uint32_t kWmWtsSessionChange = 0x02B1;
inline constexpr std::uint32_t kWtsConsoleConnect = 1;
inline constexpr std::uint32_t kWtsRemoteConnect = 3;
inline constexpr std::uint32_t kWtsSessionUnlock = 8;
inline constexpr std::uint32_t kWmHotKey = 0x0312;

// MessageBox
inline constexpr std::int32_t kMbOk = 0;
inline constexpr std::int32_t kMbOkCancel = 1;
inline constexpr std::int32_t kMbYesNo = 4;
inline constexpr std::int32_t kMbDefButton2 = 0x100;
inline constexpr std::int32_t kMbSetForeground = 0x10000;
inline constexpr std::int32_t kMbTopmost = 0x40000;
inline constexpr std::int16_t kIdOk = 1;
inline constexpr std::int16_t kIdCancel = 2;
inline constexpr std::int16_t kIdYes = 6;
inline constexpr std::int16_t kIdNo = 7;

// GetVersionExA
inline constexpr std::uint32_t kVerPlatformWin32Windows = 1;
inline constexpr std::uint32_t kVerPlatformWin32Nt = 2;

// Virtual-key codes
inline constexpr int kVkTab = 0x09;
inline constexpr int kVkReturn = 0x0D;
inline constexpr int kVkMenu = 0x12;
inline constexpr int kVkPause = 0x13;
inline constexpr int kVkEscape = 0x1B;
inline constexpr int kVkSpace = 0x20;
inline constexpr int kVkEnd = 0x23;
inline constexpr int kVkHome = 0x24;
inline constexpr int kVkLeft = 0x25;
inline constexpr int kVkUp = 0x26;
inline constexpr int kVkRight = 0x27;
inline constexpr int kVkDown = 0x28;
inline constexpr int kVkF1 = 0x70;
inline constexpr int kVkF4 = 0x73;

}  // namespace korvale::win32
