// SPDX-License-Identifier: MIT
#include "cardwright/platform/Surface.h"

namespace cardwright {

const MemberTable& HostWindow::Members() const {
  static constexpr Member kMembers[] = {
      Property<&HostWindow::Caption, &HostWindow::SetCaption>(u"Caption"),
      Property<&HostWindow::Width, &HostWindow::SetWidth>(u"Width"),
      Property<&HostWindow::Height, &HostWindow::SetHeight>(u"Height"),
      Property<&HostWindow::IsVisible, &HostWindow::SetVisible>(u"Visible"),
      Method<&HostWindow::Close>(u"Close"),
  };
  static const MemberTable table(kMembers, u"Caption");
  return table;
}

}  // namespace cardwright
