// SPDX-License-Identifier: MIT
#pragma once

namespace cardwright::jscript {

class ScriptSession;

/// Fills the global object of a new session with the standard classes, the built-ins that JScript adds to
/// them, and the functions that rewritten sources call. False where the library failed.
bool DefineGlobals(ScriptSession& session);

}  // namespace cardwright::jscript
