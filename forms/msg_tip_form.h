#pragma once

#include <string_view>

#include "ui/form.h"

namespace korvale {

/// The controls and the place of frmMsgTip as designed.
const FormDesign& MsgTipDesign();

/// The tip window. Its tag is "NO_SHOW" after it has closed when the user does not want to see the
/// tip again, otherwise "".
class frmMsgTip : public Form {
 public:
  static constexpr const char* kNoShow = "NO_SHOW";

  explicit frmMsgTip(FormCollection& forms);
  ~frmMsgTip() override;

  /// Fills the loaded form and lays it out for a height in twips, frame included.
  void Prepare(std::string_view caption, std::string_view text, Twips height);

 protected:
  void Form_Load() override;
  void Form_KeyDown(int& key, unsigned shift) override;
  void Form_QueryUnload(bool& cancel, CloseReason reason) override;

 private:
  void cmdOK_Click();
  void KeepResult();
};

}  // namespace korvale
