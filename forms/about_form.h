#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "app/core/identity.h"
#include "forms/form_display.h"
#include "platform/clock.h"
#include "ui/form.h"

namespace korvale {

/// The About box, also the splash window at start-up. It is modeless and closes by itself after a
/// while.
class frmMsgBox2 : public Form {
 public:
  /// `identity` is read each time the box is shown.
  frmMsgBox2(FormCollection& forms, Clock& clock, const ProgramIdentity& identity);
  ~frmMsgBox2() override;

  /// Gives the box an address to show, which `open` opens. Without an address none is shown.
  void SetWebSite(std::string address, std::function<void()> open);

  /// Shows the box for some seconds, or brings it to the front and restarts its time.
  void ShowAbout(Form& owner, FormDisplay& display);
  /// Shows the box as the splash window, for a moment and without taking the foreground.
  void ShowSplash(FormDisplay& display);
  /// Closes the box; does nothing when it is not open.
  void CloseAbout() { Unload(); }

  /// When the box was last closed, in ms (GetTickCount64); nothing before that.
  std::optional<std::uint64_t> AboutClosed() const { return aboutClosed_; }

 protected:
  void Form_KeyDown(int& key, unsigned shift) override;
  void Form_SysColorChange() override;
  void Form_Unload() override;

 private:
  void Prepare(std::string_view mode);
  void PaintLink();
  /// Gives a user who is still reading, and shows it by a key, the whole time again.
  void StayAnew();

  Clock* clock_;
  const ProgramIdentity* identity_;
  std::string webSite_;
  std::function<void()> openWebSite_;
  std::optional<std::uint64_t> aboutClosed_;
};

}  // namespace korvale
