// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/Object.h"
#include "cardwright/platform/Color.h"
#include "cardwright/platform/Font.h"
#include "cardwright/platform/Scale.h"
#include "cardwright/platform/Widget.h"

namespace cardwright {

/// The window in which a host has placed a visual control. Any operation may fail with a numbered error.
class HostWindow : public TableObject {
 public:
  /// @name Title of the window
  /// @{
  virtual Text Caption() const = 0;
  virtual void SetCaption(const Text& caption) = 0;
  /// @}
  /// @name Outer size in twips, including the frame
  /// @{
  virtual float Width() const = 0;
  virtual void SetWidth(float twips) = 0;
  virtual float Height() const = 0;
  virtual void SetHeight(float twips) = 0;
  /// @}
  /// @name Whether the window is shown
  /// @{
  virtual bool IsVisible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  /// @}
  /// Closes the window as its user would.
  virtual void Close() = 0;

  Text TypeName() const override { return u"Form"; }

 protected:
  const MemberTable& Members() const override;
};

/// Pixels that the frame of the top-level window adds to its client area.
struct FrameSize {
  float width = 0;   ///< left and right together
  float height = 0;  ///< top and bottom together

  friend bool operator==(const FrameSize&, const FrameSize&) = default;
};

/// What a visual control (the form being filled in, the design surface) asks of the toolkit around it.
class Surface {
 public:
  virtual ~Surface() = default;

  /// Creates a hidden widget by its programmatic identifier, whatever the case. Errors: 727 where the name
  /// exists, 429 for an unknown identifier.
  virtual Ref<Widget> Add(std::u16string_view identifier, std::u16string_view name, Widget* container) = 0;
  /// Removes a widget with the widgets inside; an unknown name is ignored.
  virtual void Remove(std::u16string_view name) = 0;
  /// Null where no widget has that name.
  virtual Ref<Widget> Find(std::u16string_view name) const = 0;

  /// @name Unit of all lengths. Setting it converts the geometry of the widgets.
  /// @{
  virtual ScaleMode Scale() const = 0;
  virtual void SetScale(ScaleMode mode) = 0;
  /// @}
  /// @name Background colour
  /// @{
  virtual OleColor BackColor() const = 0;
  virtual void SetBackColor(OleColor color) = 0;
  /// @}
  /// The font that new widgets start with; shared, not copied.
  virtual Ref<Font> GetFont() const = 0;
  /// @name Size of the control, in its scale
  /// @{
  virtual float Width() const = 0;
  virtual float Height() const = 0;
  virtual void Resize(float width, float height) = 0;
  /// @}

  /// The host's window, or null while the control is in none.
  virtual Ref<HostWindow> Host() const = 0;
  /// The frame of the host's window; zero without one.
  virtual FrameSize HostFrame() const = 0;
  /// True where the host's top-level window has a raised and a sunken edge besides its frame.
  virtual bool HostHasEdges() const = 0;
  /// Number of the control's window in this process; 0 if there is none.
  virtual std::int32_t WindowHandle() const = 0;
};

}  // namespace cardwright
