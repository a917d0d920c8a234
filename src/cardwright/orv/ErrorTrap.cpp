// SPDX-License-Identifier: MIT
#include "cardwright/orv/ErrorTrap.h"

#include <string_view>

namespace cardwright::orv {

ErrorTrap::ErrorTrap() { CPLPushErrorHandlerEx(&ErrorTrap::Keep, this); }

ErrorTrap::~ErrorTrap() {
  CPLPopErrorHandler();
  CPLErrorReset();
}

bool ErrorTrap::IsLock() const { return Cause().find("database is locked") != std::string::npos; }

std::string ErrorTrap::Cause() const {
  // The library puts the whole statement before the reason, and truncates long messages.
  constexpr std::string_view kStatement = "In ExecuteSQL(): ", kEnd = "):\n";
  if (m_Message.compare(0, kStatement.size(), kStatement) != 0) return m_Message;
  const std::size_t end = m_Message.rfind(kEnd);
  if (end == std::string::npos) return {};
  const std::size_t start = m_Message.find_first_not_of(' ', end + kEnd.size());
  return start == std::string::npos ? std::string() : m_Message.substr(start);
}

Text ErrorTrap::Reason() const {
  if (IsLock()) return u"Another program has locked the store.";
  constexpr std::size_t kLongest = 500;
  Text text = Text::FromUtf8(Cause().substr(0, kLongest));
  if (text.IsEmpty()) return u"The data library gives no reason.";
  if (text[text.Size() - 1] != u'.') text += u".";
  return text;
}

void CPL_STDCALL ErrorTrap::Keep(CPLErr kind, CPLErrorNum, const char* message) {
  auto* const trap = static_cast<ErrorTrap*>(CPLGetErrorHandlerUserData());
  if (!trap || kind < CE_Warning || kind <= trap->m_Worst) return;
  trap->m_Worst = kind;
  trap->m_Message = message;
}

}  // namespace cardwright::orv
