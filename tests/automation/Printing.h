// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Locale.h"
#include "cardwright/automation/Text.h"

namespace cardwright {

/// For the messages of a failed comparison.
inline void PrintTo(const Text& text, std::ostream* out) { *out << '"' << text.ToUtf8() << '"'; }

/// The number of the error that `step` raises; 0 where it raises none.
template <class Step>
int ErrorOf(Step&& step) {
  try {
    step();
    return 0;
  } catch (const Error& error) {
    return error.Number();
  }
}

/// Makes a locale current for one scope.
class InLocale {
 public:
  explicit InLocale(std::u16string_view name) : m_Before(Locale::Current()) {
    Locale::SetCurrent(*Locale::Find(name));
  }
  InLocale(const InLocale&) = delete;
  InLocale& operator=(const InLocale&) = delete;
  ~InLocale() { Locale::SetCurrent(m_Before); }

 private:
  const Locale& m_Before;
};

}  // namespace cardwright
