// Bytes that choose what a VBScript program does. All of it is valid, so that inputs get to what programs do
// to each other's data while it is in use: to arrays within loops over them, to variables within expressions
// that read them, to procedures and classes that run.

#include <cstdint>

#include "ProgramWriter.h"
#include "VbscriptRun.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  cardwright::vbscript::ProgramWriter writer({data + 1, size - 1});
  cardwright::vbscript::RunStranger(writer.Write(), (data[0] & 1) != 0);
  return 0;
}
