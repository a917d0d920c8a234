#include "cardwright/FormWindow.h"

#include <QCloseEvent>
#include <QMessageBox>
#include <QVBoxLayout>

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
  const QStringList refusals = m_Session.TakeRefusals();
  if (!refusals.isEmpty()) {
    QMessageBox::warning(this, windowTitle(),
                         tr("Nothing was stored.") + QStringLiteral("\n\n") + refusals.join(u'\n'));
    return;
  }
  m_Accepted = true;
  End();
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
