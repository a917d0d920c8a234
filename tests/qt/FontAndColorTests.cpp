// SPDX-License-Identifier: MIT
#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFontDialog>

#include "cardwright/platform/SelectorWidgets.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/QtText.h"
#include "qt/Dialogs.h"
#include "qt/Form.h"

namespace cardwright::qt {

namespace {

QWidget& PartOf(Widget& widget, std::u16string_view name) {
  return *dynamic_cast<WidgetCore&>(widget).Part(name);
}
QColor PixelAt(QWidget& widget, QPoint at) { return widget.grab().toImage().pixelColor(at); }

}  // namespace

class FontSelector : public testing::Test {
 protected:
  FontSelector() {
    Put({.name = u"DejaVu Sans", .size = 10});
    box->SetListener(&listener);
  }
  ~FontSelector() override { box->SetListener(nullptr); }

  void Put(FontValues values) { box->GetFont()->Assign(std::move(values)); }
  QWidget& Sample() { return PartOf(*box, u"Edit"); }
  QWidget& Button() { return PartOf(*box, u"BUTTON"); }
  void ChooseByButton(const QFont& font) {
    Meet<QFontDialog>([&, font](QFontDialog& dialog) {
      title = dialog.windowTitle();
      if (font.family().isEmpty()) return dialog.reject();
      dialog.setCurrentFont(font);
      dialog.accept();
    });
    Click(Button(), Button().rect().center());
    QCoreApplication::processEvents();
  }

  Form form;
  Ref<FontSelectorWidget> box = form.AddAt<FontSelectorWidget>(0, u"CardwrightCtrl.FontSelector", u"f");
  Ref<Widget> other = form.AddAt(1, u"vb.textbox", u"t");
  Listener listener;
  QString title;
};

TEST_F(FontSelector, StartsWithABorderAndASizeOfItsOwn) {
  EXPECT_EQ(box->BorderStyle(), 1);
  EXPECT_FALSE(box->AutoSize());
  EXPECT_EQ(box->Title(), u"");
  EXPECT_EQ(box->BackColorBkg(), ToOleColor(SystemColor::ButtonFace));
  EXPECT_EQ(ErrorOf([&] { box->SetBorderStyle(2); }), 380);
  box->SetBorderStyle(0);
  EXPECT_EQ(box->BorderStyle(), 0);
}

TEST_F(FontSelector, ShowsItsFontInItself) {
  EXPECT_EQ(Sample().font().family(), "DejaVu Sans");
  EXPECT_EQ(Sample().font().pointSizeF(), 10);
  EXPECT_EQ(Sample().accessibleName(), "Font: DejaVu Sans, 10 pt");
  Put({.name = u"DejaVu Serif", .size = 30, .bold = true});
  EXPECT_EQ(Sample().font().family(), "DejaVu Serif");
  EXPECT_TRUE(Sample().font().bold());
  EXPECT_EQ(Button().font().family(), QApplication::font().family());
  EXPECT_EQ(Button().font().pointSizeF(), QApplication::font().pointSizeF());
}

TEST_F(FontSelector, KeepsTheNameOfAFontThatIsNotInstalledAndSaysSo) {
  Put({.name = u"Nowhere Grotesque", .size = 10});
  EXPECT_EQ(box->GetFont()->Values().name, u"Nowhere Grotesque");
  EXPECT_EQ(Sample().accessibleName(), "Font: Nowhere Grotesque, 10 pt (not installed)");
  EXPECT_EQ(Sample().toolTip(), "Nowhere Grotesque, 10 pt (not installed)");
  form.Show();
  QFont larger = Sample().font();
  larger.setPointSizeF(14);
  ChooseByButton(larger);
  EXPECT_EQ(box->GetFont()->Values().name, u"Nowhere Grotesque") << "only the size was chosen";
  EXPECT_EQ(box->GetFont()->Values().size, 14);
  for (const Text& odd : {Text(), Text(u"a\nb"), Text(std::u16string(100000, u'x'))}) {
    Put({.name = odd, .size = 10});
    EXPECT_EQ(box->GetFont()->Values().name, odd);
    Sample().grab();
  }
}

TEST_F(FontSelector, FiresChangeForEachNewFont) {
  Put({.name = u"DejaVu Sans", .size = 10});
  EXPECT_EQ(listener.Take(), "");
  Put({.name = u"DejaVu Sans", .size = 12});
  EXPECT_EQ(listener.Take(), "change");
  Put({.name = u"Nowhere A", .size = 12});
  EXPECT_EQ(listener.Take(), "change");
  Put({.name = u"Nowhere B", .size = 12});
  EXPECT_EQ(listener.Take(), "change") << "though both look the same";
  const Ref<Font> shared = MakeRef<Font>(FontValues{.name = u"DejaVu Sans", .size = 12});
  box->SetFont(shared);
  EXPECT_EQ(listener.Take(), "change");
  box->SetFont(MakeRef<Font>(shared->Values()));
  EXPECT_EQ(listener.Take(), "");
}

TEST_F(FontSelector, TakesTheHeightOfItsFontIfItIsTo) {
  box->Move(10, 10, 200, 90);
  box->SetAutoSize(true);
  EXPECT_EQ(listener.Take(), "resize");
  const float low = box->Height();
  EXPECT_LT(low, 40);
  form.Show();
  listener.Take();
  EXPECT_EQ(Sample().height(), static_cast<int>(low));
  Put({.name = u"DejaVu Sans", .size = 30});
  EXPECT_EQ(listener.Take(), "resize change");
  EXPECT_GT(box->Height(), low + 15);
  EXPECT_EQ(box->Width(), 200);
  const float high = box->Height();
  box->SetBorderStyle(0);
  EXPECT_LT(box->Height(), high);
  EXPECT_EQ(listener.Take(), "resize");
  box->Move(10, 10, 150, 400);
  EXPECT_LT(box->Height(), high);
  EXPECT_EQ(listener.Take(), "");
  box->SetAutoSize(false);
  box->Move(10, 10, 150, 90);
  EXPECT_EQ(box->Height(), 90);
  Put({.name = u"DejaVu Sans", .size = 8});
  EXPECT_EQ(box->Height(), 90);
}

TEST_F(FontSelector, OpensTheChoiceBetweenTheEventsOfItsButton) {
  box->SetTitle(u"Font of the label");
  form.Show();
  listener.Take();
  QFont wanted(QStringLiteral("DejaVu Serif"));
  wanted.setPointSizeF(14);
  wanted.setItalic(true);
  wanted.setUnderline(true);
  ChooseByButton(wanted);
  EXPECT_EQ(title, "Font of the label");
  const FontValues chosen = box->GetFont()->Values();
  EXPECT_EQ(chosen, (FontValues{.name = u"DejaVu Serif", .size = 14, .italic = true, .underline = true}));
  std::string told = listener.Take();
  EXPECT_NE(told.find("before change after"), std::string::npos) << told;
  EXPECT_EQ(told.find("click"), std::string::npos) << told;
  ChooseByButton({QString()});
  EXPECT_EQ(box->GetFont()->Values(), chosen);
  told = listener.Take();
  EXPECT_NE(told.find("before after"), std::string::npos) << told;
}

TEST_F(FontSelector, OpensTheChoiceByKeys) {
  form.Show();
  box->SetFocus();
  EXPECT_EQ(QApplication::focusWidget(), &Sample());
  listener.Take();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_F4}) {
    Meet<QFontDialog>([](QFontDialog& dialog) { dialog.reject(); });
    QTest::keyClick(&Sample(), key);
    const std::string told = listener.Take();
    EXPECT_NE(told.find("before after"), std::string::npos) << told;
    QCoreApplication::processEvents();
  }
  QTest::keyClick(&Sample(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &NativeOf(*other));
}

TEST_F(FontSelector, IsClickedOnItsSample) {
  form.Show();
  box->SetFocus();
  listener.Take();
  Click(Sample(), {10, 10});
  EXPECT_EQ(listener.Take(), "down1+0@10,10 up1+0@10,10 click");
  box->SetLocked(true);
  Click(Button(), {5, 5});
  EXPECT_FALSE(QApplication::activeModalWidget());
  const std::string told = listener.Take();
  EXPECT_NE(told.find("click"), std::string::npos) << told;
  QTest::keyClick(&Sample(), Qt::Key_F4);
  EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(FontSelector, FillsItsTemplateWithFontAndColour) {
  box->SetForeColor(Rgb(1, 2, 3));
  Put({.name = u"DejaVu Sans", .size = 12, .bold = true});
  EXPECT_EQ(box->Value(u"|%n%| %s% %spx% %stw% %R% %g% %b% %bold% %italic% %x%"),
            u"|DejaVu Sans| 12 16 240 1 2 3 True False %x%");
  box->SetForeColor(ToOleColor(SystemColor::Highlight));
  const QColor resolved = QApplication::palette().color(QPalette::Highlight);
  EXPECT_EQ(box->Value(u"%r%"), Text::FromUtf8(std::to_string(resolved.red())));
}

TEST_F(FontSelector, PaintsItsColours) {
  box->SetBackColor(Rgb(255, 255, 0));
  box->SetBackColorBkg(Rgb(0, 0, 255));
  box->Move(0, 0, 200, 60);
  EXPECT_EQ(PixelAt(Sample(), {150, 40}), QColor(255, 255, 0));
  EXPECT_EQ(PixelAt(NativeOf(*box), {190, 2}), QColor(0, 0, 255));
}

TEST_F(FontSelector, CanBeRemovedInItsEventHandlers) {
  for (auto* event : {&listener.onBefore, &listener.onChange, &listener.onAfter}) {
    form.Show();
    box->SetListener(&listener);
    *event = [&] { form.surface.Remove(box->Name()); };
    if (event == &listener.onBefore)
      Click(Button());
    else
      ChooseByButton(QFont(QStringLiteral("DejaVu Serif"), 20));
    EXPECT_EQ(ErrorOf([&] { box->Title(); }), 91);
    *event = nullptr;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    box = form.AddAt<FontSelectorWidget>(0, u"CardwrightCtrl.FontSelector", u"f");
  }
}

class ColorSelector : public testing::Test {
 protected:
  ColorSelector() { box->SetListener(&listener); }
  ~ColorSelector() override { box->SetListener(nullptr); }

  QAbstractButton& Swatch() { return dynamic_cast<QAbstractButton&>(PartOf(*box, u"button")); }
  void MeetChoice(const QColor& color) {
    Meet<QColorDialog>([&, color](QColorDialog& dialog) {
      title = dialog.windowTitle();
      begun = dialog.currentColor();
      if (!color.isValid()) return dialog.reject();
      dialog.setCurrentColor(color);
      dialog.accept();
    });
  }

  Form form;
  Ref<ColorSelectorWidget> box = form.AddAt<ColorSelectorWidget>(0, u"CardwrightCtrl.ColorSelector", u"c");
  Ref<Widget> other = form.AddAt(1, u"vb.textbox", u"t");
  Listener listener;
  QString title;
  QColor begun;
};

TEST_F(ColorSelector, KeepsItsColourAsItWasSet) {
  EXPECT_EQ(box->Color(), 0);
  EXPECT_EQ(box->BorderStyle(), 1);
  box->SetColor(ToOleColor(SystemColor::Highlight));
  EXPECT_EQ(box->Color(), ToOleColor(SystemColor::Highlight));
  box->SetColor(0x02332211);
  EXPECT_EQ(box->Color(), 0x02332211);
  EXPECT_EQ(Swatch().accessibleName(), "Color #112233");
  EXPECT_EQ(listener.Take(), "");
  EXPECT_EQ(ErrorOf([&] { box->SetBorderStyle(-1); }), 380);
}

TEST_F(ColorSelector, ShowsItsColourWithABackgroundAround) {
  box->SetColor(Rgb(255, 0, 0));
  box->SetBackColor(Rgb(0, 0, 255));
  EXPECT_EQ(PixelAt(NativeOf(*box), {40, 15}), QColor(255, 0, 0));
  EXPECT_EQ(PixelAt(NativeOf(*box), {0, 15}), QColor(0, 0, 255));
  box->SetBorderStyle(0);
  EXPECT_EQ(PixelAt(NativeOf(*box), {2, 15}), QColor(255, 0, 0));
  box->SetBorderStyle(1);
  EXPECT_NE(PixelAt(NativeOf(*box), {2, 15}), QColor(255, 0, 0));
  box->SetColor(ToOleColor(SystemColor::Highlight));
  EXPECT_EQ(PixelAt(NativeOf(*box), {40, 15}), QApplication::palette().color(QPalette::Highlight));
}

TEST_F(ColorSelector, IsClickedWhenTheChoiceIsOver) {
  box->SetTitle(u"Colour of the symbol");
  box->SetColor(Rgb(10, 20, 30));
  form.Show();
  listener.Take();
  OleColor seen = 0;
  listener.onClick = [&] { seen = box->Color(); };
  MeetChoice(QColor(1, 2, 3));
  Click(Swatch(), {10, 10});
  EXPECT_EQ(title, "Colour of the symbol");
  EXPECT_EQ(begun, QColor(10, 20, 30));
  EXPECT_EQ(seen, Rgb(1, 2, 3));
  EXPECT_EQ(listener.Take(), "down1+0@10,10 up1+0@10,10 click");
  MeetChoice({});
  Click(Swatch(), {10, 10});
  EXPECT_EQ(box->Color(), Rgb(1, 2, 3));
  EXPECT_EQ(listener.Take(), "down1+0@10,10 up1+0@10,10 click");
}

TEST_F(ColorSelector, OpensByKeysAndByItsEdge) {
  form.Show();
  box->SetFocus();
  listener.Take();
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_F4}) {
    MeetChoice(QColor(1, 2, 3));
    QTest::keyClick(&Swatch(), key);
    const std::string told = listener.Take();
    EXPECT_EQ(told.substr(told.rfind(' ') + 1), "click") << told;
    QCoreApplication::processEvents();
  }
  box->SetBackColor(Rgb(0, 0, 255));
  MeetChoice({});
  Click(NativeOf(*box), {1, 1});
  EXPECT_EQ(listener.Take(), "down1+0@1,1 up1+0@1,1 click");
  QCoreApplication::processEvents();
  QTest::keyClick(&Swatch(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &NativeOf(*other));
}

TEST_F(ColorSelector, IsClickedAtOnceWhileItIsLocked) {
  box->SetLocked(true);
  form.Show();
  listener.Take();
  Click(Swatch(), {10, 10});
  EXPECT_EQ(listener.Take(), "down1+0@10,10 up1+0@10,10 click");
  QTest::keyClick(&Swatch(), Qt::Key_F4);
  EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(ColorSelector, FillsItsTemplateWithTheResolvedColour) {
  box->SetColor(Rgb(1, 2, 3));
  EXPECT_EQ(box->Value(u"%c%: %R% %g% %B% %n%"), u"197121: 1 2 3 %n%");
  box->SetColor(ToOleColor(SystemColor::Window));
  const QColor resolved = QApplication::palette().color(QPalette::Base);
  EXPECT_EQ(box->Value(u"%g%"), Text::FromUtf8(std::to_string(resolved.green())));
}

TEST_F(ColorSelector, CanBeRemovedWhileItsDialogIsOpen) {
  form.Show();
  Meet<QColorDialog>([&](QColorDialog& dialog) {
    form.surface.Remove(u"c");
    dialog.accept();
  });
  Click(Swatch(), {10, 10});
  EXPECT_EQ(ErrorOf([&] { box->Color(); }), 91);
}

}  // namespace cardwright::qt
