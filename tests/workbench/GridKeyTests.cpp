// SPDX-License-Identifier: MIT
// Keys and the mouse in the property grid.

#include <QFileDialog>
#include <QFontDialog>
#include <QStyledItemDelegate>

#include "workbench/PropertyGridTest.h"
#include "workbench/grid/DialogCell.h"
#include "workbench/grid/ItemsDialog.h"
#include "workbench/grid/Pictures.h"

namespace cardwright::workbench {
namespace {

struct Opening {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  bool isEditing;  ///< the editor is already open
};

/// F4 is also a shortcut of the window.
class OpeningKeyTest : public PropertyGridTest, public testing::WithParamInterface<Opening> {
 protected:
  void Open(const QString& row) {
    GoTo(row);
    if (GetParam().isEditing) Press(Qt::Key_F2);
    PressAndWait(GetParam().key, GetParam().modifiers);
  }
};

TEST_P(OpeningKeyTest, OpensTheListOfARow) {
  Add(ControlTypeEnum::ctTextBox);
  for (const char* row : {"BackColor", "Attribute", "InputType"}) {
    Open(QLatin1String(row));
    auto* combo = EditorAs<QComboBox>();
    ASSERT_NE(combo, nullptr) << row;
    EXPECT_TRUE(combo->view()->isVisible()) << row;
    PressAndWait(Qt::Key_Escape);
    EXPECT_FALSE(combo->view()->isVisible()) << row;
    PressAndWait(Qt::Key_Escape);
    EXPECT_EQ(Editor(), nullptr) << row;
    EXPECT_EQ(CurrentRow(), QLatin1String(row));
  }
}

TEST_P(OpeningKeyTest, OpensTheDialogOfARow) {
  bool isMet = false;
  Add(ControlTypeEnum::ctComboBox);
  qt::Meet<QFontDialog>([&](QFontDialog& dialog) { isMet = true, dialog.reject(); });
  Open(QStringLiteral("Font"));
  EXPECT_TRUE(std::exchange(isMet, false));
  qt::Meet<ItemsDialog>([&](ItemsDialog& dialog) { isMet = true, dialog.reject(); });
  Open(QStringLiteral("Items"));
  EXPECT_TRUE(std::exchange(isMet, false));
  SelectForm();
  qt::Meet<QFileDialog>([&](QFileDialog& dialog) { isMet = true, dialog.reject(); });
  Open(QStringLiteral("Image"));
  EXPECT_TRUE(isMet);
  EXPECT_EQ(QApplication::focusWidget(), &View());
}

TEST_P(OpeningKeyTest, DoesNothingInATextEditor) {
  Add(ControlTypeEnum::ctLabel);
  Open(QStringLiteral("Text"));
  ASSERT_NE(EditorAs<QLineEdit>(), nullptr);
  EXPECT_TRUE(Editor()->hasFocus());
}

INSTANTIATE_TEST_SUITE_P(Keys, OpeningKeyTest,
                         testing::Values(Opening{Qt::Key_F4, {}, true}, Opening{Qt::Key_F4, {}, false},
                                         Opening{Qt::Key_Down, Qt::AltModifier, true},
                                         Opening{Qt::Key_Down, Qt::AltModifier, false}));

using GridKeyTest = PropertyGridTest;

TEST_F(GridKeyTest, F4FocusesTheGridFromOtherPanes) {
  Add(ControlTypeEnum::ctLabel);
  bench->List().setFocus();
  Press(Qt::Key_F4);
  EXPECT_EQ(QApplication::focusWidget(), &View());
}

TEST_F(GridKeyTest, ADoubleClickOnAButtonOpensOneDialog) {
  Add(ControlTypeEnum::ctLabel);
  int met = 0;
  qt::Meet<QFontDialog>([&](QFontDialog& dialog) { ++met, dialog.reject(); });
  Edit(QStringLiteral("Font"));
  auto* button = Editor()->findChild<QToolButton*>();
  button->click();
  button->click();
  QTest::qWait(5);
  EXPECT_EQ(met, 1);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(Editor(), nullptr);
}

TEST_F(GridKeyTest, TogglesAFlagInsteadOfEditingIt) {
  const Ref<IControl> box = Add(ControlTypeEnum::ctTextBox);
  GoTo(QStringLiteral("IsNeeded"));
  const auto isOn = [&] { return ToText(box->PropertyValue(u"IsNeeded")) == u"True"; };
  bool expected = isOn();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2, Qt::Key_Space}) {
    Press(key);
    expected = !expected;
    EXPECT_EQ(isOn(), expected) << key;
  }
  Press(Qt::Key_F4);
  EXPECT_EQ(isOn(), expected);
  EXPECT_EQ(Editor(), nullptr);
}

TEST_F(GridKeyTest, TogglesAFlagByADoubleClickOrAClickOnItsBox) {
  const Ref<IControl> box = Add(ControlTypeEnum::ctTextBox);
  const auto isOn = [&] { return ToText(box->PropertyValue(u"IsNeeded")) == u"True"; };
  const QModelIndex cell = Rows().index(Rows().RowOf(QStringLiteral("IsNeeded")), PropertyModel::kValue);
  View().scrollTo(cell);
  const QRect rect = View().visualRect(cell);
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, rect.center());
  EXPECT_FALSE(isOn());
  QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, rect.center());
  EXPECT_TRUE(isOn());
  QTest::qWait(QApplication::doubleClickInterval());
  const QPoint sign(rect.left() + 10, rect.center().y());
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, sign);
  EXPECT_FALSE(isOn());
}

TEST_F(GridKeyTest, TabCommitsTheValueAndEditsTheNextRow) {
  const Ref<IControl> label = Add(ControlTypeEnum::ctLabel);
  Edit(QStringLiteral("Left"));
  Press(Qt::Key_A, Qt::ControlModifier);
  KeyIn(QStringLiteral("40"));
  PressAndWait(Qt::Key_Tab);
  EXPECT_EQ(label->Left(), 40);
  EXPECT_EQ(CurrentRow(), QStringLiteral("Top"));
  ASSERT_NE(EditorAs<QLineEdit>(), nullptr);
  Press(Qt::Key_A, Qt::ControlModifier);
  KeyIn(QStringLiteral("60"));
  PressAndWait(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(label->Top(), 60);
  EXPECT_EQ(CurrentRow(), QStringLiteral("Left"));
  ASSERT_NE(Editor(), nullptr);
  KeyIn(QStringLiteral("x"));
  PressAndWait(Qt::Key_Tab);  // an invalid text prevents it
  EXPECT_EQ(CurrentRow(), QStringLiteral("Left"));
  EXPECT_TRUE(IsRefused(QStringLiteral("Left")));
  PressAndWait(Qt::Key_Escape);
  EXPECT_EQ(label->Left(), 40);
}

TEST_F(GridKeyTest, TypingReplacesTheValueOfAList) {
  const Ref<IControl> box = Add(ControlTypeEnum::ctTextBox);
  struct {
    const char* row;
    const char* first;
    const char* second;
  } const rows[] = {{"BackColor", "#112233", "#445566"}, {"Attribute", "NAME", "OWNER"}};
  for (const auto& [row, first, second] : rows) {
    const QString name = QLatin1String(row);
    Edit(name);
    KeyIn(QLatin1String(first));
    PressAndWait(Qt::Key_Return);
    EXPECT_EQ(ValueOf(name), QLatin1String(first));
    GoTo(name);
    KeyIn(QLatin1String(second));
    PressAndWait(Qt::Key_Return);
    EXPECT_EQ(ValueOf(name), QLatin1String(second));
  }
}

TEST_F(GridKeyTest, HomeAndEndGoToTheFirstAndTheLastRow) {
  Add(ControlTypeEnum::ctLabel);
  GoTo(QStringLiteral("Left"));
  Press(Qt::Key_End);
  EXPECT_EQ(View().currentIndex().row(), Rows().rowCount() - 1);
  EXPECT_EQ(View().currentIndex().column(), PropertyModel::kValue);
  Press(Qt::Key_Home);
  EXPECT_EQ(View().currentIndex().row(), 0);
  EXPECT_EQ(View().currentIndex().column(), PropertyModel::kValue);
}

TEST_F(GridKeyTest, TabFromTheLastRowEndsEditing) {
  Add(ControlTypeEnum::ctLabel);
  Edit(Rows().NameOf(Rows().rowCount() - 1));
  PressAndWait(Qt::Key_Tab);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_EQ(QApplication::focusWidget(), &View());
}

TEST_F(GridKeyTest, ArrowsMoveThroughAListUntilEnterCommits) {
  const Ref<IControl> box = Add(ControlTypeEnum::ctTextBox);
  Edit(QStringLiteral("InputType"));
  ASSERT_NE(EditorAs<QComboBox>(), nullptr);
  PressAndWait(Qt::Key_Down);
  PressAndWait(Qt::Key_Down);
  ASSERT_NE(Editor(), nullptr);
  EXPECT_EQ(ToText(box->PropertyValue(u"InputType")), u"Text");
  PressAndWait(Qt::Key_Return);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_EQ(ToText(box->PropertyValue(u"InputType")), u"Integer");
  Edit(QStringLiteral("InputType"));
  Press(Qt::Key_Up);
  PressAndWait(Qt::Key_Escape);
  EXPECT_EQ(ToText(box->PropertyValue(u"InputType")), u"Integer");
}

TEST_F(GridKeyTest, ShowsAValueOutsideTheChoices) {
  const Ref<IControl> box = Add(ControlTypeEnum::ctTextBox);
  box->SetPropertyValue(u"InputType", Variant(u"String"));
  Rows().RefreshAll();
  Edit(QStringLiteral("InputType"));
  auto* combo = EditorAs<QComboBox>();
  ASSERT_NE(combo, nullptr);
  EXPECT_EQ(combo->currentText(), QStringLiteral("String"));
  EXPECT_EQ(combo->count(), 4);
  PressAndWait(Qt::Key_Return);
  EXPECT_EQ(ToText(box->PropertyValue(u"InputType")), u"String");
}

TEST_F(GridKeyTest, CommitsTheTypedValueOnAClickOnTheForm) {
  const Ref<IControl> first = Add(ControlTypeEnum::ctLabel);
  const Ref<IControl> second = Add(ControlTypeEnum::ctLabel);
  Edit(QStringLiteral("Left"));
  Press(Qt::Key_A, Qt::ControlModifier);
  KeyIn(QStringLiteral("200"));
  ClickOnForm(QPoint(static_cast<int>(first->Left()) + 4, static_cast<int>(first->Top()) + 4));
  EXPECT_EQ(Designer().CurrentControl(), first);
  EXPECT_EQ(second->Left(), 200);
}

class ImageRowTest : public PropertyGridTest {
 protected:
  ImageRowTest() {
    Add(ControlTypeEnum::ctLabel);
    SelectForm();
  }
  void SetImage() {
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(Rows().Assign(Rows().RowOf(QStringLiteral("Image")), Variant(IconPicture(image))));
  }
  bool HasImage() { return Find(QStringLiteral("Form")).PropertyValue(u"Image").ObjectPtr() != nullptr; }
  QToolButton* ClearButton() {
    for (QToolButton* button : Editor()->findChildren<QToolButton*>())
      if (button->accessibleName() == u"Clear Image") return button;
    return nullptr;
  }
};

TEST_F(ImageRowTest, IsClearedByTheDeleteKeyInTheRowAndInTheCell) {
  SetImage();
  EXPECT_EQ(ValueOf(QStringLiteral("Image")), QString::fromUtf8("16 × 16 pixels"));
  GoTo(QStringLiteral("Image"));
  PressAndWait(Qt::Key_Delete);
  EXPECT_FALSE(HasImage());
  EXPECT_EQ(ValueOf(QStringLiteral("Image")), QStringLiteral("(none)"));
  EXPECT_EQ(Editor(), nullptr);
  RecordStep();
  Trigger("mnuUndo");
  SelectForm();
  SetImage();
  Edit(QStringLiteral("Image"));
  PressAndWait(Qt::Key_Backspace);
  EXPECT_FALSE(HasImage());
}

TEST_F(ImageRowTest, IsClearedByItsButtonWhichIsDisabledWithoutAnImage) {
  SetImage();
  Edit(QStringLiteral("Image"));
  ASSERT_NE(ClearButton(), nullptr);
  QTest::mouseClick(ClearButton(), Qt::LeftButton);
  QTest::qWait(5);
  EXPECT_FALSE(HasImage());
  Edit(QStringLiteral("Image"));
  ASSERT_NE(ClearButton(), nullptr);
  EXPECT_FALSE(ClearButton()->isEnabled());
  PressAndWait(Qt::Key_Delete);
  EXPECT_FALSE(HasImage());
}

TEST_F(ImageRowTest, StaysEmptyInTheFile) {
  SetImage();
  const QString path = PathOf(QStringLiteral("image.cwf"));
  ASSERT_EQ(bench->Project().Save(path), QString());
  EXPECT_TRUE(Read(path).contains("FORM_IMAGE"));
  GoTo(QStringLiteral("Image"));
  PressAndWait(Qt::Key_Delete);
  ASSERT_EQ(bench->Project().Save(path), QString());
  EXPECT_FALSE(Read(path).contains("FORM_IMAGE"));
}

}  // namespace
}  // namespace cardwright::workbench
