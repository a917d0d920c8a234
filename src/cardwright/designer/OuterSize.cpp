// SPDX-License-Identifier: MIT
#include "cardwright/designer/OuterSize.h"

#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

float Converted(float value, ScaleMode from, ScaleMode to) {
  const bool fromTwips = from == ScaleMode::Twips;
  const bool toTwips = to == ScaleMode::Twips;
  if (fromTwips == toTwips) return value;
  return toTwips ? ScaleToTwips(value, from) : ScaleToPixels(value, from);
}

}  // namespace

FormExtent OuterSize::Of(const DesignSurface& surface) {
  const ScaleMode scale = Module().formScaleMode;
  const FrameSize frame = surface.HostFrame();
  return {Converted(surface.Width(), surface.Scale(), scale) + PixelsToScale(frame.width, scale),
          Converted(surface.Height(), surface.Scale(), scale) + PixelsToScale(frame.height, scale)};
}

void OuterSize::Set(const FormExtent& size, DesignSurface& surface) {
  const ScaleMode scale = Module().formScaleMode;
  const FrameSize frame = surface.HostFrame();
  const auto inner = [&](float outer, float border) {
    return Converted(outer - PixelsToScale(border, scale), scale, surface.Scale());
  };
  const bool isOtherWidth = size.width != m_Stored.width;
  const bool isOtherHeight = size.height != m_Stored.height;
  if (!isOtherWidth && !isOtherHeight) return;
  m_Stored = size;
  surface.Resize(isOtherWidth ? inner(size.width, frame.width) : surface.Width(),
                 isOtherHeight ? inner(size.height, frame.height) : surface.Height());
}

}  // namespace cardwright
