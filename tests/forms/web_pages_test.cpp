#include "forms/web_pages.h"

#include <gtest/gtest.h>

namespace korvale {
namespace {

constexpr const char* kFolder = "C:\\Programs\\Work\\";

TEST(WebPagesTest, WithoutASiteThePagesAreFilesBesideTheProgram) {
  EXPECT_EQ(WebPageAddress("", WebPage::kHome, kFolder), "C:\\Programs\\Work\\web\\index.html");
  EXPECT_EQ(WebPageAddress("", WebPage::kHelp, kFolder), "C:\\Programs\\Work\\web\\help.html");
  EXPECT_EQ(WebPageAddress("", WebPage::kReadme, kFolder), "C:\\Programs\\Work\\web\\readme.html");
}

TEST(WebPagesTest, AtASiteThePagesHaveItsAddress) {
  EXPECT_EQ(WebPageAddress("https://korvale.example/pages/", WebPage::kHelp, kFolder),
            "https://korvale.example/pages/help.html");
}

TEST(WebPagesTest, TheSitesAddressNeedsNoClosingSlash) {
  EXPECT_EQ(WebPageAddress("https://korvale.example", WebPage::kHome, kFolder),
            "https://korvale.example/index.html");
}

}  // namespace
}  // namespace korvale
