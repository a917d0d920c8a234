// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace cardwright::jscript {

/// Thrown for an error that is found before the source is compiled.
struct SourceError {
  int number = 0;            ///< one of errors/ErrorNumbers.h
  std::size_t position = 0;  ///< in the source
};

}  // namespace cardwright::jscript
