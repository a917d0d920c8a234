// SPDX-License-Identifier: MIT
#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>

#include <memory>

namespace cardwright {
class ScriptObserver;
}

namespace cardwright::jscript {

class ScriptSession;

/// Reports the statements that a session's scripts run to an observer, by the library's debugger. Tracing is
/// slow, so a tracer exists only while there is an observer.
class StatementTracer {
 public:
  StatementTracer(ScriptSession& session, ScriptObserver& observer);
  ~StatementTracer();
  StatementTracer(const StatementTracer&) = delete;
  StatementTracer& operator=(const StatementTracer&) = delete;

  /// Called by the debugger's hooks.
  bool Report(JSContext* cx, bool isReturn, JS::HandleString source, int line, int column);

 private:
  bool Start(JSContext* cx);

  ScriptSession& m_Session;
  ScriptObserver& m_Observer;
  JS::PersistentRootedObject m_Global;  // of the debugger, which needs a compartment of its own
  JS::PersistentRootedObject m_Stop;    // a function that removes the hooks
};

}  // namespace cardwright::jscript
