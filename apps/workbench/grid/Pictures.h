// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include "cardwright/platform/Picture.h"

namespace cardwright::workbench {

QImage ImageOf(const Picture& picture);
/// An icon as projects store it: 16 by 16 pixels, with white for transparent pixels.
Ref<Picture> IconPicture(const QImage& image);

}  // namespace cardwright::workbench
