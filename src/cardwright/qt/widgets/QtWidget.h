// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/qt/widgets/WidgetCore.h"

namespace cardwright::qt {

/// The common operations of a widget of any kind, by way of WidgetCore. `Interface` is the platform's
/// interface of the kind.
template <class Interface>
class QtWidget : public Interface, public WidgetCore {
 public:
  Text TypeName() const override { return Kind().typeName; }
  Widget& Self() final { return *this; }

  Text Name() const override { return Live(m_Place).name; }
  float Left() const override { return Live(m_State).left; }
  float Top() const override { return Live(m_State).top; }
  float Width() const override { return Live(m_State).width; }
  float Height() const override { return Live(m_State).height; }
  void Move(float left, float top, float width, float height) override {
    WidgetCore::Move(left, top, width, height);
  }

  OleColor BackColor() const override { return Live(m_State).backColor; }
  void SetBackColor(OleColor color) override { WidgetCore::SetBackColor(color); }
  OleColor ForeColor() const override { return Live(m_State).foreColor; }
  void SetForeColor(OleColor color) override { WidgetCore::SetForeColor(color); }
  Ref<Font> GetFont() const override { return Live(m_Font); }
  void SetFont(Ref<Font> font) override { WidgetCore::SetFont(std::move(font)); }

  bool IsVisible() const override { return Live(m_State).isVisible; }
  void SetVisible(bool visible) override { WidgetCore::SetVisible(visible); }
  bool IsEnabled() const override { return WidgetCore::IsEnabled(); }
  void SetEnabled(bool enabled) override { WidgetCore::SetEnabled(enabled); }
  Text Tag() const override { return Live(m_State).tag; }
  void SetTag(const Text& tag) override { Live(m_State).tag = tag; }

  Ref<Widget> Container() const override { return Live(m_Place).container; }
  Ref<Object> Parent() const override { return Live(m_Place).state->control; }
  void SetZOrder(StackPosition position) override { WidgetCore::SetZOrder(position); }
  void SetFocus() override { WidgetCore::SetFocus(); }
  void Refresh() override { WidgetCore::Refresh(); }
  bool OpenMenu() override { return WidgetCore::OpenMenu(); }
  void SetListener(WidgetListener* listener) override { m_Listener = listener; }

 protected:
  using WidgetCore::WidgetCore;
};

}  // namespace cardwright::qt
