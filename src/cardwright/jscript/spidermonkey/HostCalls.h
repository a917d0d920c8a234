// SPDX-License-Identifier: MIT
#pragma once

#include <js/friend/StackLimits.h>

#include <array>
#include <new>
#include <span>
#include <vector>

#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/ScriptErrors.h"
#include "cardwright/jscript/spidermonkey/ScriptSession.h"

namespace cardwright::jscript {

/// Runs a step that the script asked of the host. An error becomes a script exception, because no C++
/// exception may unwind the library's frames. Returns false, as the library expects it, where an exception is
/// pending or the script has to stop.
template <class Step>
bool CallHost(ScriptSession& session, Step&& step) {
  const js::AutoCheckRecursionLimit recursion(session.Context());
  if (!recursion.check(session.Context())) return false;
  bool isDone = false;
  try {
    isDone = step();
  } catch (const Interrupted&) {
    return false;
  } catch (const Error& error) {
    if (!session.IsStopping()) ThrowError(session, error);
  } catch (const std::bad_alloc&) {
    ThrowNumber(session.Context(), kOutOfMemory);
  } catch (...) {
    session.SetPendingError(std::current_exception());
    return false;
  }
  // The host may have been called to stop the script.
  if (!session.IsStopping()) return isDone;
  JS_ClearPendingException(session.Context());
  return false;
}

/// The arguments of a call. A few fit without an allocation.
class ArgumentList {
 public:
  explicit ArgumentList(std::size_t count) : m_Count(count) {
    if (count > m_Few.size()) m_Many.resize(count);
  }
  Variant& operator[](std::size_t index) { return Values()[index]; }
  Args Values() { return m_Count > m_Few.size() ? Args(m_Many) : Args(m_Few.data(), m_Count); }

 private:
  std::size_t m_Count;
  std::array<Variant, 6> m_Few;
  std::vector<Variant> m_Many;
};

}  // namespace cardwright::jscript
