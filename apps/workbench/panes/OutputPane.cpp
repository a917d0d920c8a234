// SPDX-License-Identifier: MIT
#include "workbench/panes/OutputPane.h"

#include <QFontDatabase>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>

namespace cardwright::workbench {
namespace {

constexpr int kMostLines = 20000;

}  // namespace

OutputPane::OutputPane(QWidget* parent)
    : QWidget(parent),
      m_Tabs(new QTabWidget(this)),
      m_Debug(MakeRef<desktop::DebugPane>(*this)),
      m_Commands(new QPlainTextEdit(this)) {
  const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  m_Debug->Pane()->setMinimumHeight(0);
  for (QPlainTextEdit* pane : {m_Debug->Pane(), m_Commands}) {
    pane->setFont(fixed);
    pane->setReadOnly(true);
    pane->setTabChangesFocus(true);
    pane->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    pane->setLineWrapMode(QPlainTextEdit::NoWrap);
    pane->setMaximumBlockCount(kMostLines);
    pane->setFrameShape(QFrame::NoFrame);
    pane->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(pane, &QWidget::customContextMenuRequested, this,
            [this, pane](const QPoint& place) { OpenMenu(*pane, place); });
  }
  m_Commands->setAccessibleName(tr("Commands of the host"));
  m_Tabs->addTab(m_Debug->Pane(), tr("Debug output"));
  m_Tabs->addTab(m_Commands, tr("Host commands"));
  m_Tabs->setDocumentMode(true);
  connect(m_Tabs, &QTabWidget::currentChanged, this, [this] { setFocusProxy(m_Tabs->currentWidget()); });
  setFocusProxy(m_Tabs->currentWidget());
  auto* clear = new QPushButton(tr("Clear"), m_Tabs);
  clear->setFlat(true);
  clear->setAutoDefault(false);
  connect(clear, &QPushButton::clicked, this, &OutputPane::Clear);
  m_Tabs->setCornerWidget(clear);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(m_Tabs);
}

void OutputPane::OpenMenu(QPlainTextEdit& pane, const QPoint& place) {
  const std::unique_ptr<QMenu> menu(pane.createStandardContextMenu(place));
  menu->addSeparator();
  connect(menu->addAction(tr("C&lear")), &QAction::triggered, &pane, &QPlainTextEdit::clear);
  menu->exec(pane.mapToGlobal(place));
}

void OutputPane::Clear() {
  if (auto* pane = qobject_cast<QPlainTextEdit*>(m_Tabs->currentWidget())) pane->clear();
}

}  // namespace cardwright::workbench
