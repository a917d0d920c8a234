// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>

#include "automation/Printing.h"
#include "cardwright/designer/FormDesigner.h"
#include "cardwright/shared/ModuleState.h"
#include "designer/FakeDesignSurface.h"
#include "storage/TempFolder.h"

namespace cardwright {

using Lines = std::vector<std::string>;

/// A designer on a fake surface of 400 by 300 pixels that records its events.
class DesignerTest : public testing::Test {
 protected:
  DesignerTest() {
    ModuleState& module = Module();
    module.defaultBackColor = 0;
    module.defaultForeColor = 0;
    module.scriptContent = Text();
    module.scriptLanguage = Text();
    SharedHost().SetHandle(0);
    designer = FormDesigner::Create(*surface);
    Watch();
  }
  ~DesignerTest() override {
    if (surface) designer->DetachSurface();
  }

  /// Draws a control from corner to corner, in coordinates of the surface or of the frame.
  Ref<IControl> Draw(ControlTypeEnum type, int left, int top, int right, int bottom) {
    designer->SetControlTypeToAdd(type);
    Press(left, top);
    ThenMove(right, bottom);
    surface->listener->OnMouseDown(MouseButton::Left, 0, Scaled(left), Scaled(top));
    return designer->CurrentControl();
  }
  Ref<IControl> DrawInside(IControl& frame, ControlTypeEnum type, int left, int top, int right, int bottom) {
    const ScreenRect at = surface->WindowRect(&WidgetOf(frame));
    const int dx = at.left - surface->origin.x;
    const int dy = at.top - surface->origin.y;
    designer->SetControlTypeToAdd(type);
    Press(left + dx, top + dy);
    ThenMove(right + dx, bottom + dy);
    WidgetListener* listener = FakeDesignSurface::At(WidgetOf(frame)).listener;
    listener->OnMouseDown(MouseButton::Left, 0, Scaled(left), Scaled(top));
    listener->OnMouseUp(MouseButton::Left, 0, Scaled(right), Scaled(bottom));
    return designer->CurrentControl();
  }
  /// Presses the left button at a point of the surface.
  void Press(int x, int y) {
    surface->cursor = {surface->origin.x + x, surface->origin.y + y};
    surface->isButtonDown = true;
  }
  void ThenMove(int x, int y) { surface->ThenMove(surface->origin.x + x, surface->origin.y + y); }
  /// Drags a handle of the selected control from one point of the surface over others.
  void DragHandle(int index, std::vector<std::array<int, 2>> places) {
    Press(places[0][0], places[0][1]);
    for (std::size_t i = 1; i < places.size(); ++i) ThenMove(places[i][0], places[i][1]);
    PressHandle(index);
  }
  void PressHandle(int index) {
    surface->handles[static_cast<std::size_t>(index)]->listener->OnMouseDown(MouseButton::Left, 0, 3, 3);
  }

  float Scaled(int pixels) const { return PixelsToScale(static_cast<float>(pixels), surface->Scale()); }
  static Widget& WidgetOf(IControl& control) { return dynamic_cast<Widget&>(*control.BoundObject()); }
  /// "left,top,width,height"
  static std::string BoxOf(const IControl& control) {
    std::string box;
    for (float value : {control.Left(), control.Top(), control.Width(), control.Height()})
      box += (box.empty() ? "" : ",") + ToText(Variant(value)).ToUtf8();
    return box;
  }
  IControl& Find(std::u16string_view name) { return *FindControl(designer->Controls(), name); }
  /// User names in order, "Form, a, b".
  static std::string NamesOf(const std::vector<Ref<IControl>>& controls) {
    std::string names;
    for (const Ref<IControl>& control : controls)
      names += (names.empty() ? "" : ", ") + control->UserName().ToUtf8();
    return names;
  }
  std::string Names() { return NamesOf(ControlsOf(designer->Controls())); }
  bool AreHandlesShown() const {
    for (const auto& handle : surface->handles)
      if (!handle->IsVisible()) return false;
    return true;
  }
  Lines Take() { return std::exchange(events, {}); }
  Lines TakeOutlines() { return std::exchange(surface->outlines, {}); }

  InLocale locale{u"en-us"};
  TempFolder folder;
  std::unique_ptr<FakeDesignSurface> surface = std::make_unique<FakeDesignSurface>();
  Ref<FormDesigner> designer;
  Lines events;
  std::function<void(std::string_view event)> onEvent;

 private:
  void Watch() {
    designer->Connect([this](std::u16string_view event, Args args) {
      std::string line = Text(event).ToUtf8();
      for (const Variant& each : args) line += " " + Shown(each.Deref());
      events.push_back(line);
      if (onEvent) onEvent(Text(event).ToUtf8());
    });
  }
  static std::string Shown(const Variant& value) {
    if (const IControl* control = AsControl(value)) return "<" + control->UserName().ToUtf8() + ">";
    if (value.IsArray()) {
      std::string list = "[";
      for (const Variant& each : value.ArrayPtr()->Values()) list += ToText(each).ToUtf8() + ";";
      return list + "]";
    }
    return ToText(value).ToUtf8();
  }
};

}  // namespace cardwright
