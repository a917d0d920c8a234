// SPDX-License-Identifier: MIT
// Every row of every class of form element is opened, changed and restored by keyboard alone.

#include <QFileDialog>
#include <QFontDialog>

#include "cardwright/model/CItems.h"
#include "cardwright/platform/Picture.h"
#include "workbench/PropertyGridTest.h"
#include "workbench/grid/ItemsDialog.h"
#include "workbench/project/KindName.h"

namespace cardwright::workbench {
namespace {

using enum PropertyTypeEnum;

/// Texts that lists accept; they ignore any other.
struct Wanted {
  const char* kind;
  const char* row;
  const char* text;
};
constexpr Wanted kWanted[] = {{"CComboBox", "Text", "poor"},
                              {"CThemeSelector", "Text", "pipelines"},
                              {"CAttributeSelector", "Text", "DEPTH"},
                              {"CForm", "ThemeName", "pipelines"}};

class EveryRowTest : public PropertyGridTest, public testing::WithParamInterface<ControlTypeEnum> {
 protected:
  void SetUp() override {
    ASSERT_TRUE(bench->OpenData(Example("wells.gpkg")));
    MakeTargets();
    if (GetParam() == ControlTypeEnum::ctDefault) {
      SelectForm();
    } else {
      Add(GetParam());
    }
    control = Designer().CurrentControl();
    MakeChoices();
    Rows().RefreshAll();
    bench->List().setFocus();
    Press(Qt::Key_3, Qt::AltModifier);
    ASSERT_EQ(QApplication::focusWidget(), &View());
    Press(Qt::Key_Home, Qt::ControlModifier);
  }

  /// Controls that links can name.
  void MakeTargets() {
    for (const ControlTypeEnum kind : {ControlTypeEnum::ctThemeSelector, ControlTypeEnum::ctComboBox})
      for (int i = 0; i < 2; ++i) Add(kind);
  }
  /// Choices for the row, one of them its value.
  void MakeChoices() {
    const auto set = [&](const char16_t* row, const char16_t* text) {
      control->SetPropertyValue(Text(row), Variant(text));
    };
    const Variant font = control->PropertyValue(u"Font");
    if (font.IsObject()) dynamic_cast<Font&>(*font.ObjectPtr()).Assign({.size = 9});  // as its dialog does
    const Variant list = control->PropertyValue(u"Items");
    if (list.IsObject()) {
      auto* items = dynamic_cast<CItems*>(list.ObjectPtr());
      for (const char16_t* text : {u"good", u"poor"}) {
        auto item = MakeRef<CItem>();
        item->m_Text = item->m_Value = text;
        items->Add(item);
      }
      control->Refresh();
      set(u"Text", u"good");
    }
    if (GetParam() != ControlTypeEnum::ctAttributeSelector) return;
    const Ref<IControl> themes = Designer().FilterControls(ControlTypeEnum::ctThemeSelector).at(0);
    themes->SetPropertyValue(u"Text", Variant(u"wells"));
    control->SetPropertyValue(u"ThemeSelectorName", Variant(themes->UserName()));
  }

  Variant Now() { return control->PropertyValue(Variant(std::int32_t{View().currentIndex().row()})); }
  /// A text for a value; equal values have equal texts.
  static std::string Shown(const Variant& value) {
    if (!value.IsObject()) return qt::ToQString(ToText(value)).toStdString();
    if (const auto* font = dynamic_cast<const Font*>(value.ObjectPtr()))
      return qt::ToQString(font->Values().name).toStdString() + std::to_string(font->Values().size);
    if (const auto* picture = dynamic_cast<const Picture*>(value.ObjectPtr()))
      return std::to_string(picture->Pixels().at(0));
    std::string all;
    if (const auto* items = dynamic_cast<const CItems*>(value.ObjectPtr()))
      for (std::int32_t i = 1; i <= items->Count(); ++i)
        all += qt::ToQString(items->Item(Variant(i))->m_Text + items->Item(Variant(i))->m_Value + u";")
                   .toStdString();
    return all;
  }

  /// Types a value, where the row allows it.
  void WriteValue(const QString& text) {
    Press(Qt::Key_F2);
    ASSERT_NE(EditorAs<QWidget>(), nullptr);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    KeyIn(text);
    PressAndWait(Qt::Key_Return);
    ASSERT_EQ(Editor(), nullptr) << Notice().toStdString();
  }
  /// Moves through a list from its first choice.
  void Step(int steps) {
    PressAndWait(Qt::Key_F4);
    ASSERT_NE(EditorAs<QComboBox>(), nullptr);
    Press(Qt::Key_Home);
    for (int i = 0; i < steps; ++i) Press(Qt::Key_Down);
    PressAndWait(Qt::Key_Return);
    ASSERT_EQ(Editor(), nullptr);
  }
  void StepToAnother() {
    Press(Qt::Key_F2);
    ASSERT_NE(EditorAs<QComboBox>(), nullptr);
    const int now = EditorAs<QComboBox>()->currentIndex();
    PressAndWait(Qt::Key_Escape);
    Step(now == 1 ? 0 : 1);
  }
  void SetFontSize(double points) {
    MeetByKeys<QFontDialog>([points](QFontDialog& dialog) {
      QFont font = dialog.currentFont();
      font.setPointSizeF(points);
      dialog.setCurrentFont(font);
      dialog.accept();
    });
    Press(Qt::Key_Return);  // opens the cell
    PressAndWait(Qt::Key_Return);
  }
  void AddOrRemoveItem(bool adds) {
    MeetByKeys<ItemsDialog>([this, adds](ItemsDialog&) {
      if (!adds) Press(Qt::Key_Down);  // a new item is added after the first one
      Press(adds ? Qt::Key_Insert : Qt::Key_Delete);
      if (adds) KeyIn(QStringLiteral("new"));
      Press(Qt::Key_O, Qt::AltModifier);
    });
    PressAndWait(Qt::Key_Space);
  }
  void ChooseImage() {
    qt::Meet<QFileDialog>([this](QFileDialog& dialog) {
      QImage image(16, 16, QImage::Format_RGB32);
      image.fill(QColor(7, 0, 0));
      const QString path = PathOf(QStringLiteral("icon.png"));
      ASSERT_TRUE(image.save(path));
      dialog.selectFile(path);
      static_cast<QDialog&>(dialog).accept();
    });
    PressAndWait(Qt::Key_F4);
  }

  void Change(const QString& name);
  void PutBack(const QString& text);

  Ref<IControl> control;
  double fontSize = 0;
};

void EveryRowTest::Change(const QString& name) {
  const PropertyTypeEnum type = Rows().TypeOf(View().currentIndex().row());
  const QString kind = qt::ToQString(control->TypeName());
  QString text = QStringLiteral("changed");
  for (const Wanted& wanted : kWanted)
    if (kind == QLatin1String(wanted.kind) && name == QLatin1String(wanted.row))
      text = QLatin1String(wanted.text);
  switch (type) {
    case ptBoolean: Press(Qt::Key_Space); return;
    case ptFont:
      fontSize = dynamic_cast<const Font&>(*Now().ObjectPtr()).Values().size;  // the object itself changes
      return SetFontSize(17);
    case ptCollection: AddOrRemoveItem(true); return;
    case ptImage: ChooseImage(); return;
    case ptList:
    case ptControls:
    case ptFeatureType: StepToAnother(); return;
    case ptColor:
      WriteValue(QStringLiteral("#123456"));
      EXPECT_EQ(ToLong(Now()), Rgb(0x12, 0x34, 0x56));
      return;
    case ptInteger:
    case ptFloat:
      WriteValue(QStringLiteral("123"));
      EXPECT_EQ(ToSingle(Now()), 123);
      return;
    default:
      WriteValue(text);
      EXPECT_EQ(qt::ToQString(ToText(Now())), text);
      return;
  }
}

void EveryRowTest::PutBack(const QString& text) {
  switch (Rows().TypeOf(View().currentIndex().row())) {
    case ptBoolean: Press(Qt::Key_F2); return;
    case ptFont: SetFontSize(fontSize); return;
    case ptCollection: AddOrRemoveItem(false); return;
    case ptImage: PressAndWait(Qt::Key_Delete); return;
    case ptList:
    case ptControls:
    case ptFeatureType: {
      Press(Qt::Key_F2);
      auto* combo = EditorAs<QComboBox>();
      ASSERT_NE(combo, nullptr);
      const int at = combo->findText(text);
      PressAndWait(Qt::Key_Escape);
      return Step(at);
    }
    default: WriteValue(text);
  }
}

TEST_P(EveryRowTest, IsChangedAndRestoredByKeyboard) {
  for (int row = 0; row < Rows().rowCount(); ++row) {
    const QString name = Rows().NameOf(row);
    ASSERT_EQ(CurrentRow(), name);
    const std::string before = Shown(Now());
    const QString text = ValueOf(name);

    Press(Qt::Key_F2);
    PressAndWait(Qt::Key_Escape);
    if (Rows().TypeOf(row) == ptBoolean) Press(Qt::Key_F2);
    EXPECT_EQ(Shown(Now()), before) << name.toStdString();

    ASSERT_NO_FATAL_FAILURE(Change(name)) << name.toStdString();
    EXPECT_NE(Shown(Now()), before) << name.toStdString();
    EXPECT_EQ(QApplication::focusWidget(), &View()) << name.toStdString();
    EXPECT_EQ(Designer().CurrentControl(), control);

    ASSERT_NO_FATAL_FAILURE(PutBack(text)) << name.toStdString();
    EXPECT_EQ(Shown(Now()), before) << name.toStdString();
    EXPECT_EQ(ValueOf(name), text);
    Press(Qt::Key_Down);
  }
}

TEST_P(EveryRowTest, MovesToTheNextEditorByTab) {
  const std::string before = [&] {
    std::string all;
    for (int row = 0; row < Rows().rowCount(); ++row)
      all += Shown(control->PropertyValue(Variant(row))) + "\n";
    return all;
  }();
  for (int row = 0; row + 1 < Rows().rowCount(); ++row) {
    const bool isFlag = Rows().TypeOf(row) == ptBoolean;
    if (!Editor() && !isFlag) Press(Qt::Key_F2);
    ASSERT_EQ(Editor() == nullptr, isFlag) << row;
    PressAndWait(isFlag ? Qt::Key_Down : Qt::Key_Tab);
    ASSERT_EQ(View().currentIndex().row(), row + 1);
  }
  std::string after;
  for (int row = 0; row < Rows().rowCount(); ++row)
    after += Shown(control->PropertyValue(Variant(row))) + "\n";
  EXPECT_EQ(after, before);
}

std::vector<ControlTypeEnum> EveryClass() {
  std::vector<ControlTypeEnum> kinds{ControlTypeEnum::ctDefault};
  for (const ClassTable* kind : ControlClasses()) kinds.push_back(kind->type);
  return kinds;
}

INSTANTIATE_TEST_SUITE_P(Classes, EveryRowTest, testing::ValuesIn(EveryClass()), [](const auto& kind) {
  return KindName(kind.param).remove(u' ').remove(u',').toStdString();
});

}  // namespace
}  // namespace cardwright::workbench
