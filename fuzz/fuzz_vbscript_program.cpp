// SPDX-License-Identifier: MIT
// Generates valid VBScript programs from the bytes, so that inputs reach code that changes what is in use:
// arrays in a loop over them, variables in an expression that reads them, procedures and classes that are
// running.

#include <cstdint>

#include "ProgramWriter.h"
#include "VbscriptRun.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  cardwright::vbscript::ProgramWriter writer({data + 1, size - 1});
  cardwright::vbscript::RunStranger(writer.Write(), (data[0] & 1) != 0);
  return 0;
}
