// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "cardwright/editor/SyntaxOptions.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace cardwright::qt {

class ColorSwatch;

/// The dialog for font and colours of the script editor, "frmProps".
class OptionsDialog final : public QDialog {
 public:
  OptionsDialog(QWidget* parent, SyntaxOptions& options);

 private:
  void NameParts();
  void LayOutParts();
  QLayout* LayOutFont();
  QWidget* LayOutColors();
  void ShowFont();
  void ShowElement();
  void ShowSample();
  void OnFontName(const QString& name);
  void OnFontSize(const QString& size);
  void OnBold(bool bold);
  void OnBrowse();

  SyntaxOptions& m_Options;
  QListWidget* const m_Elements;
  QComboBox* const m_FontName;
  QComboBox* const m_FontSize;
  QCheckBox* const m_Bold;
  QPushButton* const m_Browse;
  ColorSwatch* const m_Color;
  QLabel* const m_Sample;
};

}  // namespace cardwright::qt
