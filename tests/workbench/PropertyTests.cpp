// The property grid: each kind of editor writes by the control's contract, and says why it refuses.

#include <QClipboard>
#include <QComboBox>
#include <QFontDialog>

#include "model/CItems.h"
#include "platform/Picture.h"
#include "workbench/DialogCell.h"
#include "workbench/ItemsDialog.h"
#include "workbench/Pictures.h"
#include "workbench/WorkbenchTest.h"

namespace cardwright::workbench {
namespace {

class PropertyGridTest : public WorkbenchTest {
 protected:
  void Add(ControlTypeEnum kind) { bench->Project().Insert(kind); }
  /// Opens the editor of a row.
  QWidget* Edit(const QString& row) {
    bench->Grid().EditRow(row);
    bench->Grid().View().edit(bench->Grid().View().currentIndex());
    return QApplication::focusWidget();
  }
  QComboBox* Combo(const QString& row) {
    Edit(row);
    const auto combos = bench->Grid().View().viewport()->findChildren<QComboBox*>();
    return combos.isEmpty() ? nullptr : combos.last();
  }
  void Pick(const QString& row, const QString& text) {
    QComboBox* combo = Combo(row);
    ASSERT_NE(combo, nullptr);
    const int at = combo->findText(text);
    ASSERT_GE(at, 0) << text.toStdString();
    combo->setCurrentIndex(at);
    Q_EMIT combo->activated(at);
    QTest::qWait(5);
  }
};

TEST_F(PropertyGridTest, ShowsTheRowsOfTheTableInItsOrder) {
  Add(ControlTypeEnum::ctTextBox);
  const Ref<IControl> box = Designer().CurrentControl();
  ASSERT_EQ(Rows().rowCount(), box->PropertyCount());
  for (int row = 0; row < Rows().rowCount(); ++row) {
    EXPECT_EQ(Rows().NameOf(row), qt::ToQString(box->PropertyName(Variant(row))));
    EXPECT_EQ(Rows().DescriptionOf(row), qt::ToQString(box->PropertyDescription(Variant(row))));
  }
}

TEST_F(PropertyGridTest, ShowsTheDescriptionOfTheRowAtHand) {
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

TEST_F(PropertyGridTest, KeepsTheKeyboardWhileItMovesTheControl) {
  Add(ControlTypeEnum::ctLabel);
  Type(QStringLiteral("Left"), QStringLiteral("50"));
  EXPECT_TRUE(bench->Grid().isAncestorOf(QApplication::focusWidget()));
}

TEST_F(PropertyGridTest, RefusesWhatIsNoNumberAndSaysSo) {
  Add(ControlTypeEnum::ctLabel);
  const float before = Designer().CurrentControl()->Left();
  Type(QStringLiteral("Left"), QStringLiteral("far"));
  EXPECT_EQ(Designer().CurrentControl()->Left(), before);
  EXPECT_TRUE(bench->Grid().Notice().contains(QStringLiteral("far"))) << bench->Grid().Notice().toStdString();
}

TEST_F(PropertyGridTest, RenamesAndRefusesANameThatIsTaken) {
  Add(ControlTypeEnum::ctLabel);
  Type(QStringLiteral("Name"), QStringLiteral("lblDepth"));
  EXPECT_TRUE(Has(QStringLiteral("lblDepth")));
  Add(ControlTypeEnum::ctTextBox);
  const Text before = Designer().CurrentControl()->UserName();
  Type(QStringLiteral("Name"), QStringLiteral("LBLDEPTH"));
  EXPECT_EQ(Designer().CurrentControl()->UserName(), before);
  EXPECT_TRUE(bench->Grid().Notice().contains(QStringLiteral("lblDepth")))
      << bench->Grid().Notice().toStdString();
  Type(QStringLiteral("Name"), QStringLiteral("  "));
  EXPECT_EQ(Designer().CurrentControl()->UserName(), before);
  EXPECT_TRUE(bench->Grid().Notice().contains(QStringLiteral("needs a name")));
}

TEST_F(PropertyGridTest, WarnsOfANameThatScriptsCannotUse) {
  Add(ControlTypeEnum::ctLabel);
  Type(QStringLiteral("Name"), QStringLiteral("two words"));
  EXPECT_TRUE(Has(QStringLiteral("two words")));
  EXPECT_TRUE(bench->Grid().Notice().contains(QStringLiteral("Scripts")));
}

TEST_F(PropertyGridTest, WarnsOfACharacterThatTheFileCannotHold) {
  Add(ControlTypeEnum::ctLabel);
  Rows().Assign(Rows().RowOf(QStringLiteral("Text")), Variant(u"10 Ω"));
  EXPECT_TRUE(bench->Grid().Notice().contains(QStringLiteral("Ω"))) << bench->Grid().Notice().toStdString();
}

TEST_F(PropertyGridTest, TakesSystemColoursAndTypedOnes) {
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

TEST_F(PropertyGridTest, TogglesFlagsByTheBlankKey) {
  Add(ControlTypeEnum::ctTextBox);
  const Ref<IControl> box = Designer().CurrentControl();
  bench->Grid().EditRow(QStringLiteral("IsNeeded"));
  QTest::keyClick(&bench->Grid().View(), Qt::Key_Space);
  EXPECT_EQ(ToText(box->PropertyValue(u"IsNeeded")), u"True");
  QTest::keyClick(&bench->Grid().View(), Qt::Key_Space);
  EXPECT_EQ(ToText(box->PropertyValue(u"IsNeeded")), u"False");
}

TEST_F(PropertyGridTest, OffersTheTextsOfAList) {
  Add(ControlTypeEnum::ctTextBox);
  Pick(QStringLiteral("InputType"), QStringLiteral("Integer"));
  EXPECT_EQ(ToText(Designer().CurrentControl()->PropertyValue(u"InputType")), u"Integer");
}

TEST_F(PropertyGridTest, OffersTheControlsThatALinkMayName) {
  Add(ControlTypeEnum::ctThemeSelector);
  Type(QStringLiteral("Name"), QStringLiteral("selTheme"));
  Add(ControlTypeEnum::ctAttributeSelector);
  Pick(QStringLiteral("ThemeSelectorName"), QStringLiteral("selTheme"));
  EXPECT_EQ(ToText(Designer().CurrentControl()->PropertyValue(u"ThemeSelectorName")), u"selTheme");
}

TEST_F(PropertyGridTest, OffersThemesAndAttributesOfTheDataSource) {
  ASSERT_TRUE(bench->OpenData(Example("wells.gpkg")));
  Designer().SetCtrl(Ref<IControl>(&Find(QStringLiteral("Form"))));
  Pick(QStringLiteral("ThemeName"), QStringLiteral("wells"));
  Pick(QStringLiteral("FeatureType"), QStringLiteral("Points"));
  EXPECT_EQ(Designer().GetThemeName(), u"wells");
  EXPECT_EQ(Designer().GetFeatureType(), FeatureTypeEnum::ftPoint);
  Add(ControlTypeEnum::ctTextBox);
  Pick(QStringLiteral("Attribute"), QStringLiteral("NAME"));
  EXPECT_EQ(Designer().CurrentControl()->AttributeName(), u"NAME");
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
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  QTest::qWait(20);
  EXPECT_EQ(Designer().CurrentControl()->GetFont()->Values().size, 14);
  EXPECT_TRUE(ValueOf(QStringLiteral("Font")).contains(QStringLiteral("14 pt")));
}

TEST_F(PropertyGridTest, ChangesItemsInTheirDialog) {
  Add(ControlTypeEnum::ctComboBox);
  QApplication::clipboard()->setText(QStringLiteral("good\tG\npoor\n"));
  qt::Meet<ItemsDialog>([](ItemsDialog& dialog) {
    auto* table = dialog.findChild<QTableWidget*>();
    QTest::keyClick(table, Qt::Key_V, Qt::ControlModifier);
    for (QPushButton* button : dialog.findChildren<QPushButton*>())
      if (button->text() == u"Move &up") button->click();
    dialog.accept();
  });
  Edit(QStringLiteral("Items"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  QTest::qWait(20);
  EXPECT_EQ(ValueOf(QStringLiteral("Items")), QStringLiteral("2 items"));
  const Variant value = Designer().CurrentControl()->PropertyValue(u"Items");
  const auto& items = dynamic_cast<const CItems&>(*value.ObjectPtr());
  EXPECT_EQ(items.Item(Variant(1))->m_Text, u"poor");
  EXPECT_EQ(items.Item(Variant(2))->m_Value, u"G");
}

TEST(ItemsDialogTest, RemovesTheRowAtHand) {
  CItems& items = *MakeRef<CItems>().Detach();
  const Ref<CItems> hold(&items);
  items.Release();
  for (const char16_t* text : {u"a", u"b", u"c"}) {
    auto item = MakeRef<CItem>();
    item->m_Text = text;
    items.Add(item);
  }
  QWidget owner;
  ItemsDialog dialog(owner, items);
  auto* table = dialog.findChild<QTableWidget*>();
  table->setCurrentCell(1, 0);
  QTest::keyClick(table, Qt::Key_Delete);
  dialog.Store(items);
  ASSERT_EQ(items.Count(), 2);
  EXPECT_EQ(items.Item(Variant(2))->m_Text, u"c");
}

TEST(PicturesTest, TurnAnImageIntoAnIconAndBack) {
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
