// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <unordered_map>
#include <vector>

#include "cardwright/platform/Surface.h"
#include "cardwright/qt/surface/QtHostWindow.h"
#include "cardwright/qt/widgets/SurfaceState.h"

class QWidget;

namespace cardwright::qt {

struct WidgetPlace;

/// The surface of a visual control on a toolkit widget, its canvas, which contains the run-time widgets. They
/// take the keyboard focus in the order of their creation. Canvas and surface may go in any order; once the
/// canvas is gone, operations raise error 91.
class QtSurface final : public QObject, public Surface, private Font::User {
 public:
  explicit QtSurface(QWidget& canvas);
  ~QtSurface() override;

  Ref<Widget> Add(std::u16string_view identifier, std::u16string_view name, Widget* container) override;
  /// Removes what the widget contains as well. An unknown name is ignored.
  void Remove(std::u16string_view name) override;
  Ref<Widget> Find(std::u16string_view name) const override;
  /// A widget of the surface's own, which Find does not give. The surface keeps it to its end.
  Ref<Widget> AddOwn(std::u16string_view identifier, std::u16string_view name);
  /// The same of one that is made already, for a place of this surface. Every such widget is a WidgetCore.
  void KeepOwn(Ref<Widget> widget) { m_Own.push_back(std::move(widget)); }

  ScaleMode Scale() const override { return m_Scale; }
  void SetScale(ScaleMode mode) override;
  OleColor BackColor() const override { return m_BackColor; }
  void SetBackColor(OleColor color) override;
  Ref<Font> GetFont() const override { return m_Font; }
  float Width() const override;
  float Height() const override;
  void Resize(float width, float height) override;

  /// The canvas's top-level window; null where the canvas itself is one.
  Ref<HostWindow> Host() const override;
  FrameSize HostFrame() const override;
  bool HostHasEdges() const override { return false; }
  std::int32_t WindowHandle() const override;

  /// The object that scripts know as the parent of the widgets. Not owned: it has to outlive the surface.
  void SetControl(Object* control) { m_State->control = control; }
  /// The canvas; null once it is gone.
  QWidget* Native() const noexcept;
  /// Error 91 where it is gone.
  QWidget& Canvas() const;
  SurfaceState& State() const noexcept { return *m_State; }
  /// Where a widget inside that container goes; null for the surface itself. Error 5 for a widget that is no
  /// container.
  WidgetPlace PlaceIn(Widget* container, std::u16string_view name) const;

 private:
  struct NoCaseHash {
    using is_transparent = void;
    std::size_t operator()(std::u16string_view name) const noexcept { return HashNoCase(name); }
  };
  struct NoCaseEqual {
    using is_transparent = void;
    bool operator()(std::u16string_view a, std::u16string_view b) const noexcept {
      return EqualsNoCase(a, b);
    }
  };
  using Widgets = std::unordered_map<Text, Ref<Widget>, NoCaseHash, NoCaseEqual>;

  bool eventFilter(QObject* target, QEvent* event) override;
  void OnFontChanged(const Font& font) override;

  void RemoveContents(const Widget& container);
  void ApplyBackColor();
  void ApplyFont();

  QPointer<QWidget> m_Canvas;
  Ref<SurfaceState> m_State;
  Ref<Font> m_Font;
  Widgets m_Widgets;
  std::vector<Ref<Widget>> m_Own;
  ScaleMode m_Scale = ScaleMode::Pixels;
  OleColor m_BackColor = ToOleColor(SystemColor::ButtonFace);
  bool m_HasOwnBackground = false;
  bool m_IsApplying = false;
  // The size as it was asked for, which the canvas holds in whole pixels.
  float m_Width = 0;
  float m_Height = 0;
  mutable Ref<QtHostWindow> m_Host;
};

}  // namespace cardwright::qt
