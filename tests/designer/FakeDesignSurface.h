// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "cardwright/platform/DesignSurface.h"
#include "platform/FakeWidgets.h"

namespace cardwright {

/// What only a test does with a widget.
class OnFakeSurface {
 public:
  virtual ~OnFakeSurface() = default;
  virtual void Reparent(Ref<Widget> container) = 0;
  bool isAlive = true;
  WidgetListener* listener = nullptr;

 protected:
  void RequireAlive() const {
    if (!isAlive) Raise(ErrorNumber::ObjectNotSet);
  }
};

/// A widget on the fake surface: its operations fail with error 91 once it has been removed, and no size is
/// negative.
template <class Fake>
class Placed final : public Fake, public OnFakeSurface {
 public:
  template <class... Args>
  Placed(std::u16string_view type, std::u16string_view name, Args&&... args)
      : Fake(std::forward<Args>(args)...), m_Type(type), m_Name(name) {
    Fake::Move(0, 0, 0, m_Type == u"ComboBox" || m_Type == u"ThemeSelector" ? 21 : 0);
    this->SetBackColor(ToOleColor(SystemColor::Window));
  }

  Text TypeName() const override { return m_Type; }
  Text Name() const override {
    RequireAlive();
    return m_Name;
  }
  float Left() const override {
    RequireAlive();
    return Fake::Left();
  }
  float Top() const override {
    RequireAlive();
    return Fake::Top();
  }
  float Width() const override {
    RequireAlive();
    return Fake::Width();
  }
  float Height() const override {
    RequireAlive();
    return Fake::Height();
  }
  void Move(float left, float top, float width, float height) override {
    RequireAlive();
    if (width < 0 || height < 0) Raise(ErrorNumber::InvalidPropertyValue);
    Fake::Move(left, top, width, height);
  }
  Ref<Widget> Container() const override {
    RequireAlive();
    return Fake::Container();
  }
  void SetVisible(bool visible) override {
    RequireAlive();
    Fake::SetVisible(visible);
  }
  void SetListener(WidgetListener* wanted) override { listener = wanted; }
  void Reparent(Ref<Widget> wanted) override { this->container = std::move(wanted); }

 private:
  Text m_Type;
  Text m_Name;
};

/// A picture box that remembers how it was painted.
class FakePicture : public FakeWidget<PictureWidget> {
 public:
  void SetScale(ScaleMode) override {}
  float ScaleWidth() const override { return Width(); }
  float ScaleHeight() const override { return Height(); }
  void SetAutoRedraw(bool) override {}
  void SetDrawWidth(int) override {}
  int DrawWidth() const override { return 1; }
  void Cls() override { box.clear(); }
  void DrawBox(float, float, float right, float bottom, OleColor color) override {
    box = std::to_string(right) + "," + std::to_string(bottom) + ":" + std::to_string(color);
  }
  std::string box;
};

class FakeHost final : public HostWindow {
 public:
  Text Caption() const override { return caption; }
  void SetCaption(const Text& text) override { caption = text; }
  float Width() const override { return 6000; }
  void SetWidth(float) override {}
  float Height() const override { return 4500; }
  void SetHeight(float) override {}
  bool IsVisible() const override { return true; }
  void SetVisible(bool) override {}
  void Close() override {}
  Text caption = u"Designer";
};

/// A design surface of plain fields. A list of steps moves its mouse: one for each pass of the loop that
/// polls it.
class FakeDesignSurface final : public DesignSurface {
 public:
  FakeDesignSurface();

  Ref<Widget> Add(std::u16string_view identifier, std::u16string_view name, Widget* container) override;
  void Remove(std::u16string_view name) override;
  Ref<Widget> Find(std::u16string_view name) const override;
  ScaleMode Scale() const override { return m_Scale; }
  void SetScale(ScaleMode mode) override;
  OleColor BackColor() const override { return backColor; }
  void SetBackColor(OleColor color) override { backColor = color; }
  Ref<Font> GetFont() const override { return m_Font; }
  float Width() const override { return m_Width; }
  float Height() const override { return m_Height; }
  void Resize(float width, float height) override;
  Ref<HostWindow> Host() const override { return host; }
  FrameSize HostFrame() const override { return frame; }
  bool HostHasEdges() const override { return false; }
  std::int32_t WindowHandle() const override { return 77; }

  void SetListener(WidgetListener* wanted) override { listener = wanted; }
  OleColor ForeColor() const override { return foreColor; }
  void SetForeColor(OleColor color) override { foreColor = color; }
  PointerShape Pointer() const override { return pointer; }
  void SetPointer(PointerShape shape) override { pointer = shape; }
  void SetScreenPointer(PointerShape shape) override;
  void Cls() override { painted.push_back("cls"); }
  void PaintPoints(const GridPoints& points) override;
  void Repaint() override {}
  void LockRedraw(bool lock) override { lockDepth += lock ? 1 : -1; }
  PictureWidget& Handle(int index) override { return *handles[static_cast<std::size_t>(index)]; }
  void PutHandlesInto(Widget* container) override;
  PictureWidget& FocusHolder() override { return *focusHolder; }
  void SetFocus() override {}
  ScreenPoint CursorPosition() const override { return cursor; }
  bool IsLeftButtonDown() const override { return isButtonDown; }
  int CursorHeight() const override { return 32; }
  void ReleaseMouse() override { ++releases; }
  ScreenRect WindowRect(const Widget* widget) const override;
  void Yield() override;
  void ShowOutline(const std::optional<ScreenRect>& shown, int penWidth) override;
  void ShowTooltip(const Text& text, ScreenPoint place) override;
  void HideTooltip() override { tooltip.reset(); }
  Text ShowPopupMenu(std::span<const Ref<MenuItem>> items) override;
  void NotifyPropertyChanged(std::u16string_view name) override { notified.emplace_back(name); }

  /// Adds a pass of the polling loop. After the last one the button is released.
  void ThenMove(int x, int y) {
    turns.push_back([this, x, y] { cursor = {x, y}; });
  }
  void Then(std::function<void()> step) { turns.push_back(std::move(step)); }
  static OnFakeSurface& At(Widget& widget) { return dynamic_cast<OnFakeSurface&>(widget); }
  int WidgetCount() const { return static_cast<int>(m_Widgets.size()); }

  WidgetListener* listener = nullptr;
  OleColor backColor = 0, foreColor = 0;
  PointerShape pointer = PointerShape::Default;
  std::vector<int> screenPointers;
  std::vector<std::string> painted;
  int lockDepth = 0;
  std::vector<Ref<Placed<FakePicture>>> handles;
  Ref<Placed<FakePicture>> focusHolder;
  Ref<FakeHost> host = MakeRef<FakeHost>();
  FrameSize frame;
  ScreenPoint origin{1000, 500};
  ScreenPoint cursor;
  bool isButtonDown = false;
  int releases = 0;
  std::deque<std::function<void()>> turns;
  std::optional<ScreenRect> outline;
  std::vector<std::string> outlines;  ///< all that were shown, "l,t,r,b" inside the surface
  std::optional<std::string> tooltip;
  std::vector<std::string> tooltips;
  std::function<Text(std::span<const Ref<MenuItem>>)> onMenu;
  std::vector<std::string> menus;  ///< as shown: "name=caption", "!" before a disabled one, "-" a separator
  std::vector<Text> notified;
  std::set<std::u16string> reserved;  ///< names for which Add fails

 private:
  std::map<std::u16string, Ref<Widget>> m_Widgets;
  Ref<Font> m_Font = MakeRef<Font>();
  ScaleMode m_Scale = ScaleMode::Pixels;
  float m_Width = 400;
  float m_Height = 300;
};

}  // namespace cardwright
