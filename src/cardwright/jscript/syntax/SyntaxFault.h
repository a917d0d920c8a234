#pragma once

#include <cstddef>

namespace cardwright::jscript {

/// What is wrong with a source and where, for the faults that are found before it is compiled.
struct SyntaxFault {
  int number = 0;            ///< of errors/ErrorTexts.h
  std::size_t position = 0;  ///< in the source
};

}  // namespace cardwright::jscript
