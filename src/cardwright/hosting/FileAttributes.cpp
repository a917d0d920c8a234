// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <ctime>
#include <limits>

#include "cardwright/automation/Calendar.h"
#include "cardwright/automation/Errors.h"
#include "cardwright/hosting/FileOperations.h"
#include "cardwright/platform/Files.h"

namespace cardwright::files {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

struct stat StatusOf(const fs::path& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) RaiseFileError(errno, path);
  return status;
}

std::uintmax_t BytesBelow(const fs::path& folder) {
  std::uintmax_t bytes = 0;
  std::error_code error;
  for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code ignored;
    if (entry->is_regular_file(ignored) && !entry->is_symlink(ignored)) bytes += entry->file_size(ignored);
  }
  if (error) RaiseFileError(error, folder);
  return bytes;
}

}  // namespace

std::int32_t Attributes(const fs::path& path) {
  const struct stat status = StatusOf(path);
  std::int32_t attributes = 0;
  if (IsReadOnly(FromPath(path))) attributes |= attribute::kReadOnly;
  if (path.filename().native().starts_with('.')) attributes |= attribute::kHidden;
  if (S_ISDIR(status.st_mode)) attributes |= attribute::kDirectory;
  std::error_code ignored;
  if (fs::is_symlink(path, ignored)) attributes |= attribute::kAlias;
  return attributes;
}

void SetAttributes(const fs::path& path, std::int32_t attributes) {
  constexpr std::int32_t kKnown = attribute::kReadOnly | attribute::kHidden | attribute::kSystem |
                                  attribute::kDirectory | attribute::kArchive | attribute::kAlias;
  if ((attributes & ~kKnown) != 0) Raise(ErrorNumber::InvalidCall);
  const mode_t before = StatusOf(path).st_mode & 07777u;
  const bool isReadOnly = (attributes & attribute::kReadOnly) != 0;
  mode_t after = before;
  if (isReadOnly) after &= ~kAnyWrite;
  if (!isReadOnly && (before & kAnyWrite) == 0) after |= S_IWUSR;
  if (after != before && ::chmod(path.c_str(), after) != 0) RaiseFileError(errno, path);
}

Date TimeOf(const fs::path& path, FileTime which) {
  struct statx facts {};
  if (::statx(AT_FDCWD, path.c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &facts) != 0)
    RaiseFileError(errno, path);
  const bool knowsBirth = (facts.stx_mask & STATX_BTIME) != 0;
  statx_timestamp stamp = facts.stx_mtime;
  if (which == FileTime::Accessed) stamp = facts.stx_atime;
  if (which == FileTime::Created && knowsBirth) stamp = facts.stx_btime;
  const std::time_t seconds = stamp.tv_sec;
  std::tm local{};
  if (!::localtime_r(&seconds, &local)) Raise(ErrorNumber::Overflow);
  const auto days = DaysOf(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
  if (!days) Raise(ErrorNumber::Overflow);
  return Join(*days, (local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec);
}

Variant SizeOf(const fs::path& path) {
  const struct stat status = StatusOf(path);
  const std::uintmax_t bytes =
      S_ISDIR(status.st_mode) ? BytesBelow(path) : static_cast<std::uintmax_t>(status.st_size);
  if (bytes <= std::numeric_limits<std::int32_t>::max()) return static_cast<std::int32_t>(bytes);
  return static_cast<double>(bytes);
}

}  // namespace cardwright::files
