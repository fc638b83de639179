#pragma once

#include <array>
#include <string>

#include "forms/add_window_context.h"
#include "ui/form.h"

namespace korvale {

/// The Add Window dialog: gives a window a Tag and chooses how it will be recognised later.
class frmGetWindow : public Form {
 public:
  frmGetWindow(FormCollection& forms, AddWindowContext context);
  ~frmGetWindow() override;

  /// Gives the loaded dialog the look in which the Window menu opens it: without the section for
  /// child windows.
  void PrepareForWindowMenu();

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  void Form_SysColorChange() override;
  void Form_KeyDown(int& key, unsigned shift) override;

 private:
  void cmdOK_Click();
  void cmdClose_Click();
  void cmdRemove_Click();
  void cboWindow_DropDown();
  void cboWindow_Click();
  void cboWindow_CloseUp();

  void FillTags();
  void SelectLowestFreeTag();
  void ShowTagState();
  void LoadPreviousWindow();
  void LoadThisWindow();
  void OfferParts(const std::string& title);
  void HideParts();
  void SetChoice(int index, std::string identification);
  std::string ChosenIdentification() const;
  void AddEntry(int tag, const std::string& caption);
  void RemoveEntry(int tag);
  void ToggleTitleSelection();

  AddWindowContext context_;
  /// The window that gets the Tag.
  WindowHandle window_ = 0;
  std::string windowClass_;
  /// The identification texts that the option buttons stand for; a caption may show less.
  std::array<std::string, 3> choices_;
  Twips designWidthOfTags_ = 0;
  bool activatedBefore_ = false;
};

}  // namespace korvale
