// SPDX-License-Identifier: MIT
#pragma once

#include "cardwright/automation/MemberTable.h"
#include "cardwright/platform/Color.h"
#include "cardwright/platform/Font.h"
#include "cardwright/platform/Scale.h"
#include "cardwright/platform/WidgetListener.h"

namespace cardwright {

/// Where a z-order command moves a widget.
enum class StackPosition : std::int16_t { Front = 0, Back = 1 };

/// A run-time widget on a form surface: everything that the form model asks of one. Geometry is in the
/// surface's scale, relative to the container. A widget outlives its removal from the surface as an object
/// whose operations fail with error 91.
class Widget : public TableObject {
 public:
  /// Unique name on the surface.
  virtual Text Name() const = 0;

  /// @name Geometry, in the surface's scale, from the top left corner of the container
  /// @{
  virtual float Left() const = 0;
  virtual float Top() const = 0;
  virtual float Width() const = 0;
  virtual float Height() const = 0;
  virtual void Move(float left, float top, float width, float height) = 0;
  void SetLeft(float left) { Move(left, Top(), Width(), Height()); }
  void SetTop(float top) { Move(Left(), top, Width(), Height()); }
  void SetWidth(float width) { Move(Left(), Top(), width, Height()); }
  void SetHeight(float height) { Move(Left(), Top(), Width(), height); }
  /// @}

  /// @name Colours of background and text
  /// @{
  virtual OleColor BackColor() const = 0;
  virtual void SetBackColor(OleColor color) = 0;
  virtual OleColor ForeColor() const = 0;
  virtual void SetForeColor(OleColor color) = 0;
  /// @}
  /// @name The font object, which is shared and not copied
  /// @{
  virtual Ref<Font> GetFont() const = 0;
  virtual void SetFont(Ref<Font> font) = 0;
  /// @}

  /// @name The widget's caption or text, whichever it has
  /// @{
  virtual Text DisplayText() const = 0;
  virtual void SetDisplayText(const Text& text) = 0;
  /// @}

  /// @name State. Visible and enabled are the widget's own, whatever its container is.
  /// @{
  virtual bool IsVisible() const = 0;
  virtual void SetVisible(bool visible) = 0;
  virtual bool IsEnabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  /// A text for the program, which the widget does not show.
  virtual Text Tag() const = 0;
  virtual void SetTag(const Text& tag) = 0;
  /// @}

  /// The widget that contains this one; null where it is directly on the surface.
  virtual Ref<Widget> Container() const = 0;
  /// The surface's visual control, as scripts see it, or null.
  virtual Ref<Object> Parent() const = 0;
  /// Brings the widget to the front of its container or sends it to the back.
  virtual void SetZOrder(StackPosition position) = 0;
  /// Gives the widget the keyboard focus; a widget that cannot take it ignores this.
  virtual void SetFocus() = 0;
  /// Repaints the widget.
  virtual void Refresh() = 0;
  /// Opens the menu that the widget has of its own and returns; false where it has none. Not by name: scripts
  /// of forms ask their form for it.
  virtual bool OpenMenu() = 0;

  /// One listener at most; null takes it away.
  virtual void SetListener(WidgetListener* listener) = 0;

 protected:
  const MemberTable& Members() const override = 0;
};

/// Label, frame and command button: a caption and nothing more.
class CaptionWidget : public Widget {
 protected:
  const MemberTable& Members() const override;
};

/// Check box (state 0, 1, 2 for greyed) and option button (0 or 1, a Boolean to scripts).
class StateWidget : public CaptionWidget {
 public:
  /// The state: 0, 1, or 2 for a greyed check box.
  virtual int State() const = 0;
  /// Fires the widget's click where the state changes, as setting `Value` does on the platform.
  virtual void SetState(int state) = 0;
  /// Whether it is an option button.
  virtual bool IsOption() const = 0;

 protected:
  const MemberTable& Members() const override;
};

/// Text box and multi-line text box.
class TextWidget : public Widget {
 public:
  /// @name Whether the user cannot change the text
  /// @{
  virtual bool IsLocked() const = 0;
  virtual void SetLocked(bool locked) = 0;
  /// @}
  /// Greatest number of characters that can be typed; 0 for no limit.
  virtual int MaxLength() const = 0;
  virtual void SetMaxLength(int length) = 0;
  /// @name Selection, in UTF-16 code units from 0. Positions after the text are moved to its end; error
  /// 380 for a negative number.
  /// @{
  virtual int SelStart() const = 0;
  virtual void SetSelStart(int start) = 0;
  virtual int SelLength() const = 0;
  virtual void SetSelLength(int length) = 0;
  virtual Text SelText() const = 0;
  /// Replaces the selection; with none it inserts at the caret.
  virtual void SetSelText(const Text& text) = 0;
  /// @}

 protected:
  const MemberTable& Members() const override;
};

/// Picture box that is drawn on, in a scale of its own.
class PictureWidget : public Widget {
 public:
  /// The unit of drawing.
  virtual void SetScale(ScaleMode mode) = 0;
  /// Size of the drawing area in the box's scale.
  virtual float ScaleWidth() const = 0;
  virtual float ScaleHeight() const = 0;
  /// With it what is drawn stays; without it a repaint loses it.
  virtual void SetAutoRedraw(bool keep) = 0;
  /// Width of drawn lines in pixels.
  virtual void SetDrawWidth(int pixels) = 0;
  virtual int DrawWidth() const = 0;
  /// Clears to the back colour.
  virtual void Cls() = 0;
  /// An unfilled box between two corners in the box's scale.
  virtual void DrawBox(float left, float top, float right, float bottom, OleColor color) = 0;

 protected:
  const MemberTable& Members() const override;
};

/// Drop-down list with an edit field, or without one where it is not editable.
class ComboWidget : public TextWidget {
 public:
  /// @name Whether the box has an edit field
  /// @{
  virtual bool IsEditable() const = 0;
  virtual void SetEditable(bool editable) = 0;
  /// @}
  /// The number of entries.
  virtual int ListCount() const = 0;
  /// Error 5 outside 0 to ListCount - 1.
  virtual Text ListText(int index) const = 0;
  /// Shows another text for an entry, which stays selected where it was.
  virtual void SetListText(int index, const Text& text) = 0;
  /// A number kept with an entry, 0 at first.
  virtual std::int32_t ItemData(int index) const = 0;
  virtual void SetItemData(int index, std::int32_t data) = 0;
  /// -1 for no selection. Fires the click where the index changes; error 380 outside the list.
  virtual int ListIndex() const = 0;
  virtual void SetListIndex(int index) = 0;
  /// Adds at the end, or before position `index` (0-based).
  virtual void AddItem(const Text& text, std::optional<int> index = {}) = 0;
  /// Removes an entry; error 5 outside 0 to ListCount - 1.
  virtual void RemoveItem(int index) = 0;
  /// Removes all entries.
  virtual void Clear() = 0;

 protected:
  const MemberTable& Members() const override;
};

/// List view with one column and optional check boxes. Rows count from 1.
class ListViewWidget : public Widget {
 public:
  /// @name Whether each row has a check box
  /// @{
  virtual bool HasCheckBoxes() const = 0;
  virtual void SetCheckBoxes(bool shown) = 0;
  /// @}
  /// @name Rows, from 1 to RowCount
  /// @{
  virtual int RowCount() const = 0;
  virtual Text RowText(int row) const = 0;
  virtual void SetRowText(int row, const Text& text) = 0;
  virtual bool IsRowChecked(int row) const = 0;
  virtual void SetRowChecked(int row, bool checked) = 0;
  virtual void AddRow(const Text& text) = 0;
  virtual void RemoveRow(int row) = 0;
  virtual void Clear() = 0;
  /// @}
  /// Row that is selected; 0 for none.
  virtual int SelectedRow() const = 0;
  virtual void SetSelectedRow(int row) = 0;
  /// @name Width of the column, in the surface's scale
  /// @{
  virtual float ColumnWidth() const = 0;
  virtual void SetColumnWidth(float width) = 0;
  /// @}

 protected:
  const MemberTable& Members() const override;
};

}  // namespace cardwright
