// SPDX-License-Identifier: MIT
#include <QVBoxLayout>

#include "qt/Form.h"

namespace cardwright::qt {

TEST(Geometry, KeepsTheNumbersThatWereSetAndRoundsOnlyThePixels) {
  Form form;
  const Ref<Widget> widget = form.Add(u"vb.label", u"a");
  widget->Move(10.25F, 20.5F, 30.75F, 40.125F);
  EXPECT_EQ(widget->Left(), 10.25F);
  EXPECT_EQ(widget->Top(), 20.5F);
  EXPECT_EQ(widget->Width(), 30.75F);
  EXPECT_EQ(widget->Height(), 40.125F);
  EXPECT_EQ(NativeOf(*widget).geometry(), QRect(10, 21, 31, 40));
}

TEST(Geometry, CountsTwipsFifteenToAPixel) {
  Form form;
  form.surface.SetScale(ScaleMode::Twips);
  const Ref<Widget> widget = form.Add(u"vb.textbox", u"a");
  widget->Move(150, 307, 1215, 300);
  EXPECT_EQ(NativeOf(*widget).geometry(), QRect(10, 20, 81, 20));
  EXPECT_EQ(widget->Top(), 307);
  widget->SetLeft(1500);
  EXPECT_EQ(NativeOf(*widget).x(), 100);
}

TEST(Geometry, IsConvertedWhenTheScaleChanges) {
  Form form;
  const Ref<Widget> widget = form.Add(u"vb.label", u"a");
  const Ref<ListViewWidget> list = form.Add<ListViewWidget>(u"MSComctlLib.ListViewCtrl.2", u"l");
  list->SetColumnWidth(50);
  widget->Move(10, 20, 30.5F, 40);
  form.surface.SetScale(ScaleMode::Twips);
  EXPECT_EQ(widget->Left(), 150);
  EXPECT_EQ(widget->Width(), 457.5F);
  EXPECT_EQ(list->ColumnWidth(), 750);
  EXPECT_EQ(form.surface.Width(), 6000);
  EXPECT_EQ(NativeOf(*widget).geometry(), QRect(10, 20, 31, 40));
  form.surface.SetScale(ScaleMode::Pixels);
  EXPECT_EQ(widget->Width(), 30.5F);
  EXPECT_EQ(form.surface.Width(), 400);
}

TEST(Geometry, CountsPixelsInEveryScaleButTwips) {
  Form form;
  form.surface.SetScale(static_cast<ScaleMode>(0));
  const Ref<Widget> widget = form.Add(u"vb.label", u"a");
  widget->Move(10, 20, 30, 40);
  EXPECT_EQ(NativeOf(*widget).geometry(), QRect(10, 20, 30, 40));
}

TEST(Geometry, RefusesNegativeAndNonFiniteSizes) {
  Form form;
  const Ref<Widget> widget = form.Add(u"vb.label", u"a");
  widget->Move(1, 2, 3, 4);
  EXPECT_EQ(ErrorOf([&] { widget->SetWidth(-1); }), 380);
  EXPECT_EQ(ErrorOf([&] { widget->SetHeight(-0.5F); }), 380);
  EXPECT_EQ(ErrorOf([&] { widget->SetLeft(std::numeric_limits<float>::quiet_NaN()); }), 380);
  EXPECT_EQ(NativeOf(*widget).geometry(), QRect(1, 2, 3, 4));
  widget->Move(-1e30F, 1e30F, 1e30F, 0);
  EXPECT_EQ(widget->Top(), 1e30F);
}

TEST(Geometry, CountsFromTheOuterCornerOfAFrame) {
  Form form;
  const Ref<Widget> frame = form.Add(u"vb.frame", u"f");
  frame->SetDisplayText(u"Caption");
  frame->Move(50, 60, 200, 100);
  const Ref<Widget> inner = form.Add(u"vb.label", u"a", frame.get());
  inner->Move(5, 7, 20, 10);
  EXPECT_EQ(NativeOf(*inner).mapTo(form.canvas, QPoint(0, 0)), QPoint(55, 67));
}

TEST(Geometry, LeavesTheHeightOfAComboToItsFont) {
  Form form;
  const Ref<Widget> combo = form.Add(u"vb.combobox", u"c");
  const float height = combo->Height();
  EXPECT_GT(height, 10);
  combo->Move(1, 2, 100, 300);
  EXPECT_EQ(combo->Height(), height);
  EXPECT_EQ(NativeOf(*combo).height(), height);
  EXPECT_EQ(combo->Width(), 100);

  FontValues large = combo->GetFont()->Values();
  large.size = 24;
  combo->GetFont()->Assign(large);
  EXPECT_GT(combo->Height(), height);
  EXPECT_EQ(NativeOf(*combo).height(), combo->Height());
}

TEST(Geometry, KeepsTheSizeOfTheSurfaceAsItWasAskedFor) {
  Form form;
  form.surface.SetScale(ScaleMode::Twips);
  form.surface.Resize(5000, 3000);
  EXPECT_EQ(form.surface.Width(), 5000);
  EXPECT_EQ(form.canvas->size(), QSize(333, 200));
  form.canvas->resize(100, 200);  // by the window around it
  EXPECT_EQ(form.surface.Width(), 1500);
  EXPECT_EQ(form.surface.Height(), 3000);
}

TEST(Geometry, ZOrderMovesWidgetsToFrontAndBack) {
  Form form;
  const Ref<Widget> a = form.Add(u"vb.label", u"a");
  const Ref<Widget> b = form.Add(u"vb.label", u"b");
  EXPECT_EQ(form.canvas->children().last(), &NativeOf(*b));
  a->SetZOrder(StackPosition::Front);
  EXPECT_EQ(form.canvas->children().last(), &NativeOf(*a));
  a->SetZOrder(StackPosition::Back);
  EXPECT_EQ(form.canvas->children().first(), &NativeOf(*a));
}

TEST(HostWindow, IsTheTopLevelWindowAroundTheCanvas) {
  Form form;
  const Ref<HostWindow> host = form.surface.Host();
  ASSERT_TRUE(host);
  EXPECT_TRUE(form.surface.Host() == host);
  host->SetCaption(u"Wells");
  EXPECT_EQ(form.window.windowTitle(), "Wells");
  EXPECT_EQ(host->Caption(), u"Wells");
  EXPECT_FALSE(host->IsVisible());
  host->SetVisible(true);
  EXPECT_TRUE(form.window.isVisible());
  host->Close();
  EXPECT_FALSE(form.window.isVisible());
}

TEST(HostWindow, CountsItsSizeInTwipsWithTheFrame) {
  Form form;
  form.Show();
  const FrameSize frame = form.surface.HostFrame();
  const Ref<HostWindow> host = form.surface.Host();
  EXPECT_EQ(host->Width(), 15 * (400 + frame.width));
  EXPECT_EQ(host->Height(), 15 * (300 + frame.height));
  host->SetWidth(15 * (500 + frame.width));
  host->SetHeight(15 * (200 + frame.height));
  EXPECT_EQ(form.window.size(), QSize(500, 200));
}

TEST(HostWindow, IsNullForACanvasThatIsAWindow) {
  QWidget canvas;
  const QtSurface surface(canvas);
  EXPECT_FALSE(surface.Host());
}

TEST(HostWindow, FailsOnceItsWindowIsGone) {
  auto window = std::make_unique<QWidget>();
  const auto canvas = std::make_unique<QWidget>(window.get());
  const QtSurface surface(*canvas);
  const Ref<HostWindow> host = surface.Host();
  canvas->setParent(nullptr);
  window.reset();
  EXPECT_EQ(ErrorOf([&] { host->Caption(); }), 91);
  EXPECT_FALSE(surface.Host());
}

}  // namespace cardwright::qt
