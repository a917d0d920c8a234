#pragma once

#include <QImage>

#include "cardwright/platform/Picture.h"

namespace cardwright::workbench {

QImage ImageOf(const Picture& picture);
/// An icon as projects hold it: 16 by 16 pixels, what is transparent being white.
Ref<Picture> IconPicture(const QImage& image);

}  // namespace cardwright::workbench
