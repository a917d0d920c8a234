#pragma once

#include "cardwright/platform/SelectorWidgets.h"
#include "cardwright/qt/dialogs/FileChoice.h"
#include "cardwright/qt/widgets/QtWidget.h"

namespace cardwright::qt {

class ChoiceButton;
class PathEdit;

/// A field for a path and a button that opens the desktop's choice of files or folders. What is typed is
/// completed by what is there, and a file can be dropped on the field. F4 opens the choice as well.
class QtResourceSelector final : public QtWidget<ResourceSelectorWidget> {
 public:
  explicit QtResourceSelector(WidgetPlace place);

  QWidget* Part(std::u16string_view name) const override;
  bool IsLocked() const override;
  void SetLocked(bool locked) override;

  Text Path() const override;
  void SetPath(const Text& path) override;
  OleColor BackColorBkg() const override;
  void SetBackColorBkg(OleColor color) override;
  bool BrowsesForFolder() const override;
  void SetBrowseForFolder(bool folder) override;
  Text Filter() const override;
  void SetFilter(const Text& filter) override;
  bool IsInputTextEnabled() const override;
  void SetInputTextEnabled(bool enabled) override;
  bool ShowsSave() const override;
  void SetShowSave(bool save) override;
  Text Title() const override;
  void SetTitle(const Text& title) override;
  bool TakesSeveral() const override;
  void SetMultiSelect(bool several) override;
  Text StartFolder() const override;
  void SetStartFolder(const Text& folder) override;

 private:
  class Box;

  void CollectColors(QPalette& own, const QPalette& inherited) const override;
  bool IsBlocked() const override { return m_IsLocked; }
  bool IsClickedBy(const QWidget& part) const override;

  void OnTyped();
  void Choose();
  void Take(const Text& path);
  FileMode Mode() const;
  void ApplyWishes();

  Box* m_Box;
  PathEdit* m_Edit;
  ChoiceButton* m_Button;
  Text m_Path, m_Filter, m_Title, m_StartFolder;
  OleColor m_BackColorBkg = ToOleColor(SystemColor::ButtonFace);
  bool m_BrowsesForFolder = false, m_ShowsSave = false, m_TakesSeveral = false;
  bool m_IsInputTextEnabled = true, m_IsLocked = false;
};

}  // namespace cardwright::qt
