// SPDX-License-Identifier: MIT
// Size of the form, place of its fixed buttons and what the host is asked for.

#include "cardwright/qt/surface/QtSurface.h"
#include "runtime/FormTest.h"

namespace cardwright {
namespace {

class Layout : public FormTest {
 protected:
  void ReadSize(int scale, int width, int height) {
    const std::string text = "[FORM]\r\nScaleMode=" + std::to_string(scale) +
                             "\r\nWidth=" + std::to_string(width) + "\r\nHeight=" + std::to_string(height) +
                             "\r\n";
    ASSERT_TRUE(form->ProjectRead(qt::ToQString(folder.Put("form.cwf", text))));
  }
};

TEST_F(Layout, PutsTheButtonsInARowBelowTheForm) {
  ReadSize(3, 400, 200);
  EXPECT_EQ(form->size(), QSize(400, 249));
  EXPECT_EQ(Button("cmdOK").geometry(), QRect(204, 215, 92, 30));
  EXPECT_EQ(Button("cmdCancel").geometry(), QRect(300, 215, 92, 30));
  EXPECT_EQ(events, (Lines{"NeedResize 400 249"}));
  EXPECT_EQ(form->sizeHint(), QSize(400, 249));
  EXPECT_EQ(form->minimumSizeHint(), QSize(400, 249));
}

TEST_F(Layout, CountsInTwipsWhereTheFormDoes) {
  ReadSize(1, 6000, 3000);
  EXPECT_EQ(form->size(), QSize(400, 249));
  EXPECT_EQ(Button("cmdOK").geometry(), QRect(204, 215, 92, 30));
  EXPECT_EQ(Button("cmdCancel").geometry(), QRect(300, 215, 92, 30));
  EXPECT_EQ(events, (Lines{"NeedResize 6000 3735"}));
}

TEST_F(Layout, WidensANarrowFormToItsButtons) {
  ReadSize(3, 100, 50);
  EXPECT_EQ(form->size(), QSize(196, 99));
  EXPECT_EQ(Button("cmdOK").geometry(), QRect(4, 65, 92, 30));
  EXPECT_EQ(Button("cmdCancel").geometry(), QRect(100, 65, 92, 30));
  EXPECT_EQ(events, (Lines{"NeedResize 196 99"}));
}

TEST_F(Layout, KeepsTheLeastMarginWhereTheFormJustFits) {
  ReadSize(3, 196, 50);
  EXPECT_EQ(form->width(), 196);
  EXPECT_EQ(Button("cmdOK").x(), 4);
  ReadSize(3, 197, 50);
  EXPECT_EQ(Button("cmdOK").x(), 1) << "a single pixel of room is used as it is";
}

TEST_F(Layout, BringsTheButtonsToTheFront) {
  Read({{"TextBox", "text", ""}});
  const QObjectList& children = form->children();
  EXPECT_EQ(children.at(children.size() - 2), &Button("cmdOK"));
  EXPECT_EQ(children.back(), &Button("cmdCancel"));
}

TEST_F(Layout, StaysWhenTheHostResizesAFormThatIsFilledIn) {
  ReadSize(3, 400, 200);
  form->resize(500, 400);
  EXPECT_EQ(Button("cmdOK").geometry(), QRect(204, 215, 92, 30));
  EXPECT_EQ(events.size(), 1U);
}

TEST_F(Layout, FollowsAResizeWhileTheContainerIsBeingDesigned) {
  ReadSize(3, 400, 200);
  window.show();
  form->SetDesignMode(true);
  form->resize(500, 400);
  EXPECT_EQ(Button("cmdOK").geometry(), QRect(500 - 92 - 4 - 92, 400 - 30 - 2, 92, 30));
  EXPECT_EQ(Button("cmdCancel").geometry(), QRect(500 - 92 - 4 + 2, 400 - 30 - 2, 92, 30));
}

TEST_F(Layout, FollowsInTwipsToo) {
  ReadSize(1, 6000, 3000);
  window.show();
  form->SetDesignMode(true);
  form->resize(500, 400);
  EXPECT_EQ(Button("cmdOK").geometry(), QRect(312, 368, 92, 30));
  EXPECT_EQ(Button("cmdCancel").geometry(), QRect(406, 368, 92, 30));
}

TEST_F(Layout, NamesTheButtonsByTheMessageTable) {
  EXPECT_EQ(Button("cmdOK").text(), "Ok");
  EXPECT_EQ(Button("cmdCancel").text(), "Cancel");
  const Ref<FormInput> object = form->Object();
  EXPECT_EQ(object->GetSurface()->Find(u"cmdOK")->Tag(), u"1051");
  EXPECT_EQ(object->GetSurface()->Find(u"cmdCancel")->Tag(), u"1052");
}

TEST_F(Layout, TitlesTheHostsWindow) {
  Read({});
  EXPECT_EQ(window.windowTitle(), "A form");
  EXPECT_EQ(events, (Lines{"NeedResize 400 249"}))
      << "the window took the title, so the host is told nothing";
}

TEST_F(Layout, PassesTheTitleToAHostWithoutAWindowOfItsOwn) {
  form->setParent(nullptr);
  Read({});
  EXPECT_EQ(events, (Lines{"SetParentCaption A form", "NeedResize 400 249"}));
  EXPECT_EQ(Row(u"Form", u"Text"), u"A form");
}

TEST_F(Layout, PassesEveryLaterTitleByReference) {
  Read({});
  bool byReference = false;
  form->Object()->Connect([&](std::u16string_view event, Args args) {
    byReference = byReference || (event == u"SetParentCaption" && args[0].IsByRef());
  });
  TakeEvents();
  SetRow(u"Form", u"Text", u"Another");
  EXPECT_EQ(TakeEvents(), (Lines{"SetParentCaption Another"}));
  EXPECT_TRUE(byReference);
}

/// A surface in a window whose frame and edges a window manager would draw.
class FramedSurface final : public Surface {
 public:
  FramedSurface(QWidget& canvas, FrameSize frame, bool edges)
      : m_Surface(canvas), m_Frame(frame), m_Edges(edges) {}

  Ref<Widget> Add(std::u16string_view identifier, std::u16string_view name, Widget* container) override {
    return m_Surface.Add(identifier, name, container);
  }
  void Remove(std::u16string_view name) override { m_Surface.Remove(name); }
  Ref<Widget> Find(std::u16string_view name) const override { return m_Surface.Find(name); }
  ScaleMode Scale() const override { return m_Surface.Scale(); }
  void SetScale(ScaleMode mode) override { m_Surface.SetScale(mode); }
  OleColor BackColor() const override { return m_Surface.BackColor(); }
  void SetBackColor(OleColor color) override { m_Surface.SetBackColor(color); }
  Ref<Font> GetFont() const override { return m_Surface.GetFont(); }
  float Width() const override { return m_Surface.Width(); }
  float Height() const override { return m_Surface.Height(); }
  void Resize(float width, float height) override { m_Surface.Resize(width, height); }
  Ref<HostWindow> Host() const override { return m_Surface.Host(); }
  FrameSize HostFrame() const override { return m_Frame; }
  bool HostHasEdges() const override { return m_Edges; }
  std::int32_t WindowHandle() const override { return m_Surface.WindowHandle(); }

 private:
  qt::QtSurface m_Surface;
  FrameSize m_Frame;
  bool m_Edges;
};

struct Framed {
  int scale;
  float width, height;
  bool edges;
  float okLeft, okTop;
  const char* resize;
  float innerWidth, innerHeight;
};

class InAFrame : public Layout, public testing::WithParamInterface<Framed> {};

TEST_P(InAFrame, CountsTheFrameAndTheEdges) {
  const Framed& expected = GetParam();
  QWidget canvas;
  FramedSurface surface(canvas, {16, 39}, expected.edges);
  const Ref<FormInput> input = FormInput::Create(surface);
  Lines asked;
  input->Connect([&](std::u16string_view event, Args args) {
    if (event == u"NeedResize") asked.push_back(ToText(args[0]).ToUtf8() + " " + ToText(args[1]).ToUtf8());
  });
  input->ProjectRead(folder.Put("f.cwf", "[FORM]\r\nScaleMode=" + std::to_string(expected.scale) +
                                             "\r\nWidth=" + std::to_string(expected.width) +
                                             "\r\nHeight=" + std::to_string(expected.height) + "\r\n"));
  const float unit = PixelsToScale(1, static_cast<ScaleMode>(expected.scale));
  const Ref<Widget> ok = surface.Find(u"cmdOK");
  const Ref<Widget> cancel = surface.Find(u"cmdCancel");
  EXPECT_EQ(ok->Left(), expected.okLeft);
  EXPECT_EQ(ok->Top(), expected.okTop);
  EXPECT_EQ(cancel->Left(), expected.okLeft + 96 * unit);
  EXPECT_EQ(cancel->Top(), expected.okTop);
  EXPECT_EQ(asked, Lines{expected.resize});
  EXPECT_EQ(surface.Width(), expected.innerWidth);
  EXPECT_EQ(surface.Height(), expected.innerHeight);
  EXPECT_EQ(input->OuterWidth(), expected.innerWidth + 16 * unit);
  EXPECT_EQ(input->OuterHeight(), expected.innerHeight + 39 * unit);
}

INSTANTIATE_TEST_SUITE_P(Sizes, InAFrame,
                         testing::Values(Framed{3, 400, 200, false, 400 - 212, 215, "400 288", 384, 249},
                                         Framed{3, 400, 200, true, 400 - 212 - 2, 211, "400 288", 384, 249},
                                         Framed{3, 150, 100, false, 4, 115, "212 188", 196, 149},
                                         Framed{3, 150, 100, true, 2, 111, "212 188", 196, 149},
                                         Framed{1, 6000, 3000, true, 6000 - 3180 - 30, 3225 - 60, "6000 4320",
                                                5760, 3735}));

}  // namespace
}  // namespace cardwright
