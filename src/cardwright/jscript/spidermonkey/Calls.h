#pragma once

#include <js/friend/StackLimits.h>

#include <array>
#include <new>
#include <span>
#include <vector>

#include "cardwright/jscript/errors/ErrorTexts.h"
#include "cardwright/jscript/spidermonkey/Faults.h"
#include "cardwright/jscript/spidermonkey/Session.h"

namespace cardwright::jscript {

/// Runs what the script asked of the host. An error becomes the script's exception; nothing of C++ gets out.
/// False is for the library: an exception is pending, or the script is to stop.
template <class Step>
bool CallHost(Session& session, Step&& step) {
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
    session.Hold(std::current_exception());
    return false;
  }
  // What the host was called for may have been to stop the script.
  if (!session.IsStopping()) return isDone;
  JS_ClearPendingException(session.Context());
  return false;
}

/// Arguments of a call, few of them without memory of their own.
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
