#include "workbench/project/Kinds.h"

#include <QCoreApplication>

#include "cardwright/model/ControlClasses.h"

namespace cardwright::workbench {
namespace {

using enum ControlTypeEnum;

constexpr Kind kKinds[] = {
    {ctLabel, QT_TRANSLATE_NOOP("Kinds", "Label"), {96, 20}},
    {ctTextBox, QT_TRANSLATE_NOOP("Kinds", "Text box"), {144, 24}},
    {ctTextBoxMultiline, QT_TRANSLATE_NOOP("Kinds", "Text box, lines"), {192, 72}},
    {ctCheckBox, QT_TRANSLATE_NOOP("Kinds", "Check box"), {128, 24}},
    {ctOptionButton, QT_TRANSLATE_NOOP("Kinds", "Option button"), {128, 24}},
    {ctComboBox, QT_TRANSLATE_NOOP("Kinds", "Combo box"), {144, 24}},
    {ctListBox, QT_TRANSLATE_NOOP("Kinds", "List box"), {144, 96}},
    {ctFrame, QT_TRANSLATE_NOOP("Kinds", "Frame"), {240, 120}},
    {ctCommandButton, QT_TRANSLATE_NOOP("Kinds", "Button"), {96, 32}},
    {ctResourceSelector, QT_TRANSLATE_NOOP("Kinds", "File selector"), {208, 24}},
    {ctThemeSelector, QT_TRANSLATE_NOOP("Kinds", "Theme selector"), {144, 24}},
    {ctAttributeSelector, QT_TRANSLATE_NOOP("Kinds", "Attribute selector"), {144, 24}},
    {ctFontSelector, QT_TRANSLATE_NOOP("Kinds", "Font selector"), {144, 32}},
    {ctColorSelector, QT_TRANSLATE_NOOP("Kinds", "Colour selector"), {64, 24}},
};

}  // namespace

std::span<const Kind> Kinds() noexcept { return kKinds; }

ControlTypeEnum KindOf(const IControl& control) {
  const Text type = control.TypeName();
  for (const ControlClass& known : ControlClasses())
    if (type == known.table->className) return known.type;
  return ctDefault;
}

QString KindName(ControlTypeEnum type) {
  for (const Kind& kind : kKinds)
    if (kind.type == type) return QCoreApplication::translate("Kinds", kind.name);
  return QCoreApplication::translate("Kinds", "Form");
}

}  // namespace cardwright::workbench
