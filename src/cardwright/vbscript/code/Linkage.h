#pragma once

#include <map>

#include "cardwright/vbscript/code/Module.h"

namespace cardwright::vbscript {

/// Variables that executed code added to the scope of a running procedure.
using ScopeVariables = std::map<NameId, Variant>;

/// What the compiler has to know of the machine that its code is for.
class Linkage {
 public:
  Names names;
  /// What a name stands for in a module's code; null for nothing yet.
  virtual Symbol* Lookup(Module& module, NameId name) = 0;
  /// Whether the code is to report its statements.
  virtual bool IsObserved() const noexcept = 0;
  /// Whether a script runs, which then made the code itself.
  virtual bool IsRunning() const noexcept = 0;

 protected:
  ~Linkage() = default;
};

}  // namespace cardwright::vbscript
