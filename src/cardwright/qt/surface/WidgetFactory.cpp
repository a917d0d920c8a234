#include "cardwright/qt/surface/WidgetFactory.h"

#include <algorithm>
#include <array>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/selectors/QtAttributeSelector.h"
#include "cardwright/qt/selectors/QtColorSelector.h"
#include "cardwright/qt/selectors/QtFontSelector.h"
#include "cardwright/qt/selectors/QtResourceSelector.h"
#include "cardwright/qt/selectors/QtThemeSelector.h"
#include "cardwright/qt/widgets/CaptionWidgets.h"
#include "cardwright/qt/widgets/QtComboBox.h"
#include "cardwright/qt/widgets/QtDbTableViewer.h"
#include "cardwright/qt/widgets/QtListView.h"
#include "cardwright/qt/widgets/QtMultilineTextBox.h"
#include "cardwright/qt/widgets/QtPictureBox.h"
#include "cardwright/qt/widgets/QtTextBox.h"
#include "cardwright/qt/widgets/StateWidgets.h"

namespace cardwright::qt {

namespace {

struct Maker {
  std::u16string_view identifier;
  Ref<Widget> (*make)(WidgetPlace place);
};

template <class T>
Ref<Widget> Make(WidgetPlace place) {
  return MakeRef<T>(std::move(place));
}

constexpr std::array kMakers = {
    Maker{u"VB.Label", &Make<QtLabel>},
    Maker{u"VB.Frame", &Make<QtFrame>},
    Maker{u"VB.CommandButton", &Make<QtCommandButton>},
    Maker{u"VB.CheckBox", &Make<QtCheckBox>},
    Maker{u"VB.OptionButton", &Make<QtOptionButton>},
    Maker{u"VB.TextBox", &Make<QtTextBox>},
    Maker{u"CardwrightCtrl.MultilineTextBox", &Make<QtMultilineTextBox>},
    Maker{u"VB.ComboBox", &Make<QtComboBox>},
    Maker{u"MSComctlLib.ListViewCtrl.2", &Make<QtListView>},
    Maker{u"CardwrightCtrl.ResourceSelector", &Make<QtResourceSelector>},
    Maker{u"CardwrightCtrl.ThemeSelector", &Make<QtThemeSelector>},
    Maker{u"CardwrightCtrl.AttributeSelector", &Make<QtAttributeSelector>},
    Maker{u"CardwrightCtrl.FontSelector", &Make<QtFontSelector>},
    Maker{u"CardwrightCtrl.ColorSelector", &Make<QtColorSelector>},
    Maker{u"VB.PictureBox", &Make<QtPictureBox>},
    Maker{u"CardwrightCtrl.DbTableViewer", &Make<QtDbTableViewer>},
};

}  // namespace

Ref<Widget> CreateWidget(std::u16string_view identifier, WidgetPlace place) {
  const auto maker = std::find_if(kMakers.begin(), kMakers.end(),
                                  [&](const Maker& m) { return EqualsNoCase(m.identifier, identifier); });
  if (maker == kMakers.end()) Raise(ErrorNumber::CannotCreateObject);
  return maker->make(std::move(place));
}

}  // namespace cardwright::qt
