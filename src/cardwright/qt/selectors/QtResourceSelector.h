// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/dialogs/FileChoice.h"
#include "cardwright/qt/selectors/QtSelector.h"

namespace cardwright::qt {

class PathEdit;

/// A field for a path and a button that opens the desktop's choice of files or folders. What is typed is
/// completed by what is there, and a file can be dropped on the field. F4 opens the choice as well.
class QtResourceSelector final : public QtButtonSelector<ResourceSelectorWidget> {
 public:
  explicit QtResourceSelector(WidgetPlace place);

  Text Path() const override;
  void SetPath(const Text& path) override;
  bool BrowseForFolder() const override;
  void SetBrowseForFolder(bool folder) override;
  Text Filter() const override;
  void SetFilter(const Text& filter) override;
  bool IsInputTextEnabled() const override;
  void SetInputTextEnabled(bool enabled) override;
  bool ShowSave() const override;
  void SetShowSave(bool save) override;
  bool MultiSelect() const override;
  void SetMultiSelect(bool several) override;
  Text StartFolder() const override;
  void SetStartFolder(const Text& folder) override;

 private:
  class Box;

  void ApplyLocked() override { ApplySettings(); }
  void RunDialog() override;

  void OnTyped();
  void Take(const Text& path);
  FileMode Mode() const;
  void ApplySettings();

  Box* m_Box;
  PathEdit* m_Edit;
  Text m_Path, m_Filter, m_StartFolder;
  bool m_BrowseForFolder = false, m_ShowSave = false, m_MultiSelect = false;
  bool m_IsInputTextEnabled = true;
};

}  // namespace cardwright::qt
