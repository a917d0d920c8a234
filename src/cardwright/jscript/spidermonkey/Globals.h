#pragma once

namespace cardwright::jscript {

class Session;

/// Fills the global object of a new session: the standard classes, what the language has beyond them, and
/// what rewritten sources call. False where the library failed.
bool DefineGlobals(Session& session);

}  // namespace cardwright::jscript
