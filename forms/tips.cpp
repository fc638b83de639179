#include "forms/tips.h"

#include "app/core/identity.h"
#include "util/flag_string.h"

namespace korvale {
namespace {

std::string WindowTitle(const std::string& title) {
  if (title == "NO_TITLE") return "";
  return title.empty() ? kProductName : title + " - " + kProductName;
}

}  // namespace

Tips::Tips(frmMsgTip& form, FormDisplay& display, const bool& displayTips, std::string& hiddenTips)
    : form_(&form), display_(&display), displayTips_(&displayTips), hiddenTips_(&hiddenTips) {}

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

}  // namespace korvale
