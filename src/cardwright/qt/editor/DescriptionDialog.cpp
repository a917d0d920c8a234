// SPDX-License-Identifier: MIT
#include "cardwright/qt/editor/DescriptionDialog.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "cardwright/platform/Scale.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

constexpr int kTwips = static_cast<int>(kTwipsPerPixel);

}  // namespace

// The literal texts are those that users of the program have always read, in its makers' language.
DescriptionDialog::DescriptionDialog(QWidget* owner)
    : QDialog(owner, Qt::Tool),
      m_Syntax(new QLineEdit(this)),
      m_Category(new QLineEdit(this)),
      m_Tip(new QPlainTextEdit(this)) {
  setObjectName(QStringLiteral("frmOrvDesc"));
  setWindowTitle(QStringLiteral("Descrizione ORV"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  m_Syntax->setObjectName(QStringLiteral("txtORV"));
  m_Category->setObjectName(QStringLiteral("txtTipo"));
  m_Tip->setObjectName(QStringLiteral("txtTooltip"));
  m_Syntax->setReadOnly(true);
  m_Category->setReadOnly(true);
  m_Tip->setReadOnly(true);
  m_Tip->setTabChangesFocus(true);
  auto* const all = new QVBoxLayout(this);
  const auto add = [&](const QString& title, QWidget* field) {
    auto* const label = new QLabel(title, this);
    label->setBuddy(field);
    field->setAccessibleName(title);
    all->addWidget(label);
    all->addWidget(field);
  };
  add(QStringLiteral("Sintassi:"), m_Syntax);
  add(QStringLiteral("Tipologia:"), m_Category);
  add(QStringLiteral("Guida:"), m_Tip);
}

Text DescriptionDialog::Caption() const { return FromQString(windowTitle()); }
Text DescriptionDialog::Category() const { return FromQString(m_Category->text()); }
void DescriptionDialog::SetCategory(const Text& category) { m_Category->setText(ToQString(category)); }
Text DescriptionDialog::Syntax() const { return FromQString(m_Syntax->text()); }

void DescriptionDialog::SetSyntax(const Text& syntax) {
  m_Syntax->setText(ToQString(syntax));
  m_Syntax->setCursorPosition(0);
}

Text DescriptionDialog::Tip() const { return FromQString(m_Tip->toPlainText()); }
void DescriptionDialog::SetTip(const Text& tip) { m_Tip->setPlainText(ToQString(tip)); }

ScreenRect DescriptionDialog::Place() const {
  const QRect place(pos(), size());
  return {place.left() * kTwips, place.top() * kTwips, (place.left() + place.width()) * kTwips,
          (place.top() + place.height()) * kTwips};
}

void DescriptionDialog::SetPlace(const ScreenRect& twips) {
  if (twips.Width() > 0 && twips.Height() > 0) resize(twips.Width() / kTwips, twips.Height() / kTwips);
  move(twips.left / kTwips, twips.top / kTwips);
}

void DescriptionDialog::SetVisible(bool visible) { setVisible(visible); }

void DescriptionDialog::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (isVisible()) Q_EMIT PlaceChanged();
}

void DescriptionDialog::moveEvent(QMoveEvent* event) {
  QDialog::moveEvent(event);
  if (isVisible()) Q_EMIT PlaceChanged();
}

void DescriptionDialog::closeEvent(QCloseEvent* event) {
  QDialog::closeEvent(event);
  Q_EMIT Closed();
}

}  // namespace cardwright::qt
