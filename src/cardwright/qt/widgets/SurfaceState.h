// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QPointer>
#include <unordered_map>
#include <vector>

#include "cardwright/automation/Ref.h"
#include "cardwright/platform/Surface.h"
#include "cardwright/qt/values/Fonts.h"

class QButtonGroup;
class QMouseEvent;
class QWidget;

namespace cardwright::qt {

class WidgetCore;

/// What the widgets of one surface share. It lives as long as the last of them, while the surface and its
/// toolkit widgets may be gone long before.
class SurfaceState final : public RefCounted {
 public:
  explicit SurfaceState(const Surface& owner) : surface(&owner) {}

  const Surface* surface;  ///< null once the surface is gone
  Object* control =
      nullptr;  ///< the widgets' parent, as scripts know it; null or alive as long as the surface
  FontCache fonts;
  WidgetCore* focused = nullptr;  ///< the widget whose listener had the last GotFocus
  /// The widgets are being designed: they take the focus and fire mouse events, but do nothing else, and show
  /// the pointer of the surface.
  bool isDesigned = false;
  QPoint cursor;  ///< on the screen, where a button was pressed, or the mouse went with it or let it go
  void NoteCursor(const QMouseEvent& event);

  /// Marks that a listener runs. A widget that it removes may be the one whose event is being handled, so the
  /// toolkit's widget stays, hidden, until the outermost listener has returned.
  class Handling {
   public:
    explicit Handling(SurfaceState& state) : m_State(&state) { ++state.m_Depth; }
    ~Handling();
    Handling(const Handling&) = delete;
    Handling& operator=(const Handling&) = delete;

   private:
    Ref<SurfaceState> m_State;
  };

  /// The group of the option buttons directly in `container`. The toolkit's own grouping would
  /// reach into the frames inside it.
  QButtonGroup& OptionsIn(QWidget& container);

  /// Deletes now or when the handlers are through.
  void Delete(QWidget* widget);

  /// Flushes the widget in the next turn of the event loop.
  void FlushLater(Ref<Widget> widget);
  /// For a surface that ends.
  void CancelFlushes() { m_ToFlush.clear(); }

 private:
  void FlushAll();

  int m_Depth = 0;
  std::vector<QPointer<QWidget>> m_Removed;
  std::unordered_map<QWidget*, QPointer<QButtonGroup>> m_Options;
  std::vector<Ref<Widget>> m_ToFlush;
};

}  // namespace cardwright::qt
