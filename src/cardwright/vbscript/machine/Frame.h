// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "cardwright/automation/Variant.h"
#include "cardwright/vbscript/code/Linkage.h"
#include "cardwright/vbscript/code/Procedure.h"

namespace cardwright::vbscript {

class Instance;

/// A procedure that is running, or has called the one that is.
///
/// Its registers are a window of the register stack. The windows of caller and callee overlap: the caller
/// puts the arguments into the last of its temporaries in use, and the callee's window starts at the first of
/// them. So the arguments become the callee's parameters without being moved.
///
///     caller:  | variables … | temporaries | argument 0  | argument 1  |
///     callee:                              | parameter 0 | parameter 1 | variables … | temporaries |
///                                          ^ registers                                             ^ top
///
/// The caller wants the result in the register of the first argument, or in that of the object whose member
/// it called. `result` points there.
///
/// A frame holds a count of its procedure and its object, since the script may redefine the one and release
/// the other while they are in use.
struct Frame {
  const Procedure* procedure = nullptr;
  /// The instruction to continue at when a call returns. Of the topmost frame the interpreter has its own.
  const Instruction* pc = nullptr;
  Variant* registers = nullptr;
  Variant* top = nullptr;     ///< where the register stack is free
  Variant* result = nullptr;  ///< where the caller wants the result; null for nowhere
  Instance* me = nullptr;     ///< the object whose method it is
  /// Variables that code executed in the procedure's scope has added; the frame owns them.
  ScopeVariables* scope = nullptr;
  std::uint32_t block = 0;  ///< of the register stack
  bool resumeNext = false;  ///< On Error Resume Next is in effect
};

}  // namespace cardwright::vbscript
