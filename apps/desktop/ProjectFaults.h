// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <vector>

#include "cardwright/orv/EmbeddedHost.h"

namespace cardwright::desktop {

/// A fault in a form project that its author should know before end users see it.
struct Fault {
  QString section;
  QString text;
};

/// The faults of a form project, in the order of the file; with a data source also its missing themes and
/// attributes.
std::vector<Fault> FindFaults(const QString& file, EmbeddedHost* data);

}  // namespace cardwright::desktop
