#pragma once

#include <string>
#include <string_view>

namespace korvale {

/// The pages of the product's web site.
enum class WebPage { kHome, kHelp, kReadme };

/// Where the web site is, as set by the build; "" = the folder web beside the executable.
extern const std::string_view kWebBase;

/// What opens a page of the site at `base`: its address, or without a base the path of the page in
/// the folder web of `programFolder`, which closes with a backslash.
std::string WebPageAddress(std::string_view base, WebPage page, std::string_view programFolder);

}  // namespace korvale
