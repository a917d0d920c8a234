// SPDX-License-Identifier: MIT
#include "cardwright/qt/surface/WidgetFactory.h"

#include <algorithm>
#include <vector>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/selectors/QtAttributeSelector.h"
#include "cardwright/qt/selectors/QtColorSelector.h"
#include "cardwright/qt/selectors/QtFontSelector.h"
#include "cardwright/qt/selectors/QtResourceSelector.h"
#include "cardwright/qt/selectors/QtThemeSelector.h"
#include "cardwright/qt/widgets/CaptionWidgets.h"
#include "cardwright/qt/widgets/QtComboBox.h"
#include "cardwright/qt/widgets/QtListView.h"
#include "cardwright/qt/widgets/QtMultilineTextBox.h"
#include "cardwright/qt/widgets/QtPictureBox.h"
#include "cardwright/qt/widgets/QtTextBox.h"
#include "cardwright/qt/widgets/StateWidgets.h"

namespace cardwright::qt {

namespace {

struct Kind {
  std::u16string_view identifier;
  WidgetMaker make;
};

std::vector<Kind>& Kinds() {
  static std::vector<Kind> kinds = {
      {u"VB.Label", MakeWidget<QtLabel>},
      {u"VB.Frame", MakeWidget<QtFrame>},
      {u"VB.CommandButton", MakeWidget<QtCommandButton>},
      {u"VB.CheckBox", MakeWidget<QtCheckBox>},
      {u"VB.OptionButton", MakeWidget<QtOptionButton>},
      {u"VB.TextBox", MakeWidget<QtTextBox>},
      {u"CardwrightCtrl.MultilineTextBox", MakeWidget<QtMultilineTextBox>},
      {u"VB.ComboBox", MakeWidget<QtComboBox>},
      {u"MSComctlLib.ListViewCtrl.2", MakeWidget<QtListView>},
      {u"CardwrightCtrl.ResourceSelector", MakeWidget<QtResourceSelector>},
      {u"CardwrightCtrl.ThemeSelector", MakeWidget<QtThemeSelector>},
      {u"CardwrightCtrl.AttributeSelector", MakeWidget<QtAttributeSelector>},
      {u"CardwrightCtrl.FontSelector", MakeWidget<QtFontSelector>},
      {u"CardwrightCtrl.ColorSelector", MakeWidget<QtColorSelector>},
      {u"VB.PictureBox", MakeWidget<QtPictureBox>},
      {u"CardwrightCtrl.DbTableViewer", MakeWidget<QtDbTableViewer>},
  };
  return kinds;
}

}  // namespace

void AddWidgetKind(std::u16string_view identifier, WidgetMaker make) {
  Kinds().push_back({identifier, make});
}

Ref<Widget> CreateWidget(std::u16string_view identifier, WidgetPlace place) {
  const auto kind = std::ranges::find_if(
      Kinds(), [&](const Kind& known) { return EqualsNoCase(known.identifier, identifier); });
  if (kind == Kinds().end()) Raise(ErrorNumber::CannotCreateObject);
  return kind->make(std::move(place));
}

}  // namespace cardwright::qt
