// SPDX-License-Identifier: MIT
#include "cardwright/platform/Picture.h"

namespace cardwright {

namespace {}

Picture::Picture(int width, int height, std::vector<OleColor> pixels)
    : m_Width(width), m_Height(height), m_Pixels(std::move(pixels)) {
  const bool fits = width >= 0 && height >= 0 &&
                    static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height) == m_Pixels.size();
  if (!fits) Raise(ErrorNumber::InvalidPicture);
}

const MemberTable& Picture::Members() const {
  static constexpr Member kMembers[] = {
      Property<&Picture::Width>(u"Width"),
      Property<&Picture::Height>(u"Height"),
  };
  static const MemberTable table(kMembers);
  return table;
}

}  // namespace cardwright
