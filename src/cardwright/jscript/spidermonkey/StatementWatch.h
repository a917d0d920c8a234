#pragma once

#include <jspubtd.h>

#include <js/RootingAPI.h>

#include <memory>

namespace cardwright {
class ScriptObserver;
}

namespace cardwright::jscript {

class Session;

/// Tells an observer of the statements that a session's scripts run, by the library's debugger. Slow: there
/// only while somebody listens.
class StatementWatch {
 public:
  StatementWatch(Session& session, ScriptObserver& observer);
  ~StatementWatch();
  StatementWatch(const StatementWatch&) = delete;
  StatementWatch& operator=(const StatementWatch&) = delete;

  /// What the debugger's hooks call.
  bool Tell(JSContext* cx, bool isReturn, JS::HandleString source, int line, int column);

 private:
  bool Start(JSContext* cx);

  Session& m_Session;
  ScriptObserver& m_Observer;
  JS::PersistentRootedObject m_Global;  // the debugger's, which must be another one
  JS::PersistentRootedObject m_Stop;    // a function of it
};

}  // namespace cardwright::jscript
