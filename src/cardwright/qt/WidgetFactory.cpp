#include "cardwright/qt/WidgetFactory.h"

#include <algorithm>
#include <array>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/AttributeSelectorBox.h"
#include "cardwright/qt/CaptionWidgets.h"
#include "cardwright/qt/ColorSelectorBox.h"
#include "cardwright/qt/ComboBoxWidget.h"
#include "cardwright/qt/DbTableViewerBox.h"
#include "cardwright/qt/FontSelectorBox.h"
#include "cardwright/qt/ListViewBox.h"
#include "cardwright/qt/MultilineTextBoxWidget.h"
#include "cardwright/qt/PictureBoxWidget.h"
#include "cardwright/qt/ResourceSelectorBox.h"
#include "cardwright/qt/StateWidgets.h"
#include "cardwright/qt/TextBoxWidget.h"
#include "cardwright/qt/ThemeSelectorBox.h"

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
    Maker{u"VB.Label", &Make<LabelWidget>},
    Maker{u"VB.Frame", &Make<FrameWidget>},
    Maker{u"VB.CommandButton", &Make<CommandButtonWidget>},
    Maker{u"VB.CheckBox", &Make<CheckBoxWidget>},
    Maker{u"VB.OptionButton", &Make<OptionButtonWidget>},
    Maker{u"VB.TextBox", &Make<TextBoxWidget>},
    Maker{u"CardwrightCtrl.MultilineTextBox", &Make<MultilineTextBoxWidget>},
    Maker{u"VB.ComboBox", &Make<ComboBoxWidget>},
    Maker{u"MSComctlLib.ListViewCtrl.2", &Make<ListViewBox>},
    Maker{u"CardwrightCtrl.ResourceSelector", &Make<ResourceSelectorBox>},
    Maker{u"CardwrightCtrl.ThemeSelector", &Make<ThemeSelectorBox>},
    Maker{u"CardwrightCtrl.AttributeSelector", &Make<AttributeSelectorBox>},
    Maker{u"CardwrightCtrl.FontSelector", &Make<FontSelectorBox>},
    Maker{u"CardwrightCtrl.ColorSelector", &Make<ColorSelectorBox>},
    Maker{u"VB.PictureBox", &Make<PictureBoxWidget>},
    Maker{u"CardwrightCtrl.DbTableViewer", &Make<DbTableViewerBox>},
};

}  // namespace

Ref<Widget> CreateWidget(std::u16string_view identifier, WidgetPlace place) {
  const auto maker = std::find_if(kMakers.begin(), kMakers.end(),
                                  [&](const Maker& m) { return EqualsNoCase(m.identifier, identifier); });
  if (maker == kMakers.end()) Raise(ErrorNumber::CannotCreateObject);
  return maker->make(std::move(place));
}

}  // namespace cardwright::qt
