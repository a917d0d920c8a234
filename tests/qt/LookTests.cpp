// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QFontDatabase>
#include <QLabel>

#include "cardwright/qt/values/Colors.h"
#include "qt/Form.h"

namespace cardwright::qt {

namespace {

/// Another palette of the whole application for the length of a test.
class DesktopColors {
 public:
  explicit DesktopColors(const QPalette& palette) {
    QApplication::setPalette(palette);
    QCoreApplication::processEvents();  // the toolkit passes it on later
  }
  ~DesktopColors() { QApplication::setPalette(m_Before); }
  DesktopColors(const DesktopColors&) = delete;
  DesktopColors& operator=(const DesktopColors&) = delete;

 private:
  QPalette m_Before = QApplication::palette();
};

QColor PixelOf(Widget& widget, int x, int y) { return NativeOf(widget).grab().toImage().pixelColor(x, y); }

}  // namespace

TEST(Colors, ReadBlueGreenRed) {
  const QPalette palette;
  EXPECT_EQ(ToQColor(0x332211, palette), QColor(0x11, 0x22, 0x33));
  EXPECT_EQ(FromQColor(QColor(0x11, 0x22, 0x33)), 0x332211);
  EXPECT_EQ(ToQColor(0x02332211, palette), QColor(0x11, 0x22, 0x33));
}

TEST(Colors, TakeSystemColoursFromThePalette) {
  const QPalette p = QApplication::palette();
  const auto resolve = [&](std::uint32_t index) {
    return ToQColor(static_cast<OleColor>(0x80000000u | index), p);
  };
  EXPECT_EQ(resolve(5), p.color(QPalette::Base));
  EXPECT_EQ(resolve(8), p.color(QPalette::Text));
  EXPECT_EQ(resolve(13), p.color(QPalette::Highlight));
  EXPECT_EQ(resolve(14), p.color(QPalette::HighlightedText));
  EXPECT_EQ(resolve(15), p.color(QPalette::Window));
  EXPECT_EQ(resolve(17), p.color(QPalette::Disabled, QPalette::WindowText));
  EXPECT_EQ(resolve(18), p.color(QPalette::WindowText));
  EXPECT_EQ(resolve(24), p.color(QPalette::ToolTipBase));
  EXPECT_EQ(resolve(25), QColor(Qt::black));
  EXPECT_EQ(resolve(31), QColor(Qt::black));
  EXPECT_EQ(resolve(0x7FFFFFFF), QColor(Qt::black));
}

TEST(Look, ShowsTheColoursOfALabel) {
  Form form;
  const Ref<Widget> label = form.AddAt(0, u"vb.label", u"a");
  label->SetDisplayText(u"\u2588\u2588\u2588\u2588");
  label->SetBackColor(Rgb(0, 0, 255));
  label->SetForeColor(Rgb(255, 0, 0));
  EXPECT_EQ(label->BackColor(), 0xFF0000);
  EXPECT_EQ(PixelOf(*label, 110, 25), QColor(0, 0, 255));
  EXPECT_EQ(NativeOf(*label).palette().color(QPalette::WindowText), QColor(255, 0, 0));
}

TEST(Look, ShowsTheBackgroundOfCaptionWidgets) {
  Form form;
  int row = 0;
  for (const char16_t* kind : {u"vb.label", u"vb.frame", u"vb.checkbox", u"vb.optionbutton"}) {
    const Ref<Widget> widget = form.AddAt(row, kind, u"a" + Text(std::u16string(1, u'0' + row)));
    widget->SetBackColor(Rgb(0, 0, 255));
    EXPECT_EQ(PixelOf(*widget, 110, 25), QColor(0, 0, 255)) << row;
    ++row;
  }
}

TEST(Look, KeepsDisabledTextGreyUnderAColourOfItsOwn) {
  Form form;
  const Ref<Widget> label = form.AddAt(0, u"vb.label", u"a");
  label->SetForeColor(Rgb(255, 0, 0));
  EXPECT_EQ(NativeOf(*label).palette().color(QPalette::Disabled, QPalette::WindowText),
            QApplication::palette().color(QPalette::Disabled, QPalette::WindowText));
}

TEST(Look, KeepsLabelsGreyOnAColouredForm) {
  Form form;
  const QColor grey = QApplication::palette().color(QPalette::Window);
  const Ref<Widget> before = form.AddAt(0, u"vb.label", u"before");
  const Ref<Widget> text = form.AddAt(1, u"vb.textbox", u"text");
  form.surface.SetBackColor(Rgb(0, 255, 0));
  const Ref<Widget> after = form.AddAt(2, u"vb.checkbox", u"after");
  EXPECT_EQ(form.canvas->grab().toImage().pixelColor(350, 250), QColor(0, 255, 0));
  EXPECT_EQ(PixelOf(*before, 110, 25), grey);
  EXPECT_EQ(PixelOf(*after, 110, 25), grey);
  EXPECT_EQ(NativeOf(*text).palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
}

TEST(Look, KeepsTheColoursOfAFrameToItself) {
  Form form;
  const Ref<Widget> frame = form.Add(u"vb.frame", u"f");
  frame->Move(0, 0, 200, 100);
  const Ref<Widget> same = form.Add(u"vb.label", u"same", frame.get());
  const Ref<Widget> grey = form.Add(u"vb.label", u"grey", frame.get());
  same->SetBackColor(Rgb(255, 255, 0));
  frame->SetBackColor(Rgb(255, 255, 0));
  frame->SetForeColor(Rgb(255, 0, 0));
  EXPECT_EQ(PixelOf(*frame, 150, 50), QColor(255, 255, 0));
  EXPECT_EQ(NativeOf(*grey).palette().color(QPalette::Window),
            QApplication::palette().color(QPalette::Window));
  EXPECT_EQ(NativeOf(*grey).palette().color(QPalette::WindowText),
            QApplication::palette().color(QPalette::WindowText));
  EXPECT_EQ(NativeOf(*same).palette().color(QPalette::Window), QColor(255, 255, 0));
}

TEST(Look, FollowsThePaletteOfTheDesktop) {
  Form form;
  const Ref<Widget> label = form.AddAt(0, u"vb.label", u"a");
  const Ref<Widget> text = form.AddAt(1, u"vb.textbox", u"t");
  label->SetBackColor(ToOleColor(SystemColor::Highlight));
  form.surface.SetBackColor(ToOleColor(SystemColor::Window));

  QPalette dark = QApplication::palette();
  dark.setColor(QPalette::Highlight, QColor(1, 2, 3));
  dark.setColor(QPalette::Base, QColor(4, 5, 6));
  dark.setColor(QPalette::Text, QColor(7, 8, 9));
  const DesktopColors colors(dark);
  EXPECT_EQ(label->BackColor(), ToOleColor(SystemColor::Highlight));
  EXPECT_EQ(NativeOf(*label).palette().color(QPalette::Window), QColor(1, 2, 3));
  EXPECT_EQ(NativeOf(*text).palette().color(QPalette::Text), QColor(7, 8, 9));
  EXPECT_EQ(form.canvas->palette().color(QPalette::Window), QColor(4, 5, 6));
}

TEST(Look, ShowsTheBackgroundOfAListWithoutEditField) {
  Form form;
  const Ref<Widget> combo = form.AddAt(0, u"vb.combobox", u"c");
  combo->SetBackColor(Rgb(255, 255, 0));
  for (const int y : {5, 12, 18}) EXPECT_EQ(PixelOf(*combo, 60, y), QColor(255, 255, 0)) << y;
  combo->SetBackColor(ToOleColor(SystemColor::Window));
  EXPECT_FALSE(NativeOf(*combo).testAttribute(Qt::WA_SetPalette));
}

TEST(Look, GivesEachWidgetAFontOfItsOwnThatLooksLikeTheSurfaces) {
  Form form;
  FontValues values;
  values.size = 12;
  values.bold = true;
  form.surface.GetFont()->Assign(values);
  const Ref<Widget> widget = form.Add(u"vb.label", u"a");
  EXPECT_FALSE(widget->GetFont() == form.surface.GetFont());
  EXPECT_EQ(widget->GetFont()->Values(), values);
  EXPECT_EQ(NativeOf(*widget).font().pointSizeF(), 12);
  EXPECT_TRUE(NativeOf(*widget).font().bold());
}

TEST(Look, LeavesTheFontsOfWidgetsAloneWhenTheSurfacesChanges) {
  Form form;
  const Ref<Widget> widget = form.Add(u"vb.label", u"a");
  FontValues values;
  values.size = 20;
  form.surface.GetFont()->Assign(values);
  EXPECT_EQ(form.canvas->font().pointSizeF(), 20);
  EXPECT_EQ(widget->GetFont()->Values().size, 8.25);
  EXPECT_EQ(NativeOf(*widget).font().pointSizeF(), 8.25);
}

TEST(Look, SharesFontObjects) {
  Form form;
  const Ref<Widget> a = form.Add(u"vb.label", u"a");
  const Ref<Widget> b = form.Add(u"vb.textbox", u"b");
  const Ref<Font> before = b->GetFont();
  b->SetFont(a->GetFont());
  EXPECT_TRUE(a->GetFont() == b->GetFont());
  FontValues values;
  values.size = 10.5;
  values.italic = values.underline = values.strikethrough = true;
  a->GetFont()->Assign(values);
  const QFont shown = NativeOf(*b).font();
  EXPECT_EQ(shown.pointSizeF(), 10.5);
  EXPECT_TRUE(shown.italic() && shown.underline() && shown.strikeOut());
  before->Assign(FontValues{u"Sans", 30});
  EXPECT_EQ(NativeOf(*b).font().pointSizeF(), 10.5);
  EXPECT_EQ(ErrorOf([&] { b->SetFont(nullptr); }), 380);
}

TEST(Look, ShowsAFamilyThatIsNotInstalledInTheApplicationsOwn) {
  Form form;
  const Ref<Widget> widget = form.Add(u"vb.label", u"a");
  widget->GetFont()->Assign(FontValues{u"No Such Family", 9});
  EXPECT_EQ(widget->GetFont()->Values().name, u"No Such Family");
  EXPECT_EQ(NativeOf(*widget).font().family(), QApplication::font().family());
  ASSERT_TRUE(QFontDatabase::hasFamily("DejaVu Serif"));
  widget->GetFont()->Assign(FontValues{u"DejaVu Serif", 9});
  EXPECT_EQ(NativeOf(*widget).font().family(), "DejaVu Serif");
}

TEST(Font, OutlivesTheWidgetsThatSharedAFont) {
  Ref<Font> font;
  {
    Form form;
    font = form.Add(u"vb.label", u"a")->GetFont();
  }
  font->Assign(FontValues{u"Sans", 12});
  EXPECT_EQ(font->Values().size, 12);
}

TEST(Look, ReadsAmpersandsInLabelsAsMarks) {
  Form form;
  const Ref<Widget> label = form.Add(u"vb.label", u"a");
  const struct {
    const char16_t* caption;
    const char* shown;
  } cases[] = {{u"&Name", "Name"}, {u"A && B", "A & B"}, {u"Wells&", "Wells"}, {u"<b>x</b>", "<b>x</b>"}};
  for (const auto& c : cases) {
    label->SetDisplayText(c.caption);
    EXPECT_EQ(NativeAs<QLabel>(*label).text(), c.shown);
    EXPECT_EQ(label->DisplayText(), c.caption);
  }
  EXPECT_EQ(NativeAs<QLabel>(*label).textFormat(), Qt::PlainText);
}

TEST(Look, DrawsTheCaptionOfAFrameOnItsBorder) {
  Form form;
  const Ref<Widget> frame = form.Add(u"vb.frame", u"f");
  frame->Move(0, 0, 200, 100);
  const QImage plain = NativeOf(*frame).grab().toImage();
  EXPECT_NE(plain.pixelColor(100, 0), plain.pixelColor(100, 50));  // the border
  frame->SetDisplayText(u"Caption");
  const QImage titled = NativeOf(*frame).grab().toImage();
  EXPECT_EQ(titled.pixelColor(195, 0), titled.pixelColor(195, 50));
  EXPECT_EQ(titled.pixelColor(100, 99), plain.pixelColor(100, 99));
}

}  // namespace cardwright::qt
