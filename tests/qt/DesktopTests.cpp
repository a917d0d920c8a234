// SPDX-License-Identifier: MIT
#include "cardwright/qt/desktop/QtDesktop.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include "cardwright/platform/Files.h"
#include "qt/Form.h"

namespace cardwright::qt {

namespace {

/// Runs `step` on the message box that is about to open.
void OnNextBox(std::function<void(QMessageBox&)> step) {
  QTimer::singleShot(0, qApp, [step = std::move(step)] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_TRUE(box);
    step(*box);
  });
}

/// Settings in a folder of the test's own.
class DesktopTest : public testing::Test {
 protected:
  DesktopTest() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path()); }
  QTemporaryDir folder;
};

}  // namespace

struct BoxCase {
  int style;
  QMessageBox::StandardButton press;
  int answer;
  QMessageBox::Icon icon;
};
void PrintTo(const BoxCase& box, std::ostream* out) {
  *out << "style " << box.style << " answer " << box.answer;
}

class MessageBoxes : public DesktopTest, public testing::WithParamInterface<BoxCase> {};
INSTANTIATE_TEST_SUITE_P(
    , MessageBoxes,
    testing::Values(
        BoxCase{BoxStyle::OkOnly, QMessageBox::Ok, 1, QMessageBox::NoIcon},
        BoxCase{BoxStyle::Exclamation, QMessageBox::Ok, 1, QMessageBox::Warning},
        BoxCase{BoxStyle::OkCancel | BoxStyle::Critical, QMessageBox::Cancel, 2, QMessageBox::Critical},
        BoxCase{2, QMessageBox::Abort, 3, QMessageBox::NoIcon},
        BoxCase{2, QMessageBox::Retry, 4, QMessageBox::NoIcon},
        BoxCase{2, QMessageBox::Ignore, 5, QMessageBox::NoIcon},
        BoxCase{BoxStyle::YesNoCancel | BoxStyle::Question, QMessageBox::Yes, 6, QMessageBox::Question},
        BoxCase{BoxStyle::YesNo | BoxStyle::Information, QMessageBox::No, 7, QMessageBox::Information},
        BoxCase{5, QMessageBox::Retry, 4, QMessageBox::NoIcon}));

TEST_P(MessageBoxes, AnswerWithTheButtonPressed) {
  QtDesktop desktop;
  OnNextBox([&](QMessageBox& box) {
    EXPECT_EQ(box.text(), "Really <b>?");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.icon(), GetParam().icon);
    EXPECT_EQ(box.windowTitle(), "Wells");
    QTest::mouseClick(box.button(GetParam().press), Qt::LeftButton);
  });
  EXPECT_EQ(desktop.ShowMessage(u"Really <b>?", GetParam().style, u"Wells"), GetParam().answer);
}

TEST_F(DesktopTest, TheStyleChoosesTheDefaultButtonOfAMessageBox) {
  QtDesktop desktop;
  const auto pressEnter = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); };
  OnNextBox(pressEnter);
  EXPECT_EQ(desktop.ShowMessage(u"x", BoxStyle::YesNoCancel, u"t"), 6);
  OnNextBox(pressEnter);
  EXPECT_EQ(desktop.ShowMessage(u"x", BoxStyle::YesNoCancel | 0x100, u"t"), 7);
  OnNextBox(pressEnter);
  EXPECT_EQ(desktop.ShowMessage(u"x", BoxStyle::YesNoCancel | 0x200, u"t"), 2);
}

TEST_F(DesktopTest, AClosedMessageBoxCountsAsCancelled) {
  QtDesktop desktop;
  const auto close = [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); };
  OnNextBox(close);
  EXPECT_EQ(desktop.ShowMessage(u"x", BoxStyle::YesNoCancel, u"t"), 2);
  OnNextBox(close);
  EXPECT_EQ(desktop.ShowMessage(u"x", BoxStyle::YesNo, u"t"), 7);
  OnNextBox(close);
  EXPECT_EQ(desktop.ShowMessage(u"x", BoxStyle::OkOnly, u"t"), 1);
}

TEST_F(DesktopTest, AMessageBoxWhoseWindowIsDeletedCountsAsCancelled) {
  QtDesktop desktop;
  auto window = std::make_unique<QWidget>();
  window->show();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  OnNextBox([&](QMessageBox& box) {
    ASSERT_EQ(box.parentWidget(), window.get());
    window.reset();
  });
  EXPECT_EQ(desktop.ShowMessage(u"x", BoxStyle::OkCancel, u"t"), 2);
}

TEST_F(DesktopTest, AMessageBoxWithoutTitleBearsTheProgramsName) {
  QtDesktop desktop;
  OnNextBox([](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Form tests");
    box.accept();
  });
  desktop.ShowMessage(u"x", BoxStyle::OkOnly, u"");
}

TEST_F(DesktopTest, KnowsTheWidgetWithTheFocus) {
  QtDesktop desktop;
  Form form;
  const Ref<Widget> box = form.AddAt(0, u"vb.textbox", u"a");
  const Ref<ComboWidget> combo = form.AddAt<ComboWidget>(1, u"vb.combobox", u"b");
  combo->SetEditable(true);
  form.Show();
  box->SetFocus();
  EXPECT_TRUE(desktop.ActiveControl() == box);
  combo->SetFocus();
  EXPECT_TRUE(desktop.ActiveControl() == combo.get());
  auto* plain = new QPushButton(form.canvas);
  plain->show();
  plain->setFocus();
  EXPECT_FALSE(desktop.ActiveControl());
}

TEST_F(DesktopTest, ResolvesSystemColours) {
  const QtDesktop desktop;
  EXPECT_EQ(desktop.ResolveColor(0x123456), 0x123456);
  EXPECT_EQ(desktop.ResolveColor(ToOleColor(SystemColor::Window)), 0xFFFFFF);
}

TEST_F(DesktopTest, KnowsTheHandlesOfItsWindows) {
  const QtDesktop desktop;
  std::int32_t handle = 0;
  {
    Form form;
    handle = form.surface.WindowHandle();
    EXPECT_NE(handle, 0);
    EXPECT_EQ(form.surface.WindowHandle(), handle);
    EXPECT_TRUE(desktop.IsWindow(handle));
    Form other;
    EXPECT_NE(other.surface.WindowHandle(), handle);
  }
  EXPECT_FALSE(desktop.IsWindow(handle));
  EXPECT_FALSE(desktop.IsWindow(0));
  Form again;
  EXPECT_NE(again.surface.WindowHandle(), handle);
}

TEST_F(DesktopTest, StartIgnoresMissingPrograms) {
  QtDesktop desktop;
  desktop.Start(u"");
  desktop.Start(u"\"/no such folder/osk.exe\" -x");
  const Text file = FromPath(folder.path().toStdString() + "/a file");
  desktop.Start(u"touch \"" + file + u"\"");
  EXPECT_TRUE(QTest::qWaitFor([&] { return FileExists(file); }));
}

TEST_F(DesktopTest, SettingsOutliveTheDesktop) {
  {
    QtDesktop desktop;
    EXPECT_EQ(desktop.Settings().Get(u"App", u"Section", u"Key", u"fallback"), u"fallback");
    desktop.Settings().Save(u"App", u"Section", u"Key", u"value");
  }
  QtDesktop desktop;
  EXPECT_EQ(desktop.Settings().Get(u"app", u"SECTION", u"key", u""), u"value");
  EXPECT_EQ(desktop.Settings().Get(u"app", u"SECTION", u"other", u"-"), u"-");
  desktop.Settings().Save(u"App", u"Section", u"KEY", u"");
  EXPECT_EQ(desktop.Settings().Get(u"app", u"section", u"key", u"fallback"), u"");
}

TEST_F(DesktopTest, SettingsWithAnyCharactersInTheirNamesStayApart) {
  const std::vector<Text> names = {u"a/b",   u"a\\b",         u"a b",  u"~0020", u"%41",     u"[General]",
                                   u"a=b;c", u"\u00E9\u03B1", u"a\nb", u".",     u"General", Text(u"x\0y")};
  {
    QtDesktop desktop;
    for (const Text& name : names) {
      desktop.Settings().Save(name, u"s", u"k", u"1" + name);
      desktop.Settings().Save(u"a", name, u"k", u"2" + name);
      desktop.Settings().Save(u"a", u"s", name, u"3" + name);
    }
  }
  QtDesktop desktop;
  for (const Text& name : names) {
    EXPECT_EQ(desktop.Settings().Get(name, u"s", u"k", u""), u"1" + name);
    EXPECT_EQ(desktop.Settings().Get(u"a", name, u"k", u""), u"2" + name);
    EXPECT_EQ(desktop.Settings().Get(u"a", u"s", name, u""), u"3" + name);
  }
}

TEST_F(DesktopTest, KeepsValuesAsTheyAre) {
  const std::vector<Text> values = {u"@Invalid()", u"a, b; c",   u"\"quoted\"",
                                    u" blanks ",   u"a\r\nb\tc", u"\u00E9\u03B1\U0001F600",
                                    u"C:\\temp\\x"};
  for (const Text& value : values) {
    {
      QtDesktop desktop;
      desktop.Settings().Save(u"a", u"s", u"k", value);
    }
    QtDesktop desktop;
    EXPECT_EQ(desktop.Settings().Get(u"a", u"s", u"k", u""), value);
  }
}

TEST_F(DesktopTest, RefusesToSaveUnderAnEmptyName) {
  QtDesktop desktop;
  EXPECT_EQ(ErrorOf([&] { desktop.Settings().Save(u"", u"s", u"k", u"v"); }), 5);
  EXPECT_EQ(ErrorOf([&] { desktop.Settings().Save(u"a", u"", u"k", u"v"); }), 5);
  EXPECT_EQ(ErrorOf([&] { desktop.Settings().Save(u"a", u"s", u"", u"v"); }), 5);
}

TEST(SurfaceLife, OutlivesItsCanvas) {
  auto canvas = std::make_unique<QWidget>();
  QtSurface surface(*canvas);
  const Ref<Widget> widget = surface.Add(u"vb.textbox", u"a", nullptr);
  canvas.reset();
  EXPECT_EQ(ErrorOf([&] { widget->SetDisplayText(u"x"); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.Add(u"vb.label", u"b", nullptr); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.SetBackColor(0); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.Width(); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.Host(); }), 91);
  EXPECT_EQ(ErrorOf([&] { surface.WindowHandle(); }), 91);
  surface.SetScale(ScaleMode::Twips);
  surface.GetFont()->Assign(FontValues{u"Sans", 12});
  surface.Remove(u"a");
}

TEST(SurfaceLife, TakesItsWidgetsWithIt) {
  QWidget canvas;
  auto surface = std::make_unique<QtSurface>(canvas);
  const Ref<Widget> frame = surface->Add(u"vb.frame", u"f", nullptr);
  const Ref<Widget> widget = surface->Add(u"vb.combobox", u"a", frame.get());
  surface.reset();
  EXPECT_TRUE(canvas.children().isEmpty());
  EXPECT_EQ(ErrorOf([&] { widget->Left(); }), 91);
  EXPECT_EQ(ErrorOf([&] { frame->SetVisible(true); }), 91);
}

TEST(SurfaceLife, EndsInAHandlerOfOneOfItsWidgets) {
  auto form = std::make_unique<Form>();
  const Ref<Widget> button = form->AddAt(0, u"vb.commandbutton", u"a");
  const QPointer<QWidget> native(&NativeOf(*button));
  Listener listener;
  button->SetListener(&listener);
  auto surface = std::make_unique<QtSurface>(*form->canvas);
  const Ref<Widget> other = surface->Add(u"vb.label", u"b", nullptr);
  other->SetListener(&listener);
  listener.onMouseDown = [&] { surface.reset(); };
  const QPointer<QWidget> label(&NativeOf(*other));
  QTest::mouseClick(label.data(), Qt::LeftButton, {}, QPoint(2, 2));
  EXPECT_EQ(listener.Take(), "down1+0@2,2");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(label);
  EXPECT_TRUE(native);
}

}  // namespace cardwright::qt
