#include "forms/web_pages.h"

namespace korvale {

const std::string_view kWebBase = KORVALE_WEB_BASE;

namespace {

std::string_view FileName(WebPage page) {
  switch (page) {
    case WebPage::kHelp:
      return "help.html";
    case WebPage::kReadme:
      return "readme.html";
    case WebPage::kHome:
      break;
  }
  return "index.html";
}

}  // namespace

std::string WebPageAddress(std::string_view base, WebPage page, std::string_view programFolder) {
  std::string address;
  if (base.empty()) {
    address.append(programFolder).append("web\\");
  } else {
    address.append(base).append(base.ends_with('/') ? "" : "/");
  }
  return address.append(FileName(page));
}

}  // namespace korvale
