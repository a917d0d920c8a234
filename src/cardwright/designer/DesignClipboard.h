#pragma once

#include <vector>

#include "cardwright/model/Control.h"

namespace cardwright {

/// One copied control. The slot belongs to one designer; nothing of it reaches the system's clipboard. What
/// is an object in the control (font, items) stays shared with it.
class DesignClipboard {
 public:
  bool IsEmpty() const noexcept { return m_Type == ControlTypeEnum::ctDefault; }
  /// Kind of the copied control; ctDefault where nothing was copied.
  ControlTypeEnum Type() const noexcept { return m_Type; }
  float Width() const noexcept { return m_Width; }
  float Height() const noexcept { return m_Height; }

  /// Errors leave the slot as it was.
  void Copy(const IControl& control, const Widget& widget);
  /// Colours, font and width, for a widget that was just made. What fails is passed over.
  void PutAppearance(Widget& widget) const;
  /// The values of the property rows: those of a collection are copied into the one that the control has.
  void PutProperties(Control& control) const;

 private:
  void PutProperty(Control& control, std::int32_t row) const;

  ControlTypeEnum m_Type = ControlTypeEnum::ctDefault;
  float m_Width = 0;
  float m_Height = 0;
  Ref<Font> m_Font;
  OleColor m_BackColor = 0;
  OleColor m_ForeColor = 0;
  std::vector<Variant> m_Properties;
};

}  // namespace cardwright
