// SPDX-License-Identifier: MIT
// Input that the grid refuses: it shows the reason and keeps the text to be corrected.

#include <QFontDialog>
#include <QStatusBar>

#include "cardwright/model/CItems.h"
#include "workbench/PropertyGridTest.h"

namespace cardwright::workbench {
namespace {

using InvalidInputTest = PropertyGridTest;

struct Refused {
  const char* row;
  const char* text;
  const char* reason;  ///< contained in the notice
};

void PrintTo(const Refused& refused, std::ostream* out) { *out << refused.row << " " << refused.text; }

class InvalidTextTest : public PropertyGridTest, public testing::WithParamInterface<Refused> {};

TEST_P(InvalidTextTest, StaysInItsEditorUntilCorrectedOrCancelled) {
  Type(QStringLiteral("Name"), QStringLiteral("unused"));
  const Ref<IControl> other = Add(ControlTypeEnum::ctLabel);
  Type(QStringLiteral("Name"), QStringLiteral("lblDepth"));
  const Ref<IControl> label = Add(ControlTypeEnum::ctLabel);
  const QString row = QLatin1String(GetParam().row);
  const QString text = QLatin1String(GetParam().text);
  const QString before = ValueOf(row);
  RecordStep();

  Edit(row);
  Press(Qt::Key_A, Qt::ControlModifier);
  Press(Qt::Key_Delete);
  KeyIn(text);
  PressAndWait(Qt::Key_Return);
  ASSERT_NE(Editor(), nullptr);
  EXPECT_TRUE(Notice().contains(QString::fromUtf8(GetParam().reason))) << Notice().toStdString();
  EXPECT_EQ(Editor()->toolTip(), Notice());
  EXPECT_EQ(Editor()->accessibleDescription(), Notice());
  EXPECT_EQ(ValueOf(row), text);
  EXPECT_EQ(Rows().TextAt(Rows().RowOf(row)), before);
  EXPECT_TRUE(View().isAncestorOf(QApplication::focusWidget()));

  PressAndWait(Qt::Key_Escape);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_EQ(ValueOf(row), before);
  EXPECT_EQ(Notice(), Rows().DescriptionOf(Rows().RowOf(row)));
  RecordStep();
  EXPECT_EQ(label->UserName(), Designer().CurrentControl()->UserName());
}

INSTANTIATE_TEST_SUITE_P(
    Grid, InvalidTextTest,
    testing::Values(
        Refused{"Left", "far", "“far” is no number"}, Refused{"Left", "", "“” is no number"},
        Refused{"Width", "nan", "no number"}, Refused{"Width", "inf", "no number"},
        Refused{"Width", "1e999", "no number"}, Refused{"Width", "1e30", "16,777,215 pixels at most"},
        Refused{"Height", "16777216", "16,777,215 pixels at most"},
        Refused{"Top", "-1e30", "16,777,215 pixels at most, to either side"},
        Refused{"Width", "-1", "cannot be negative"}, Refused{"Name", "", "needs a name"},
        Refused{"Name", "  ", "needs a name"}, Refused{"Name", "LBLDEPTH", "“lblDepth” already"},
        Refused{"Name", " lblDepth ", "could not be told from “lblDepth”"},
        Refused{"ForeColor", "greenish", "no colour"}, Refused{"ForeColor", "#12345", "no colour"},
        Refused{"ForeColor", "transparent", "no colour"}, Refused{"ForeColor", "99999999999", "no colour"}));

TEST_F(InvalidInputTest, CanBeCorrectedInTheSameEditor) {
  const Ref<IControl> label = Add(ControlTypeEnum::ctLabel);
  Edit(QStringLiteral("Width"));
  Press(Qt::Key_A, Qt::ControlModifier);
  KeyIn(QStringLiteral("12o"));
  PressAndWait(Qt::Key_Return);
  Press(Qt::Key_Backspace);
  KeyIn(QStringLiteral("0"));
  PressAndWait(Qt::Key_Return);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_EQ(label->Width(), 120);
  EXPECT_FALSE(IsRefused(QStringLiteral("Width")));
  EXPECT_EQ(Notice(), Rows().DescriptionOf(Rows().RowOf(QStringLiteral("Width"))));
}

TEST_F(InvalidInputTest, StaysInTheRowWhenTheEditorIsLeft) {
  const Ref<IControl> label = Add(ControlTypeEnum::ctLabel);
  const float before = label->Width();
  Edit(QStringLiteral("Width"));
  Press(Qt::Key_A, Qt::ControlModifier);
  KeyIn(QStringLiteral("12o"));
  bench->List().setFocus();
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_EQ(ValueOf(QStringLiteral("Width")), QStringLiteral("12o"));
  const QModelIndex cell = Rows().index(Rows().RowOf(QStringLiteral("Width")), PropertyModel::kValue);
  EXPECT_TRUE(cell.data(Qt::ToolTipRole).toString().contains(QStringLiteral("12o")));
  EXPECT_FALSE(cell.data(Qt::DecorationRole).value<QIcon>().isNull());
  GoTo(QStringLiteral("Left"));
  GoTo(QStringLiteral("Width"));
  EXPECT_TRUE(Notice().contains(QStringLiteral("12o"))) << Notice().toStdString();

  auto* edit = qobject_cast<QLineEdit*>(Edit(QStringLiteral("Width")));
  ASSERT_NE(edit, nullptr);
  EXPECT_EQ(edit->text(), QStringLiteral("12o"));
  bench->Grid().FinishEditing();
  EXPECT_EQ(ValueOf(QStringLiteral("Width")), QStringLiteral("12o"));
  View().setFocus();
  Press(Qt::Key_Escape);
  EXPECT_EQ(ValueOf(QStringLiteral("Width")), QString::number(before));
  EXPECT_EQ(label->Width(), before);
}

TEST_F(InvalidInputTest, IsShownInTheStatusBarAfterAnotherSelection) {
  const Ref<IControl> first = Add(ControlTypeEnum::ctLabel);
  Add(ControlTypeEnum::ctLabel);
  Edit(QStringLiteral("Left"));
  KeyIn(QStringLiteral("x"));
  ClickOnForm(QPoint(static_cast<int>(first->Left()) + 4, static_cast<int>(first->Top()) + 4));
  EXPECT_EQ(Designer().CurrentControl(), first);
  EXPECT_FALSE(IsRefused(QStringLiteral("Left")));
  EXPECT_TRUE(bench->statusBar()->currentMessage().contains(QStringLiteral("no number")));
}

TEST_F(InvalidInputTest, IsDiscardedWhenTheValueChanges) {
  const Ref<IControl> label = Add(ControlTypeEnum::ctLabel);
  Type(QStringLiteral("Left"), QStringLiteral("far"));
  View().setFocus();
  label->SetLeft(77);
  EXPECT_EQ(ValueOf(QStringLiteral("Left")), QStringLiteral("77"));
  EXPECT_FALSE(IsRefused(QStringLiteral("Left")));
}

TEST_F(InvalidInputTest, DoesNotIncludeNumbersReadFromAProject) {
  const Ref<IControl> label = Add(ControlTypeEnum::ctLabel);
  label->SetWidth(1e30F);
  const QString text = ValueOf(QStringLiteral("Width"));
  Edit(QStringLiteral("Width"));
  PressAndWait(Qt::Key_Return);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_EQ(ValueOf(QStringLiteral("Width")), text);
  EXPECT_EQ(label->Width(), 1e30F);
  Type(QStringLiteral("Width"), QStringLiteral("16777215"));
  EXPECT_EQ(label->Width(), 16777215.0F);
}

TEST_F(InvalidInputTest, ChecksInTheFormsUnit) {
  const QString path = PathOf(QStringLiteral("twips.cwf"));
  Write(path,
        "[FORM]\r\nScaleMode=1\r\nWidth=6000\r\nHeight=3000\r\nControlsNumber=1\r\n"
        "[CONTROLS_1]\r\nType=Label\r\nName=lbl1\r\nUserName=lbl1\r\n");
  ASSERT_TRUE(bench->OpenProject(path));
  SelectForm();
  for (const char* row : {"Width", "Height"}) {
    Type(QLatin1String(row), QStringLiteral("1e30"));
    EXPECT_TRUE(Notice().contains(QStringLiteral("251,658,225 twips (16,777,215 pixels)")))
        << Notice().toStdString();
    EXPECT_TRUE(IsRefused(QLatin1String(row)));
  }
  Select(QStringLiteral("lbl1"));
  Type(QStringLiteral("Left"), QStringLiteral("16777216"));
  EXPECT_EQ(Designer().CurrentControl()->Left(), 16777216.0F);
}

TEST_F(InvalidInputTest, IncludesATextThatTheControlIgnores) {
  const Ref<IControl> box = Add(ControlTypeEnum::ctComboBox);
  const Text before = box->DisplayText();
  Type(QStringLiteral("Text"), QStringLiteral("good"));
  EXPECT_TRUE(IsRefused(QStringLiteral("Text")));
  EXPECT_TRUE(Notice().contains(QStringLiteral("“good” was not taken"))) << Notice().toStdString();
  EXPECT_EQ(box->DisplayText(), before);
}

TEST_F(InvalidInputTest, ShowsTheReasonForAFont) {
  const Ref<IControl> label = Add(ControlTypeEnum::ctLabel);
  const FontValues before = label->GetFont()->Values();
  qt::Meet<QFontDialog>([](QFontDialog& dialog) {
    QFont font = dialog.currentFont();
    font.setPointSizeF(5000);
    dialog.setCurrentFont(font);
    dialog.accept();
  });
  GoTo(QStringLiteral("Font"));
  PressAndWait(Qt::Key_F4);
  EXPECT_TRUE(Notice().contains(QStringLiteral("size"))) << Notice().toStdString();
  EXPECT_EQ(label->GetFont()->Values(), before);
}

TEST_F(InvalidInputTest, KeepsTheNameOfTheControl) {
  Add(ControlTypeEnum::ctLabel);
  Type(QStringLiteral("Name"), QStringLiteral("lblDepth"));
  EXPECT_TRUE(Has(QStringLiteral("lblDepth")));
  const Ref<IControl> box = Add(ControlTypeEnum::ctTextBox);
  const Text before = box->UserName();
  Type(QStringLiteral("Name"), QStringLiteral("LBLDEPTH"));
  EXPECT_EQ(box->UserName(), before);
  Press(Qt::Key_Escape);
  Rows().Enter(0, QStringLiteral("a\nb"));
  EXPECT_EQ(box->UserName(), before);
  EXPECT_TRUE(Notice().contains(QStringLiteral("line break"))) << Notice().toStdString();
  Type(QStringLiteral("Name"), QStringLiteral("LBLother"));
  EXPECT_EQ(box->UserName(), u"LBLother");
}

TEST_F(InvalidInputTest, DoesNotIncludeValuesThatLoseSomethingInFileOrScripts) {
  const Ref<IControl> label = Add(ControlTypeEnum::ctLabel);
  Type(QStringLiteral("Name"), QStringLiteral("two words"));
  EXPECT_TRUE(Has(QStringLiteral("two words")));
  EXPECT_TRUE(Notice().contains(QStringLiteral("Scripts")));
  EXPECT_FALSE(IsRefused(QStringLiteral("Name")));
  const int text = Rows().RowOf(QStringLiteral("Text"));
  EXPECT_TRUE(Rows().Enter(text, QString::fromUtf8("10 Ω")));
  EXPECT_TRUE(Notice().contains(QString::fromUtf8("Ω"))) << Notice().toStdString();
  EXPECT_TRUE(Rows().Enter(text, QString::fromUtf8("well 🛢")));
  EXPECT_TRUE(Notice().contains(QString::fromUtf8("🛢"))) << Notice().toStdString();
  EXPECT_TRUE(Rows().Enter(text, QStringLiteral("one\ntwo")));
  EXPECT_TRUE(Notice().contains(QStringLiteral("first line"))) << Notice().toStdString();
  EXPECT_EQ(label->DisplayText(), u"one\ntwo");
}

TEST_F(InvalidInputTest, DoesNotIncludeItemsThatLoseSomethingInTheFile) {
  const Ref<IControl> box = Add(ControlTypeEnum::ctComboBox);
  const Variant items = box->PropertyValue(u"Items");
  auto item = MakeRef<CItem>();
  item->m_Text = u"ohms";
  item->m_Value = u"Ω";
  dynamic_cast<CItems&>(*items.ObjectPtr()).Add(item);
  EXPECT_TRUE(Rows().Assign(Rows().RowOf(QStringLiteral("Items")), items));
  EXPECT_TRUE(Notice().contains(QString::fromUtf8("Ω"))) << Notice().toStdString();
}

}  // namespace
}  // namespace cardwright::workbench
