#include "desktop/Console.h"

#include <cstdio>

namespace cardwright::desktop {
namespace {

void Write(std::FILE* stream, const QString& line) {
  const QByteArray bytes = line.toUtf8() + '\n';
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
  std::fflush(stream);
}

}  // namespace

void PrintLine(const QString& line) { Write(stdout, line); }
void PrintError(const QString& line) { Write(stderr, line); }

}  // namespace cardwright::desktop
