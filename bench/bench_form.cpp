// SPDX-License-Identifier: MIT
// Building a form of 500 mixed controls: from a form project, from the toolkit's own XML, and by plain code.

#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QUiLoader>
#include <memory>

#include "FormFiles.h"
#include "Measure.h"
#include "cardwright/qt/FormInput.h"
#include "cardwright/qt/Library.h"

namespace {

using bench::Element;
using bench::Kind;

void Require(bool holds) {
  if (!holds) std::abort();
}

void ReadProject(const QString& path, std::size_t controls) {
  cardwright::qt::FormInput form;
  Require(form.ProjectRead(path));
  Require(static_cast<std::size_t>(form.Object()->Controls().Count()) == controls + 1);
}

void LoadUi(QByteArray xml) {
  QUiLoader loader;
  QBuffer buffer(&xml);
  buffer.open(QIODevice::ReadOnly);
  const std::unique_ptr<QWidget> form(loader.load(&buffer));
  Require(form != nullptr);
}

QWidget* Make(Kind kind, const QString& text, QWidget* parent) {
  switch (kind) {
    case Kind::Frame: return new QGroupBox(text, parent);
    case Kind::Label: return new QLabel(text, parent);
    case Kind::TextBox: return new QLineEdit(parent);
    case Kind::CheckBox: return new QCheckBox(text, parent);
    case Kind::OptionButton: return new QRadioButton(text, parent);
    case Kind::CommandButton: return new QPushButton(text, parent);
    case Kind::Multiline: return new QPlainTextEdit(parent);
    case Kind::ComboBox: {
      auto* combo = new QComboBox(parent);
      for (int i = 1; i <= 5; ++i) combo->addItem(QStringLiteral("Item %1").arg(i));
      return combo;
    }
    case Kind::ListBox: {
      auto* list = new QListWidget(parent);
      for (int i = 1; i <= 5; ++i) list->addItem(QStringLiteral("Item %1").arg(i));
      return list;
    }
  }
  return nullptr;
}

void BuildDirectly(const std::vector<Element>& elements) {
  QWidget form;
  const QFont font(QStringLiteral("DejaVu Sans"), 8);
  QPalette plain = form.palette();
  plain.setColor(QPalette::Window, QColor(240, 240, 240));
  plain.setColor(QPalette::WindowText, Qt::black);
  QPalette edit = form.palette();
  edit.setColor(QPalette::Base, Qt::white);
  edit.setColor(QPalette::Text, Qt::black);
  QWidget* frame = nullptr;
  for (const Element& element : elements) {
    const Kind kind = element.kind;
    const bool isEdit =
        kind == Kind::TextBox || kind == Kind::ComboBox || kind == Kind::Multiline || kind == Kind::ListBox;
    QWidget* widget =
        Make(kind, QStringLiteral("Text %1").arg(element.number), kind == Kind::Frame ? &form : frame);
    if (kind == Kind::Frame) frame = widget;
    widget->setGeometry(element.left, element.top, element.width, element.height);
    widget->setFont(font);
    if (kind != Kind::CommandButton) widget->setPalette(isEdit ? edit : plain);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const cardwright::qt::Library library;
  const std::vector<Element> form = bench::MixedForm(25);
  const std::string path = std::string(CARDWRIGHT_BENCH_DATA) + "/mixed.cwf";
  bench::WriteProject(path, form);
  const QByteArray xml = QByteArray::fromStdString(bench::UiXml(form));

  const auto ours = [&] { ReadProject(QString::fromStdString(path), form.size()); };
  bench::Compare("FormInput.ProjectRead, 500 mixed controls", "QUiLoader", 0.8, 15, ours,
                 [&] { LoadUi(xml); });
  bench::Compare("FormInput.ProjectRead, 500 mixed controls", "direct construction", 0, 15, ours,
                 [&] { BuildDirectly(form); });
  return 0;
}
