// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "cardwright/automation/Errors.h"

namespace cardwright::vbscript {

/// An error about a name. `Err.Description` is the standard text; the report to the host adds the name.
class NamedError : public Error {
 public:
  NamedError(int number, Text name) : Error(number), m_Name(std::move(name)) {}
  NamedError(ErrorNumber number, Text name) : Error(number), m_Name(std::move(name)) {}
  const Text& Name() const noexcept { return m_Name; }

 private:
  Text m_Name;
};

}  // namespace cardwright::vbscript
