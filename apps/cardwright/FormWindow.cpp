#include "cardwright/FormWindow.h"

#include <QCloseEvent>
#include <QMessageBox>
#include <QVBoxLayout>

#include "qt/QtText.h"
#include "runtime/AttributeBinding.h"
#include "shared/ModuleState.h"

namespace cardwright::app {

FormWindow::FormWindow(Session& session) : m_Session(session), m_Form(new qt::FormInput(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSizeConstraint(QLayout::SetMinimumSize);
  layout->addWidget(m_Form);
  connect(m_Form, &qt::FormInput::NeedResize, this, [this] { adjustSize(); });
  connect(m_Form, &qt::FormInput::SetParentCaption, this, &QWidget::setWindowTitle);
  connect(m_Form, &qt::FormInput::OkClick, this, &FormWindow::OnOk);
  connect(m_Form, &qt::FormInput::CancelClick, this, &FormWindow::End);
}

void FormWindow::ShowDebugOutput() {
  m_DebugPane = MakeRef<DebugPane>(*this);
  layout()->addWidget(m_DebugPane->Pane());
  Module().debugOutput = m_DebugPane;
}

void FormWindow::OnOk() {
  const QString failure = Failure();
  if (!failure.isEmpty()) {
    QMessageBox::warning(this, windowTitle(), failure);
    return;
  }
  m_Accepted = true;
  if (!m_DebugPane) End();
}

// A form passes over a feature that is gone without a word, so this is asked here.
QString FormWindow::Failure() {
  const QStringList refusals = m_Session.TakeRefusals();
  if (!refusals.isEmpty()) return refusals.join(u'\n');
  const Ref<FormInput> form = m_Form->Object();
  if (form->DebugMode() || m_Session.HasFeature(PlaceOf(*form), form->FeatureID())) return {};
  return tr("Nothing was stored. The data source no longer has feature %1 of \"%2\".")
      .arg(qt::ToQString(form->FeatureID()), qt::ToQString(form->GetThemeName()));
}

void FormWindow::End() {
  m_Ended = true;
  close();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (m_Ended) return event->accept();
  event->ignore();
  m_Form->Object()->Cancel();
}

}  // namespace cardwright::app
