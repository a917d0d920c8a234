// SPDX-License-Identifier: MIT
#include "desktop/FormWindow.h"

#include <QCloseEvent>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include "cardwright/qt/values/QtText.h"
#include "cardwright/runtime/AttributeBinding.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright::desktop {

FormWindow::FormWindow(DataSource& source)
    : m_Data(source), m_Scroll(new QScrollArea(this)), m_Form(new qt::FormInput(m_Scroll)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(m_Scroll);
  m_Scroll->setFrameShape(QFrame::NoFrame);
  m_Scroll->setFocusPolicy(Qt::NoFocus);
  m_Scroll->setWidgetResizable(true);
  m_Scroll->setWidget(m_Form);
  connect(m_Form, &qt::FormInput::NeedResize, this, &FormWindow::Fit);
  connect(m_Form, &qt::FormInput::SetParentCaption, this, &QWidget::setWindowTitle);
  connect(m_Form, &qt::FormInput::OkClick, this, &FormWindow::OnOk);
  connect(m_Form, &qt::FormInput::CancelClick, this, &FormWindow::End);
}

// As large as the form, but not larger than the screen without the window frame.
void FormWindow::Fit() {
  constexpr QSize kFrame(16, 48);
  QSize wanted = m_Form->sizeHint();
  if (m_DebugPane) wanted.rheight() += m_DebugPane->Pane()->minimumHeight();
  const QSize room = screen()->availableGeometry().size() - kFrame;
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  if (wanted.height() > room.height()) wanted.rwidth() += bar;
  if (wanted.width() > room.width()) wanted.rheight() += bar;
  resize(wanted.boundedTo(room));
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

// A form does not report that its feature has been deleted, so this is checked here.
QString FormWindow::Failure() {
  const QStringList refusals = m_Data.TakeRefusals();
  if (!refusals.isEmpty()) return refusals.join(u'\n');
  const Ref<FormInput> form = m_Form->Object();
  if (form->DebugMode() || m_Data.HasFeature(form->GetFeatureClass(), form->FeatureID())) return {};
  return tr("Nothing was stored. The data source no longer has feature %1 of \"%2\".")
      .arg(qt::ToQString(form->FeatureID()), qt::ToQString(form->GetThemeName()));
}

// A window that is closing must not be closed again.
void FormWindow::End() {
  m_Ended = true;
  if (!m_IsClosing) close();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (!m_Ended) {
    m_IsClosing = true;
    m_Form->Object()->Cancel();
    m_IsClosing = false;
  }
  event->setAccepted(m_Ended);
}

}  // namespace cardwright::desktop
