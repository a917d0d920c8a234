#pragma once

#include <QString>
#include <vector>

#include "cardwright/orv/EmbeddedHost.h"

namespace cardwright::desktop {

/// Something in a form project that a person would want to know before an end user meets it.
struct Fault {
  QString section;
  QString text;
};

/// The faults of a form project, in the order of the file; with a data source also themes and attributes that
/// it lacks.
std::vector<Fault> FindFaults(const QString& file, EmbeddedHost* data);

}  // namespace cardwright::desktop
