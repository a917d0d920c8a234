// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "cardwright/editor/EditorSurface.h"

class QLineEdit;
class QPlainTextEdit;

namespace cardwright::qt {

/// The window that describes a host command, "frmOrvDesc". It is next to the window of its owner, which
/// keeps the keyboard.
class DescriptionDialog final : public QDialog, public DescriptionWindow {
  Q_OBJECT
 public:
  explicit DescriptionDialog(QWidget* owner);

  Text Caption() const override;
  Text Category() const override;
  void SetCategory(const Text& category) override;
  Text Syntax() const override;
  void SetSyntax(const Text& syntax) override;
  Text Tip() const override;
  void SetTip(const Text& tip) override;
  ScreenRect Place() const override;
  void SetPlace(const ScreenRect& twips) override;
  void SetVisible(bool visible) override;
  bool IsVisible() const override { return isVisible(); }
  bool IsActive() const override { return isActiveWindow(); }

 Q_SIGNALS:
  void PlaceChanged();
  /// The user has closed the window.
  void Closed();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  QLineEdit* const m_Syntax;
  QLineEdit* const m_Category;
  QPlainTextEdit* const m_Tip;
};

}  // namespace cardwright::qt
