// SPDX-License-Identifier: MIT
// A host for the form designer: tool box, surface, and a line that shows what is selected. A larger host uses
// the same signals.
#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>

#include "cardwright/qt/FormDesigner.h"
#include "cardwright/qt/Library.h"
#include "cardwright/qt/values/QtText.h"

using cardwright::ControlTypeEnum;
using cardwright::qt::FormDesigner;
using cardwright::qt::ToQString;

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const cardwright::qt::Library library;  // before the first visual control
  const QString file = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("form.cwf");

  QWidget window;
  auto* designer = new FormDesigner;
  auto* scroll = new QScrollArea;
  scroll->setWidget(designer);  // the form is as large as its author makes it
  auto* tools = new QListWidget;
  tools->addItems(
      {"Select", "Check box", "Combo box", "Button", "Frame", "Label", "List", "Option", "Text", "Memo"});
  auto* selected = new QLabel;
  auto* save = new QPushButton("Save");

  // A kind that is chosen is drawn by the next press; then the designer is back at selection.
  QObject::connect(tools, &QListWidget::currentRowChanged, [designer](int row) {
    designer->Object()->SetControlTypeToAdd(static_cast<ControlTypeEnum>(row));
  });
  QObject::connect(designer, &FormDesigner::StateChanged, tools, [tools] { tools->setCurrentRow(0); });
  QObject::connect(designer, &FormDesigner::CurrObjectChanged,
                   [selected](const cardwright::IControl* control) {
                     selected->setText(ToQString(control->TypeName()) + " " + ToQString(control->UserName()));
                   });
  QObject::connect(designer, &FormDesigner::NeedResize, scroll,
                   [scroll] { scroll->widget()->updateGeometry(); });
  QObject::connect(save, &QPushButton::clicked, [designer, file] { designer->ProjectSave(file); });

  designer->resize(480, 360);
  designer->ProjectRead(file);  // a file that is not there is an empty form
  designer->Object()->SetGridAlignment(true);

  auto* layout = new QGridLayout(&window);
  layout->addWidget(tools, 0, 0);
  layout->addWidget(scroll, 0, 1);
  layout->addWidget(save, 1, 0);
  layout->addWidget(selected, 1, 1);
  layout->setColumnStretch(1, 1);
  window.resize(760, 480);
  window.show();
  return QApplication::exec();
}
