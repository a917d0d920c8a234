// SPDX-License-Identifier: MIT
#include "cardwright/qt/editor/FindDialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

// The literal texts are those that users of the program have always read, in its makers' language.
FindDialog::FindDialog(QWidget* parent)
    : QDialog(parent),
      m_Text(new QComboBox(this)),
      m_Direction(new QComboBox(this)),
      m_WholeWord(new QCheckBox(QStringLiteral("Parola intera"), this)),
      m_MatchCase(new QCheckBox(QStringLiteral("Maiuscole/minuscole"), this)) {
  setObjectName(QStringLiteral("frmTrova"));
  setWindowTitle(QStringLiteral("Trova"));
  m_Text->setEditable(true);
  m_Text->setInsertPolicy(QComboBox::NoInsert);
  m_Text->setCompleter(nullptr);
  m_Text->setMinimumWidth(m_Text->fontMetrics().averageCharWidth() * 36);
  m_Direction->addItems({QStringLiteral("Tutte"), QStringLiteral("Gi\u00F9"), QStringLiteral("Su")});
  NameParts();
  LayOutParts();
}

void FindDialog::NameParts() {
  m_Text->setObjectName(QStringLiteral("cmbCerca"));
  m_Direction->setObjectName(QStringLiteral("cmbDirezione"));
  m_WholeWord->setObjectName(QStringLiteral("chkParziale"));
  m_MatchCase->setObjectName(QStringLiteral("chkMaiuMin"));
}

void FindDialog::LayOutParts() {
  auto* const criteria = new QGroupBox(QStringLiteral("Criteri di ricerca"), this);
  auto* const rows = new QFormLayout(criteria);
  rows->addRow(QStringLiteral("Direzione:"), m_Direction);
  rows->addRow(m_WholeWord);
  rows->addRow(m_MatchCase);

  auto* const ok = new QPushButton(QStringLiteral("OK"), this);
  ok->setObjectName(QStringLiteral("cmdOK"));
  ok->setDefault(true);
  auto* const cancel = new QPushButton(QStringLiteral("&Annulla"), this);
  cancel->setObjectName(QStringLiteral("cmdAnnulla"));
  connect(ok, &QPushButton::clicked, this, &FindDialog::OnOk);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);

  auto* const text = new QFormLayout;
  text->addRow(QStringLiteral("Cerca:"), m_Text);
  auto* const all = new QVBoxLayout(this);
  all->addLayout(text);
  all->addWidget(criteria);
  all->addLayout(buttons);
}

void FindDialog::SetSearched(const Text& text) { m_Text->setEditText(ToQString(text)); }

void FindDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  m_IsAsked = false;
  m_Text->setFocus();
  m_Text->lineEdit()->selectAll();
}

void FindDialog::OnOk() {
  const QString text = m_Text->currentText();
  m_History.Add(FromQString(text));
  m_Text->clear();
  for (const Text& each : m_History.Texts()) m_Text->addItem(ToQString(each));
  m_Text->setEditText(text);
  m_IsAsked = !text.isEmpty();
  accept();
}

std::optional<SearchRequest> FindDialog::Request() const {
  if (!m_IsAsked) return std::nullopt;
  return SearchRequest{FromQString(m_Text->currentText()), m_WholeWord->isChecked(), m_MatchCase->isChecked(),
                       m_Direction->currentIndex()};
}

}  // namespace cardwright::qt
