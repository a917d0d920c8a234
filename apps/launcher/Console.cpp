// SPDX-License-Identifier: MIT
#include "launcher/Console.h"

#include <cstdio>

namespace cardwright::app {
namespace {

void WriteLine(std::FILE* stream, std::string_view line) {
  std::fwrite(line.data(), 1, line.size(), stream);
  std::fputc('\n', stream);
  std::fflush(stream);
}

}  // namespace

void PrintLine(std::string_view line) { WriteLine(stdout, line); }
void PrintError(std::string_view line) { WriteLine(stderr, line); }

}  // namespace cardwright::app
