// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "cardwright/model/Control.h"

namespace cardwright {

/// One copied control. Each designer has a clipboard of its own; the system's clipboard is not used. Objects
/// of the control (font, items) are shared with it, not copied.
class DesignClipboard {
 public:
  bool IsEmpty() const noexcept { return m_Type == ControlTypeEnum::ctDefault; }
  /// Kind of the copied control; ctDefault where nothing was copied.
  ControlTypeEnum Type() const noexcept { return m_Type; }
  float Width() const noexcept { return m_Width; }
  float Height() const noexcept { return m_Height; }

  /// After an error the clipboard is unchanged.
  void Copy(const IControl& control, const Widget& widget);
  /// Sets colours, font and width of a new widget. Failures are ignored.
  void ApplyAppearance(Widget& widget) const;
  /// Sets the values of the property rows. Items are copied into the collection that the control has.
  void ApplyProperties(Control& control) const;

 private:
  void ApplyProperty(Control& control, std::int32_t row) const;

  ControlTypeEnum m_Type = ControlTypeEnum::ctDefault;
  float m_Width = 0;
  float m_Height = 0;
  Ref<Font> m_Font;
  OleColor m_BackColor = 0;
  OleColor m_ForeColor = 0;
  std::vector<Variant> m_Properties;
};

}  // namespace cardwright
