// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "cardwright/automation/Errors.h"
#include "cardwright/hosting/FileOperations.h"
#include "cardwright/platform/Files.h"

namespace cardwright::files {
namespace {

constexpr mode_t kNewFile = 0666;

FileHandle OpenHandle(const std::filesystem::path& path, int flags) {
  // The system lets a privileged user write to a read-only file; scripts must not.
  if ((flags & O_ACCMODE) != O_RDONLY && IsReadOnly(FromPath(path))) Raise(ErrorNumber::PermissionDenied);
  const int descriptor = ::open(path.c_str(), flags | O_CLOEXEC, kNewFile);
  if (descriptor < 0) RaiseFileError(errno, path);
  FileHandle file(descriptor, FileHandle::Owner::Holder);
  struct stat status {};
  if (::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode)) Raise(ErrorNumber::PermissionDenied);
  return file;
}

bool IsEmpty(const FileHandle& file) {
  struct stat status {};
  return ::fstat(file.Descriptor(), &status) == 0 && status.st_size == 0;
}

Ref<TextStream> Writer(FileHandle file, TextEncoding encoding) {
  if (encoding == TextEncoding::Utf16 && IsEmpty(file)) file.Write(kUtf16ByteOrderMark);
  return MakeRef<TextStream>(std::move(file), TextStream::Access::Write, encoding);
}

Ref<TextStream> Reader(FileHandle file, TextEncoding encoding) {
  char mark[kUtf16ByteOrderMark.size()];
  const bool hasMark = encoding == TextEncoding::Utf16 &&
                       ::pread(file.Descriptor(), mark, sizeof mark, 0) == ssize_t{sizeof mark} &&
                       std::string_view(mark, sizeof mark) == kUtf16ByteOrderMark;
  if (hasMark) file.Read(mark, sizeof mark);
  return MakeRef<TextStream>(std::move(file), TextStream::Access::Read, encoding);
}

}  // namespace

TextEncoding EncodingOf(std::int32_t format) {
  constexpr std::int32_t kUnicode = -1, kPlain = 0, kDefault = -2;
  if (format == kUnicode) return TextEncoding::Utf16;
  if (format != kPlain && format != kDefault) Raise(ErrorNumber::InvalidCall);
  return TextEncoding::CodePage;
}

OpenMode ModeOf(std::int32_t mode) {
  if (mode != 1 && mode != 2 && mode != 8) Raise(ErrorNumber::InvalidCall);
  return static_cast<OpenMode>(mode);
}

Ref<TextStream> Open(const std::filesystem::path& path, OpenMode mode, IfMissing ifMissing,
                     TextEncoding encoding) {
  const int create = ifMissing == IfMissing::Create ? O_CREAT : 0;
  switch (mode) {
    case OpenMode::Reading: return Reader(OpenHandle(path, O_RDONLY | create), encoding);
    case OpenMode::Writing: return Writer(OpenHandle(path, O_WRONLY | O_TRUNC | create), encoding);
    case OpenMode::Appending: return Writer(OpenHandle(path, O_WRONLY | O_APPEND | create), encoding);
  }
  Raise(ErrorNumber::InvalidCall);
}

Ref<TextStream> Create(const std::filesystem::path& path, IfExists ifExists, TextEncoding encoding) {
  const int exclusive = ifExists == IfExists::Fail ? O_EXCL : 0;
  return Writer(OpenHandle(path, O_WRONLY | O_CREAT | O_TRUNC | exclusive), encoding);
}

}  // namespace cardwright::files
