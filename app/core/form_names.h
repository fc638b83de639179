#pragma once

namespace korvale {

// Names of forms that more than one part of the program knows; their window classes end with them.
inline constexpr const char* kMainForm = "frmMain";
inline constexpr const char* kOptionsForm = "frmOptions";
inline constexpr const char* kAboutForm = "frmMsgBox2";

}  // namespace korvale
