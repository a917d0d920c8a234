// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "cardwright/editor/OrvEditor.h"
#include "cardwright/qt/VisualControl.h"

namespace cardwright::qt {

class QtEditorSurface;

/// The editor of a form's script as a widget. A container keeps three settings of it, the properties
/// SaveButtonVisible, OrvInfoSearchPath and ToolbarVisible.
///
/// A host may close its window in the middle of a signal, but deletes the editor when the event is through.
class OrvEditor final : public VisualControl {
  Q_OBJECT
  Q_PROPERTY(bool SaveButtonVisible READ SaveButtonVisible WRITE SetSaveButtonVisible NOTIFY
                 SaveButtonVisibleChanged)
  Q_PROPERTY(QString OrvInfoSearchPath READ OrvInfoSearchPath WRITE SetOrvInfoSearchPath NOTIFY
                 OrvInfoSearchPathChanged)
  Q_PROPERTY(bool ToolbarVisible READ ToolbarVisible WRITE SetToolbarVisible NOTIFY ToolbarVisibleChanged)
 public:
  /// An editor with an empty document.
  explicit OrvEditor(QWidget* parent = nullptr);
  ~OrvEditor() override;

  /// The editor without the toolkit.
  Ref<cardwright::OrvEditor> Object() const noexcept { return m_Editor; }
  Ref<cardwright::Object> Control() const override { return m_Editor; }

  /// @name As the members of the same names of cardwright::OrvEditor.
  /// @{
  bool ProjectRead(const QString& fileName);
  QString FileContent() const;
  void SetFileContent(const QString& document);
  bool FileModified() const;
  void SetFileModified(bool modified);
  bool TerminateRequested();
  bool SaveButtonVisible() const;
  void SetSaveButtonVisible(bool visible);
  QString OrvInfoSearchPath() const;
  void SetOrvInfoSearchPath(const QString& path);
  bool ToolbarVisible() const;
  void SetToolbarVisible(bool visible);
  /// @}

  QSize sizeHint() const override;

 Q_SIGNALS:
  /// The user answered that changes are to be saved; a host that has saved them clears FileModified.
  void UserSaveChange();
  /// The caret or the selection has moved.
  void SelChange();
  /// The text has changed.
  void Change();
  /// @name A property has changed
  /// @{
  void SaveButtonVisibleChanged(bool visible);
  void OrvInfoSearchPathChanged(const QString& path);
  void ToolbarVisibleChanged(bool visible);
  /// @}

 private:
  void Forward(std::u16string_view event);
  void TellKept(const QString& name);

  std::unique_ptr<QtEditorSurface> m_Surface;
  Ref<cardwright::OrvEditor> m_Editor;
  int m_Connection = 0;
};

}  // namespace cardwright::qt
