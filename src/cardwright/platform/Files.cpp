// SPDX-License-Identifier: MIT
#include "cardwright/platform/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace cardwright {

namespace {

constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr std::size_t kReadBlock = 1 << 16;

bool IsWellFormed(std::u16string_view path) noexcept {
  for (std::size_t i = 0; i < path.size(); ++i) {
    const int kind = path[i] & 0xFC00;
    if (path[i] == u'\0' || kind == 0xDC00) return false;
    if (kind == 0xD800) {
      if (i + 1 == path.size() || (path[i + 1] & 0xFC00) != 0xDC00) return false;
      ++i;
    }
  }
  return true;
}

/// An open file descriptor.
class File {
 public:
  explicit File(int descriptor) : m_Descriptor(descriptor) {}
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() {
    if (IsOpen()) ::close(m_Descriptor);
  }

  bool IsOpen() const noexcept { return m_Descriptor >= 0; }
  int Descriptor() const noexcept { return m_Descriptor; }

 private:
  int m_Descriptor;
};

}  // namespace

std::filesystem::path ToPath(std::u16string_view path) {
  if (!IsWellFormed(path)) return {};
  return std::filesystem::path(Text(path).ToUtf8());
}

Text FromPath(const std::filesystem::path& path) { return Text::FromUtf8(path.native()); }

bool FileExists(std::u16string_view path) {
  std::error_code error;
  const auto status = std::filesystem::status(ToPath(path), error);
  return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool FolderExists(std::u16string_view path) {
  std::error_code error;
  return std::filesystem::is_directory(ToPath(path), error);
}

Text BuildPath(std::u16string_view folder, std::u16string_view name) {
  if (folder.empty() || name.empty()) return folder.empty() ? Text(name) : Text(folder);
  while (folder.size() > 1 && folder.ends_with(u'/')) folder.remove_suffix(1);
  while (name.starts_with(u'/')) name.remove_prefix(1);
  Text path(folder);
  if (!folder.ends_with(u'/')) path += u"/";
  return path + name;
}

Text GetParentFolderName(std::u16string_view path) {
  const auto dropSeparators = [&] {
    while (path.size() > 1 && path.ends_with(u'/')) path.remove_suffix(1);
  };
  dropSeparators();
  const std::size_t separator = path.rfind(u'/');
  if (separator == std::u16string_view::npos || path.size() == 1) return {};
  path = path.substr(0, separator + 1);
  dropSeparators();
  return path;
}

bool IsReadOnly(std::u16string_view path) {
  const std::filesystem::path name = ToPath(path);
  struct stat status {};
  if (::stat(name.c_str(), &status) != 0) return false;
  // The mode is asked too, as a privileged user may write to anything.
  return (status.st_mode & kAnyWrite) == 0 || ::access(name.c_str(), W_OK) != 0;
}

std::optional<std::string> ReadFile(const std::filesystem::path& path) {
  const File file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  struct stat status {};
  if (!file.IsOpen() || ::fstat(file.Descriptor(), &status) != 0) return std::nullopt;
  std::string bytes;
  std::size_t length = 0;
  // One byte more than the file has, so that its end is seen without growing.
  bytes.resize(static_cast<std::size_t>(status.st_size) + 1);
  for (;;) {
    if (length == bytes.size()) bytes.resize(length + kReadBlock);
    const ssize_t count = ::read(file.Descriptor(), bytes.data() + length, bytes.size() - length);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return std::nullopt;
    if (count == 0) break;
    length += static_cast<std::size_t>(count);
  }
  bytes.resize(length);
  return bytes;
}

}  // namespace cardwright
