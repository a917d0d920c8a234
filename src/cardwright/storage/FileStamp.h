// SPDX-License-Identifier: MIT
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <optional>

namespace cardwright {

/// Distinguishes one state of a file from another without reading it. The change time is part of it, which no
/// program can set, so a file put back with its old times and size differs too.
struct FileStamp {
  dev_t device = 0;
  ino_t inode = 0;
  std::int64_t size = 0;
  std::int64_t modified = 0;  ///< nanoseconds since 1970
  std::int64_t changed = 0;   ///< nanoseconds since 1970
  mode_t mode = 0;

  /// Of the file that the path leads to, links followed; none where there is none.
  static std::optional<FileStamp> Of(const std::filesystem::path& path) noexcept;

  /// True where a change made after `now` is bound to leave another stamp. Right after a change it is not:
  /// the clock of a file system moves in steps, and a second change within one step leaves the times alone.
  bool IsSettledAt(std::int64_t now) const noexcept;
  /// Time of the clock that stamps files, in nanoseconds since 1970.
  static std::int64_t Now() noexcept;

  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

}  // namespace cardwright
