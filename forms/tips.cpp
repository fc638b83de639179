#include "forms/tips.h"

#include <utility>

#include "util/flag_string.h"

namespace korvale {

Tips::Tips(frmMsgTip& form, FormDisplay& display, const bool& displayTips, std::string& hiddenTips,
           std::string applicationTitle)
    : form_(&form),
      display_(&display),
      displayTips_(&displayTips),
      hiddenTips_(&hiddenTips),
      applicationTitle_(std::move(applicationTitle)) {}

void Tips::ShowTip(TipNumber number, const std::string& text, const std::string& title,
                   std::int16_t height, const PlaceHints& hints, Form* owner) {
  const auto position = static_cast<std::int32_t>(number);
  if (!*displayTips_ || !FlagString(*hiddenTips_, position, "GET", true, false)) return;
  form_->Load();
  form_->Prepare(WindowTitle(title), text, height);
  if (display_->ShowFormModal(*form_, {}, kForegroundWait, hints, owner) == frmMsgTip::kNoShow) {
    FlagString(*hiddenTips_, position, "SET", true, false);
  }
}

std::string Tips::WindowTitle(const std::string& title) const {
  if (title == "NO_TITLE") return "";
  if (title.empty()) return applicationTitle_;
  return title + " - " + applicationTitle_;
}

}  // namespace korvale
