// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "cardwright/platform/Files.h"

namespace cardwright {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kWriteBits = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t kPermissions = 07777;
constexpr mode_t kPrivate = S_IRUSR | S_IWUSR;
constexpr mode_t kNewFile = 0666;  // less what the process masks out
constexpr int kMaxLinks = 40;      // as the system itself follows
constexpr int kMaxNames = 1000;

// The file that a chain of links ends at, whether it is there or not; empty where the chain has no end.
fs::path FollowLinks(fs::path path) {
  for (int i = 0; i < kMaxLinks; ++i) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(path, error))) return path;
    const fs::path target = fs::read_symlink(path, error);
    if (error) return {};
    path = path.parent_path() / target;
  }
  return {};
}

/// A new file beside the one to be replaced; gone again at its end unless it took that file's place.
class Sibling {
 public:
  Sibling(const fs::path& target, mode_t mode) : m_Target(target) {
    for (int i = 0; i < kMaxNames && m_Descriptor < 0; ++i) {
      m_Path = target.parent_path() / (".cardwright-" + std::to_string(::getpid()) + "-" + std::to_string(i));
      m_Descriptor = ::open(m_Path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode);
      if (m_Descriptor < 0 && errno != EEXIST) return;
    }
  }
  Sibling(const Sibling&) = delete;
  Sibling& operator=(const Sibling&) = delete;
  ~Sibling() {
    if (m_Descriptor < 0) return;
    ::close(m_Descriptor);
    if (!m_Placed) ::unlink(m_Path.c_str());
  }

  bool IsOpen() const noexcept { return m_Descriptor >= 0; }

  bool TakeOver(const struct stat& old) {
    // Another owner's file may be written without being owned; then it changes hands, its mode stays.
    [[maybe_unused]] const int owned = ::fchown(m_Descriptor, old.st_uid, old.st_gid);
    return ::fchmod(m_Descriptor, old.st_mode & kPermissions) == 0;
  }

  bool Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t count = ::write(m_Descriptor, bytes.data(), bytes.size());
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
  }

  bool Sync() { return ::fsync(m_Descriptor) == 0; }

  bool Place() {
    m_Placed = ::rename(m_Path.c_str(), m_Target.c_str()) == 0;
    return m_Placed;
  }

 private:
  const fs::path& m_Target;
  fs::path m_Path;
  int m_Descriptor = -1;
  bool m_Placed = false;
};

// Makes the new name last through a power cut; the file itself is safe already.
void SyncFolder(const fs::path& file) {
  const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  ::fsync(descriptor);
  ::close(descriptor);
}

}  // namespace

bool ReplaceFile(const fs::path& path, std::string_view bytes, Durability durability) {
  const fs::path target = FollowLinks(path);
  if (!target.has_filename()) return false;
  struct stat old {};
  const bool exists = ::stat(target.c_str(), &old) == 0;
  if (exists) {
    // A folder that may be written to would let us replace a file that may not.
    const bool writable = (old.st_mode & kWriteBits) != 0 && ::access(target.c_str(), W_OK) == 0;
    if (!S_ISREG(old.st_mode) || !writable) return false;
  }
  Sibling sibling(target, exists ? kPrivate : kNewFile);
  if (!sibling.IsOpen() || (exists && !sibling.TakeOver(old))) return false;
  const bool isSynced = durability == Durability::PowerLoss;
  if (!sibling.Write(bytes) || (isSynced && !sibling.Sync()) || !sibling.Place()) return false;
  if (isSynced) SyncFolder(target);
  return true;
}

}  // namespace cardwright
