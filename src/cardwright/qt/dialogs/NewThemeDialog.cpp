// SPDX-License-Identifier: MIT
#include "cardwright/qt/dialogs/NewThemeDialog.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "cardwright/platform/SelectorWidgets.h"
#include "cardwright/qt/dialogs/RunDialog.h"
#include "cardwright/qt/values/FeatureTypeIcon.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

constexpr int kLongestName = 60;
constexpr FeatureTypeEnum kKinds[] = {FeatureTypeEnum::ftPoint, FeatureTypeEnum::ftArc,
                                      FeatureTypeEnum::ftPolygon};

bool CanBeNamed(std::u16string_view name) { return name.find_first_of(u",|") == std::u16string_view::npos; }

class NewThemeDialog final : public QDialog {
 public:
  NewThemeDialog(QWidget* parent, const QString& title, std::function<bool(std::u16string_view)> isTaken)
      : QDialog(parent), m_IsTaken(std::move(isTaken)) {
    setObjectName(QStringLiteral("frmNewTheme"));
    setWindowTitle(
        QString(title).remove(u'&').remove(QStringLiteral("\u2026")).remove(QStringLiteral("...")));
    NameParts();
    auto* const fields = new QFormLayout;
    fields->addRow(tr("&Name:"), m_Name);
    fields->addRow(tr("&Kind:"), m_Kind);
    fields->addRow(QString(), m_Problem);
    auto* const all = new QVBoxLayout(this);
    all->addLayout(fields);
    all->addWidget(m_Buttons);
    connect(m_Name, &QLineEdit::textChanged, this, [this] { Validate(); });
    connect(m_Buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_Buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    Validate();
  }

  NewTheme Plan() const { return {FromQString(m_Name->text().trimmed()), kKinds[m_Kind->currentIndex()]}; }

 private:
  void NameParts() {
    m_Name->setObjectName(QStringLiteral("txtName"));
    m_Name->setMaxLength(kLongestName);
    m_Name->setMinimumWidth(m_Name->fontMetrics().averageCharWidth() * 32);
    m_Kind->setObjectName(QStringLiteral("cboKind"));
    const QColor color = palette().color(QPalette::ButtonText);
    for (const FeatureTypeEnum kind : kKinds) {
      const auto number = static_cast<std::int32_t>(kind);
      m_Kind->addItem(FeatureTypeIcon(number, color, devicePixelRatioF()),
                      ToQString(FeatureTypeToText(number)));
    }
    m_Buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    m_Buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    m_Problem->setWordWrap(true);
  }

  /// Says what is wrong with the name, and lets only a good one pass.
  void Validate() {
    const QString name = m_Name->text().trimmed();
    QString problem;
    if (!CanBeNamed(ViewOf(name))) problem = tr("A name cannot hold a comma or a vertical bar.");
    if (m_IsTaken(ViewOf(name))) problem = tr("There is a theme of that name already.");
    m_Problem->setText(problem);
    m_Buttons->button(QDialogButtonBox::Ok)->setEnabled(!name.isEmpty() && problem.isEmpty());
  }

  const std::function<bool(std::u16string_view)> m_IsTaken;
  QLineEdit* const m_Name = new QLineEdit(this);
  QComboBox* const m_Kind = new QComboBox(this);
  QLabel* const m_Problem = new QLabel(this);
  QDialogButtonBox* const m_Buttons =
      new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
};

}  // namespace

std::optional<NewTheme> AskForNewTheme(QWidget& owner, const QString& title,
                                       std::function<bool(std::u16string_view name)> isTaken) {
  std::optional<NewTheme> plan;
  RunDialog(new NewThemeDialog(owner.window(), title, std::move(isTaken)), owner,
            [&](const NewThemeDialog& accepted) { plan = accepted.Plan(); });
  return plan;
}

}  // namespace cardwright::qt
