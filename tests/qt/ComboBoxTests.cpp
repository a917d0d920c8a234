// SPDX-License-Identifier: MIT
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QSpontaneKeyEvent>
#include <QWheelEvent>

#include "qt/Form.h"

namespace cardwright::qt {

namespace {

/// Turns the wheel over the middle of the widget, as the window system tells it.
void Wheel(QWidget& widget, int notches) {
  const QPointF at(widget.rect().center());
  QWheelEvent event(at, widget.mapToGlobal(at), QPoint(), QPoint(0, 120 * notches), Qt::NoButton, {},
                    Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&event);
  qApp->notify(&widget, &event);
}

class WheelCount final : public QObject {
 public:
  WheelCount(QWidget& widget, int& count) : m_Count(count) { widget.installEventFilter(this); }

 private:
  bool eventFilter(QObject* /*target*/, QEvent* event) override {
    if (event->type() == QEvent::Wheel) ++m_Count;
    return false;
  }
  int& m_Count;
};

}  // namespace

class Combo : public testing::Test {
 protected:
  Combo() {
    for (const auto* text : {u"Point", u"Arc", u"Polygon"}) combo->AddItem(text);
    combo->SetListener(&listener);
  }
  ~Combo() override { combo->SetListener(nullptr); }
  QComboBox& Native() { return NativeAs<QComboBox>(*combo); }
  void ShowFocused() {
    form.Show();
    combo->SetFocus();
    listener.Take();
  }
  /// Opens the list and takes an entry.
  void Pick(int index) {
    Native().showPopup();
    QAbstractItemView& view = *Native().view();
    view.setCurrentIndex(view.model()->index(index, 0));
    QTest::keyClick(&view, Qt::Key_Return);
  }

  Form form;
  Ref<ComboWidget> combo = form.AddAt<ComboWidget>(0, u"vb.combobox", u"c");
  Listener listener;
};

TEST_F(Combo, SelectsNothingByItself) {
  EXPECT_EQ(combo->ListCount(), 3);
  EXPECT_EQ(combo->ListIndex(), -1);
  EXPECT_EQ(combo->DisplayText(), u"");
  EXPECT_FALSE(combo->IsEditable());
  EXPECT_EQ(listener.Take(), "");
}

TEST_F(Combo, ClicksWhereTheIndexChanges) {
  combo->SetListIndex(1);
  EXPECT_EQ(combo->DisplayText(), u"Arc");
  EXPECT_EQ(listener.Take(), "click");
  combo->SetListIndex(1);
  EXPECT_EQ(listener.Take(), "");
  combo->SetListIndex(-1);
  EXPECT_EQ(combo->DisplayText(), u"");
  EXPECT_EQ(listener.Take(), "click");
}

TEST_F(Combo, RefusesNumbersOutsideTheList) {
  EXPECT_EQ(ErrorOf([&] { combo->SetListIndex(3); }), 380);
  EXPECT_EQ(ErrorOf([&] { combo->SetListIndex(-2); }), 380);
  EXPECT_EQ(ErrorOf([&] { combo->ListText(3); }), 5);
  EXPECT_EQ(ErrorOf([&] { combo->ListText(-1); }), 5);
  EXPECT_EQ(ErrorOf([&] { combo->ItemData(3); }), 5);
  EXPECT_EQ(ErrorOf([&] { combo->RemoveItem(3); }), 5);
  EXPECT_EQ(ErrorOf([&] { combo->AddItem(u"x", 4); }), 5);
  EXPECT_EQ(ErrorOf([&] { combo->AddItem(u"x", -1); }), 5);
  EXPECT_EQ(combo->ItemData(2), 0);
}

TEST_F(Combo, KeepsItsSelectionWhileTheListChangesAroundIt) {
  combo->SetListIndex(1);
  combo->AddItem(u"Any", 0);
  EXPECT_EQ(combo->ListText(0), u"Any");
  EXPECT_EQ(combo->ListIndex(), 2);
  combo->RemoveItem(0);
  EXPECT_EQ(combo->ListIndex(), 1);
  combo->RemoveItem(2);
  EXPECT_EQ(combo->ListIndex(), 1);
  EXPECT_EQ(combo->DisplayText(), u"Arc");
  listener.Take();
  combo->RemoveItem(1);
  EXPECT_EQ(combo->ListIndex(), -1);
  EXPECT_EQ(combo->DisplayText(), u"");
  combo->SetListIndex(0);
  listener.Take();
  combo->Clear();
  EXPECT_EQ(combo->ListCount(), 0);
  EXPECT_EQ(combo->ListIndex(), -1);
  EXPECT_EQ(listener.Take(), "");
}

TEST_F(Combo, SelectsByHand) {
  ShowFocused();
  Pick(2);
  EXPECT_EQ(combo->ListIndex(), 2);
  EXPECT_EQ(listener.Take(), "click");
  QTest::keyClick(&Native(), Qt::Key_Up);
  EXPECT_EQ(combo->ListIndex(), 1);
  EXPECT_EQ(listener.Take(), "key38 click");
}

TEST_F(Combo, DropsKeysBeforeTheyReachTheList) {
  ShowFocused();
  listener.onKeyDown = [](int& keyCode, int& shift) { keyCode = shift = 0; };
  for (const int key : {Qt::Key_Down, Qt::Key_A, Qt::Key_F4, Qt::Key_PageDown}) {
    QTest::keyClick(&Native(), static_cast<Qt::Key>(key));
  }
  EXPECT_EQ(combo->ListIndex(), -1);
  EXPECT_EQ(listener.Take(), "key40 key65 key115 key34");
}

TEST_F(Combo, IgnoresAWheelWithoutTheFocusAndPassesItOn) {
  combo->SetListIndex(0);
  form.AddAt(2, u"vb.textbox", u"other")->SetFocus();
  form.Show();
  form.surface.Find(u"other")->SetFocus();
  int passedOn = 0;
  WheelCount count(*form.canvas, passedOn);
  for (const bool editable : {false, true}) {
    combo->SetEditable(editable);
    listener.Take();
    QWidget& target = editable ? static_cast<QWidget&>(*Native().lineEdit()) : Native();
    Wheel(target, -1);
    EXPECT_EQ(combo->ListIndex(), 0);
    EXPECT_EQ(listener.Take(), "");
    EXPECT_FALSE(Native().hasFocus());
  }
  EXPECT_EQ(passedOn, 2);
  combo->SetFocus();
  Wheel(Native(), -1);
  EXPECT_EQ(combo->ListIndex(), 1);
}

TEST_F(Combo, DoesNothingWhileItIsLocked) {
  const Ref<Widget> other = form.AddAt(2, u"vb.textbox", u"other");
  for (const bool editable : {false, true}) {
    combo->SetEditable(editable);
    combo->SetLocked(true);
    form.Show();
    other->SetFocus();
    listener.Take();
    QTest::mouseClick(form.window.windowHandle(), Qt::LeftButton, {}, QPoint(15, 20));
    QTest::qWait(5);
    EXPECT_FALSE(Native().view()->isVisible());
    EXPECT_TRUE(Native().hasFocus());
    EXPECT_TRUE(listener.Take().starts_with("got down1+0@5,10"));
    QTest::keyClick(&Native(), Qt::Key_Down);
    QTest::keyClick(&Native(), Qt::Key_A);
    Wheel(Native(), -1);
    EXPECT_EQ(combo->ListIndex(), -1);
    EXPECT_EQ(combo->DisplayText(), u"");
    combo->SetLocked(false);
  }
}

TEST_F(Combo, TakesOnlyTextsOfTheListWhileItIsNotEditable) {
  combo->SetDisplayText(u"polygon");
  EXPECT_EQ(combo->ListIndex(), 2);
  EXPECT_EQ(combo->DisplayText(), u"Polygon");
  EXPECT_EQ(ErrorOf([&] { combo->SetDisplayText(u"Line"); }), 383);
  EXPECT_EQ(combo->ListIndex(), 2);
  EXPECT_EQ(ErrorOf([&] { combo->SelStart(); }), 5);
  EXPECT_EQ(ErrorOf([&] { combo->SetSelText(u"x"); }), 5);
}

class EditableCombo : public Combo {
 protected:
  EditableCombo() {
    combo->SetEditable(true);
    ShowFocused();
  }
};

TEST_F(EditableCombo, CountsATypedTextAsNoSelection) {
  combo->SetListIndex(0);
  listener.Take();
  combo->SetSelStart(0);
  combo->SetSelLength(10);
  QTest::keyClicks(&Native(), "Arc");
  EXPECT_EQ(listener.Take(), "key65 char65 change key82 char114 change key67 char99 change");
  EXPECT_EQ(combo->DisplayText(), u"Arc");
  EXPECT_EQ(combo->ListIndex(), -1);
  QTest::keyClick(&Native(), Qt::Key_Return);
  form.AddAt(2, u"vb.textbox", u"other")->SetFocus();
  EXPECT_EQ(combo->ListIndex(), -1);
  EXPECT_EQ(combo->DisplayText(), u"Arc");
}

TEST_F(EditableCombo, CompletesNothing) {
  QTest::keyClicks(&Native(), "P");
  EXPECT_EQ(combo->DisplayText(), u"P");
  EXPECT_EQ(combo->SelLength(), 0);
}

TEST_F(EditableCombo, SelectsTheEntryThatWasSelectedBeforeTyping) {
  combo->SetListIndex(1);
  QTest::keyClicks(&Native(), "x");
  listener.Take();
  combo->SetListIndex(1);
  EXPECT_EQ(combo->DisplayText(), u"Arc");
  EXPECT_EQ(listener.Take(), "click");
  QTest::keyClicks(&Native(), "x");
  listener.Take();
  Pick(1);
  EXPECT_EQ(combo->ListIndex(), 1);
  EXPECT_EQ(combo->DisplayText(), u"Arc");
  EXPECT_EQ(listener.Take(), "click");
}

TEST_F(EditableCombo, TakesAnyTextFromCode) {
  combo->SetListIndex(0);
  listener.Take();
  combo->SetDisplayText(u"Line");
  EXPECT_EQ(combo->DisplayText(), u"Line");
  EXPECT_EQ(combo->ListIndex(), -1);
  EXPECT_EQ(listener.Take(), "change");
  combo->SetDisplayText(u"Line");
  EXPECT_EQ(listener.Take(), "");
}

TEST_F(EditableCombo, KeepsATypedTextWhileTheListChanges) {
  QTest::keyClicks(&Native(), "abc");
  listener.Take();
  combo->AddItem(u"Line", 0);
  combo->RemoveItem(1);
  EXPECT_EQ(combo->DisplayText(), u"abc");
  combo->Clear();
  EXPECT_EQ(combo->DisplayText(), u"");
  combo->SetDisplayText(u"x");
  combo->AddItem(u"first");
  EXPECT_EQ(combo->DisplayText(), u"x");
  EXPECT_EQ(combo->ListIndex(), -1);
  EXPECT_EQ(listener.Take(), "change");
}

TEST_F(EditableCombo, HasACaretAndALimit) {
  combo->SetDisplayText(u"12345");
  combo->SetSelStart(1);
  combo->SetSelLength(2);
  EXPECT_EQ(combo->SelStart(), 1);
  EXPECT_EQ(combo->SelLength(), 2);
  EXPECT_EQ(combo->SelText(), u"23");
  listener.Take();
  combo->SetSelText(u"-");
  EXPECT_EQ(combo->DisplayText(), u"1-45");
  EXPECT_EQ(listener.Take(), "change");
  combo->SetMaxLength(5);
  QTest::keyClicks(&Native(), "67");
  EXPECT_EQ(combo->DisplayText(), u"1-645");
  EXPECT_EQ(combo->MaxLength(), 5);
}

TEST_F(EditableCombo, LosesItsTextWhenItIsEditableNoMore) {
  combo->SetDisplayText(u"Line");
  combo->SetEditable(false);
  EXPECT_EQ(combo->DisplayText(), u"");
  combo->SetListIndex(1);
  combo->SetEditable(true);
  EXPECT_EQ(combo->DisplayText(), u"Arc");
  EXPECT_EQ(combo->ListIndex(), 1);
  listener.Take();
  QTest::mouseClick(form.window.windowHandle(), Qt::LeftButton, {}, QPoint(18, 20));
  EXPECT_EQ(listener.Take(), "down1+0@8,10 up1+0@8,10");
}

TEST_F(Combo, OpensTheMenuOfItsEditFieldIfItHasOne) {
  form.Show();
  combo->SetEditable(true);
  EXPECT_TRUE(combo->OpenMenu());
  ASSERT_TRUE(QApplication::activePopupWidget());
  QApplication::activePopupWidget()->close();
  combo->SetEditable(false);
  EXPECT_FALSE(combo->OpenMenu());
  EXPECT_FALSE(QApplication::activePopupWidget());
}

}  // namespace cardwright::qt
