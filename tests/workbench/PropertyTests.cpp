// SPDX-License-Identifier: MIT
// The property grid: each type of editor sets the property of the control, or shows why it refuses.

#include <QColorDialog>
#include <QFontDialog>

#include "cardwright/model/CItems.h"
#include "cardwright/platform/Picture.h"
#include "cardwright/qt/surface/QtDesignSurface.h"
#include "workbench/PropertyGridTest.h"
#include "workbench/grid/ItemsDialog.h"
#include "workbench/grid/Pictures.h"

namespace cardwright::workbench {
namespace {

TEST_F(PropertyGridTest, KeepsAFontSizeMissingInTheDialog) {
  const Ref<IControl> label = Add(ControlTypeEnum::ctLabel);
  ASSERT_EQ(label->GetFont()->Values().size, 8.25);
  qt::Meet<QFontDialog>([](QFontDialog& dialog) {
    QFont font = dialog.currentFont();
    font.setUnderline(true);
    dialog.setCurrentFont(font);
    dialog.accept();
  });
  GoTo(QStringLiteral("Font"));
  PressAndWait(Qt::Key_F4);
  EXPECT_TRUE(label->GetFont()->Values().underline);
  EXPECT_EQ(label->GetFont()->Values().size, 8.25);
}

TEST_F(PropertyGridTest, SetsACustomColorInADialog) {
  const Ref<IControl> label = Add(ControlTypeEnum::ctLabel);
  qt::Meet<QColorDialog>([](QColorDialog& dialog) {
    dialog.setCurrentColor(QColor(1, 2, 3));
    dialog.accept();
  });
  Pick(QStringLiteral("ForeColor"), QString::fromUtf8("Other…"));
  EXPECT_EQ(label->ForeColor(), Rgb(1, 2, 3));
  qt::Meet<QColorDialog>([](QColorDialog& dialog) { dialog.reject(); });
  Pick(QStringLiteral("ForeColor"), QString::fromUtf8("Other…"));
  EXPECT_EQ(label->ForeColor(), Rgb(1, 2, 3));
  EXPECT_EQ(ValueOf(QStringLiteral("ForeColor")), QStringLiteral("#010203"));
}

TEST_F(PropertyGridTest, AcceptsColorsByNameByThreeDigitsAndByNumber) {
  const Ref<IControl> label = Add(ControlTypeEnum::ctLabel);
  for (const auto& [text, color] : std::initializer_list<std::pair<const char*, OleColor>>{
           {"tomato", Rgb(255, 99, 71)},
           {"#fa0", Rgb(255, 170, 0)},
           {"255", Rgb(255, 0, 0)},
           {"-2147483643", ToOleColor(SystemColor::Window)},
           {"2147483656", ToOleColor(SystemColor::WindowText)}}) {
    Type(QStringLiteral("BackColor"), QLatin1String(text));
    EXPECT_EQ(label->BackColor(), color) << text;
  }
}

TEST_F(PropertyGridTest, ShowsTheRowsInTableOrder) {
  Add(ControlTypeEnum::ctTextBox);
  const Ref<IControl> box = Designer().CurrentControl();
  ASSERT_EQ(Rows().rowCount(), box->PropertyCount());
  for (int row = 0; row < Rows().rowCount(); ++row) {
    EXPECT_EQ(Rows().NameOf(row), qt::ToQString(box->PropertyName(Variant(row))));
    EXPECT_EQ(Rows().DescriptionOf(row), qt::ToQString(box->PropertyDescription(Variant(row))));
  }
}

TEST_F(PropertyGridTest, ShowsTheDescriptionOfTheCurrentRow) {
  Add(ControlTypeEnum::ctTextBox);
  bench->Grid().EditRow(QStringLiteral("Width"));
  EXPECT_EQ(bench->Grid().Notice(), Rows().DescriptionOf(Rows().RowOf(QStringLiteral("Width"))));
  EXPECT_FALSE(bench->Grid().Notice().isEmpty());
}

TEST_F(PropertyGridTest, WritesTypedTextsAndNumbers) {
  Add(ControlTypeEnum::ctLabel);
  const Ref<IControl> label = Designer().CurrentControl();
  Type(QStringLiteral("Text"), QStringLiteral("Depth"));
  EXPECT_EQ(label->DisplayText(), u"Depth");
  Type(QStringLiteral("Left"), QStringLiteral("123"));
  EXPECT_EQ(label->Left(), 123);
  Type(QStringLiteral("Width"), QStringLiteral("80,5"));
  EXPECT_EQ(label->Width(), 80.5F);
}

TEST_F(PropertyGridTest, KeepsTheFocusWhileItMovesTheControl) {
  Add(ControlTypeEnum::ctLabel);
  Type(QStringLiteral("Left"), QStringLiteral("50"));
  EXPECT_TRUE(bench->Grid().isAncestorOf(QApplication::focusWidget()));
}

TEST_F(PropertyGridTest, AcceptsSystemColorsAndTypedOnes) {
  Add(ControlTypeEnum::ctLabel);
  const Ref<IControl> label = Designer().CurrentControl();
  Pick(QStringLiteral("BackColor"), QStringLiteral("Window background"));
  EXPECT_EQ(label->BackColor(), ToOleColor(SystemColor::Window));
  EXPECT_EQ(ValueOf(QStringLiteral("BackColor")), QStringLiteral("Window background"));
  Type(QStringLiteral("ForeColor"), QStringLiteral("#FF8000"));
  EXPECT_EQ(label->ForeColor(), Rgb(0xFF, 0x80, 0));
  Type(QStringLiteral("ForeColor"), QStringLiteral("greenish"));
  EXPECT_EQ(label->ForeColor(), Rgb(0xFF, 0x80, 0));
  EXPECT_TRUE(bench->Grid().Notice().contains(QStringLiteral("greenish")));
}

TEST_F(PropertyGridTest, ListsTheChoicesOfAList) {
  Add(ControlTypeEnum::ctTextBox);
  Pick(QStringLiteral("InputType"), QStringLiteral("Integer"));
  EXPECT_EQ(ToText(Designer().CurrentControl()->PropertyValue(u"InputType")), u"Integer");
}

TEST_F(PropertyGridTest, ListsTheControlsThatALinkCanName) {
  Add(ControlTypeEnum::ctThemeSelector);
  Type(QStringLiteral("Name"), QStringLiteral("selTheme"));
  Add(ControlTypeEnum::ctAttributeSelector);
  Pick(QStringLiteral("ThemeSelectorName"), QStringLiteral("selTheme"));
  EXPECT_EQ(ToText(Designer().CurrentControl()->PropertyValue(u"ThemeSelectorName")), u"selTheme");
}

TEST_F(PropertyGridTest, ListsThemesAndAttributesOfTheDataSource) {
  ASSERT_TRUE(bench->OpenData(Example("wells.gpkg")));
  SelectForm();
  Pick(QStringLiteral("ThemeName"), QStringLiteral("wells"));
  Pick(QStringLiteral("FeatureType"), QStringLiteral("Points"));
  EXPECT_EQ(Designer().GetThemeName(), u"wells");
  EXPECT_EQ(Designer().GetFeatureType(), FeatureTypeEnum::ftPoint);
  Add(ControlTypeEnum::ctTextBox);
  Pick(QStringLiteral("Attribute"), QStringLiteral("NAME"));
  EXPECT_EQ(Designer().CurrentControl()->AttributeName(), u"NAME");
}

TEST_F(PropertyGridTest, KeepsTheTextOfAComboBoxWhenItsItemsChange) {
  const Ref<IControl> combo = Add(ControlTypeEnum::ctComboBox);
  const Variant row(u"Items");
  auto item = MakeRef<CItem>();
  item->m_Text = u"Sandstone";
  dynamic_cast<CItems&>(*combo->PropertyValue(row).ObjectPtr()).Add(item);
  combo->Refresh();
  combo->SetPropertyValue(Variant(u"Text"), Variant(u"Sandstone"));
  MeetByKeys<ItemsDialog>([](ItemsDialog&) {
    Press(Qt::Key_Insert);
    KeyIn(QStringLiteral("Clay"));
    Press(Qt::Key_Return);
    Press(Qt::Key_O, Qt::AltModifier);
  });
  GoTo(QStringLiteral("Items"));
  Press(Qt::Key_F4);
  EXPECT_EQ(dynamic_cast<CItems&>(*combo->PropertyValue(row).ObjectPtr()).Count(), 2);
  EXPECT_EQ(ValueOf(QStringLiteral("Text")), QStringLiteral("Sandstone"));
}

TEST_F(PropertyGridTest, MovesTheHandlesWhenAFontResizesAList) {
  const Ref<IControl> combo = Add(ControlTypeEnum::ctComboBox);
  const float before = combo->Height();
  const Ref<Font> font = combo->GetFont();
  FontValues values = font->Values();
  values.size = 24;
  font->Assign(values);
  Rows().Assign(Rows().RowOf(QStringLiteral("Font")), Variant(Ref<Object>(font)));
  ASSERT_GT(combo->Height(), before);
  auto& surface = dynamic_cast<qt::QtDesignSurface&>(*Designer().GetSurface());
  EXPECT_EQ(surface.Handle(8).Top(), combo->Top() + combo->Height());
}

TEST_F(PropertyGridTest, ChangesTheFontInItsDialog) {
  Add(ControlTypeEnum::ctLabel);
  qt::Meet<QFontDialog>([](QFontDialog& dialog) {
    QFont font = dialog.currentFont();
    font.setPointSizeF(14);
    dialog.setCurrentFont(font);
    dialog.accept();
  });
  Edit(QStringLiteral("Font"));
  PressAndWait(Qt::Key_Return);
  EXPECT_EQ(Designer().CurrentControl()->GetFont()->Values().size, 14);
  EXPECT_TRUE(ValueOf(QStringLiteral("Font")).contains(QStringLiteral("14 pt")));
}

TEST(PicturesTest, ConvertAnImageToAnIconAndBack) {
  QImage image(32, 16, QImage::Format_RGB32);
  image.fill(Qt::blue);
  const Ref<Picture> icon = IconPicture(image);
  ASSERT_EQ(icon->Width(), 16);
  const QImage back = ImageOf(*icon);
  EXPECT_EQ(back.pixelColor(8, 8), QColor(Qt::blue));
  EXPECT_EQ(back.pixelColor(8, 0), QColor(Qt::white));
}

}  // namespace
}  // namespace cardwright::workbench
