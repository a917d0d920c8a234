#pragma once

#include "cardwright/qt/widgets/WidgetCore.h"

namespace cardwright::qt {

/// The common operations of a widget of any kind, by way of WidgetCore. `Base` is the platform's interface of
/// the kind.
template <class Base>
class QtWidget : public Base, public WidgetCore {
 public:
  Text TypeName() const override { return Kind().typeName; }
  Widget& Self() final { return *this; }

  Text Name() const override { return Live().m_Place.name; }
  float Left() const override { return Live().m_State.left; }
  float Top() const override { return Live().m_State.top; }
  float Width() const override { return Live().m_State.width; }
  float Height() const override { return Live().m_State.height; }
  void Move(float left, float top, float width, float height) override { Place(left, top, width, height); }

  OleColor BackColor() const override { return Live().m_State.backColor; }
  void SetBackColor(OleColor color) override { SetBack(color); }
  OleColor ForeColor() const override { return Live().m_State.foreColor; }
  void SetForeColor(OleColor color) override { SetFore(color); }
  Ref<Font> GetFont() const override { return Live().m_Font; }
  void SetFont(Ref<Font> font) override { ShareFont(std::move(font)); }

  bool IsVisible() const override { return Live().m_State.isVisible; }
  void SetVisible(bool visible) override { SetShown(visible); }
  bool IsEnabled() const override { return !Live().Native()->testAttribute(Qt::WA_ForceDisabled); }
  void SetEnabled(bool enabled) override { SetSwitchedOn(enabled); }
  Text Tag() const override { return Live().m_State.tag; }
  void SetTag(const Text& tag) override {
    RequireAlive();
    m_State.tag = tag;
  }

  Ref<Widget> Container() const override { return Live().m_Place.container; }
  Ref<Object> Parent() const override { return Control(); }
  void SetZOrder(StackPosition position) override { Restack(position); }
  void SetFocus() override { Live().Native()->setFocus(Qt::OtherFocusReason); }
  void Refresh() override { Live().Native()->repaint(); }
  bool OpenMenu() override { return OpenOwnMenu(); }
  void SetListener(WidgetListener* listener) override { m_Listener = listener; }

 protected:
  using WidgetCore::WidgetCore;

 private:
  const QtWidget& Live() const {
    RequireAlive();
    return *this;
  }
};

}  // namespace cardwright::qt
