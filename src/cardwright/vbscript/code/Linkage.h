// SPDX-License-Identifier: MIT
#pragma once

#include <map>

#include "cardwright/vbscript/code/Module.h"

namespace cardwright::vbscript {

/// Variables that executed code added to the scope of a running procedure.
using ScopeVariables = std::map<NameId, Variant>;

/// What the compiler needs to know about the machine that will run its code.
class Linkage {
 public:
  Names names;
  /// The binding of a name in a module's code; null where it is unbound.
  virtual Symbol* Lookup(Module& module, NameId name) = 0;
  /// Whether the code should report its statements.
  virtual bool IsObserved() const noexcept = 0;
  /// Whether a script is running: then it has generated the code.
  virtual bool IsRunning() const noexcept = 0;

 protected:
  ~Linkage() = default;
};

}  // namespace cardwright::vbscript
