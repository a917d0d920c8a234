// SPDX-License-Identifier: MIT
#include "cardwright/platform/Font.h"

#include "automation/Printing.h"
#include "cardwright/platform/Picture.h"
#include "cardwright/platform/Surface.h"

namespace cardwright {
namespace {

class Watcher final : public Font::User {
 public:
  explicit Watcher(Font& font) : m_Font(font) { font.AddUser(*this); }
  ~Watcher() { m_Font.RemoveUser(*this); }
  Watcher(const Watcher&) = delete;
  Watcher& operator=(const Watcher&) = delete;
  void OnFontChanged(const Font&) override {
    ++calls;
    if (dropped) m_Font.RemoveUser(*dropped);
  }

  int calls = 0;
  Watcher* dropped = nullptr;

 private:
  Font& m_Font;
};

TEST(Font, IsReachableByName) {
  const auto font = MakeRef<Font>();
  EXPECT_EQ(ToText(font), u"MS Sans Serif");
  EXPECT_EQ(GetProperty(*font, u"Size").Type(), VarType::Currency);
  EXPECT_EQ(ToDouble(GetProperty(*font, u"size")), 8.25);
  LetProperty(*font, u"Size", 9.75);
  LetProperty(*font, u"Name", u"Arial");
  for (const char16_t* style : {u"Bold", u"Italic", u"Underline", u"Strikethrough"}) {
    EXPECT_FALSE(GetProperty(*font, style).Boolean());
    LetProperty(*font, style, true);
  }
  EXPECT_TRUE(GetProperty(*font, u"Strikethru").Boolean());
  const FontValues expected{u"Arial", 9.75, true, true, true, true};
  EXPECT_EQ(font->Values(), expected);
}

TEST(Font, RefusesImpossibleSizes) {
  const auto font = MakeRef<Font>();
  for (const double size : {0.0, -1.0, 2049.0}) {
    EXPECT_EQ(ErrorOf([&] { LetProperty(*font, u"Size", size); }), 380) << size;
  }
}

TEST(Font, NotifiesItsUsersOncePerChange) {
  const auto font = MakeRef<Font>();
  const Watcher watcher(*font);
  font->Assign({.name = u"Arial", .size = 12, .bold = true});
  EXPECT_EQ(watcher.calls, 1);
  font->Assign(FontValues(font->Values()));
  EXPECT_EQ(watcher.calls, 1);
  LetProperty(*font, u"Bold", false);
  EXPECT_EQ(watcher.calls, 2);
}

TEST(Font, NotifiesNoUserRemovedDuringTheNotification) {
  const auto font = MakeRef<Font>();
  Watcher first(*font);
  Watcher second(*font);
  first.dropped = &second;
  font->Assign({.size = 20});
  EXPECT_EQ(first.calls, 1);
  EXPECT_EQ(second.calls, 0);
}

TEST(Picture, ReportsItsSizeAndRefusesDataOfAnother) {
  const auto picture = MakeRef<Picture>(2, 1, std::vector<OleColor>{Rgb(255, 0, 0), Rgb(0, 0, 255)});
  EXPECT_EQ(GetProperty(*picture, u"Width").Long(), 2);
  EXPECT_EQ(GetProperty(*picture, u"Height").Long(), 1);
  EXPECT_EQ(picture->Pixels()[0], 0x0000FF);
  EXPECT_EQ(ErrorOf([] { MakeRef<Picture>(2, 2, std::vector<OleColor>(3)); }), 481);
  EXPECT_EQ(ErrorOf([] { MakeRef<Picture>(-1, -1, std::vector<OleColor>(1)); }), 481);
}

class FakeWindow final : public HostWindow {
 public:
  Text Caption() const override { return m_Caption; }
  void SetCaption(const Text& caption) override { m_Caption = caption; }
  float Width() const override { return m_Width; }
  void SetWidth(float twips) override { m_Width = twips; }
  float Height() const override { return m_Height; }
  void SetHeight(float twips) override { m_Height = twips; }
  bool IsVisible() const override { return m_Visible; }
  void SetVisible(bool visible) override { m_Visible = visible; }
  void Close() override { m_Visible = false; }

 private:
  Text m_Caption;
  float m_Width = 0, m_Height = 0;
  bool m_Visible = false;
};

TEST(HostWindow, IsReachableByName) {
  const auto window = MakeRef<FakeWindow>();
  LetProperty(*window, u"Caption", u"Title");
  LetProperty(*window, u"Width", 1500);
  LetProperty(*window, u"Height", 3000);
  LetProperty(*window, u"Visible", true);
  EXPECT_EQ(GetProperty(*window, u"caption").String(), u"Title");
  EXPECT_EQ(GetProperty(*window, u"width").Single(), 1500);
  EXPECT_EQ(GetProperty(*window, u"height").Single(), 3000);
  EXPECT_TRUE(GetProperty(*window, u"visible").Boolean());
  CallMethod(*window, u"Close");
  EXPECT_FALSE(window->IsVisible());
}

}  // namespace
}  // namespace cardwright
