// SPDX-License-Identifier: MIT
#include "cardwright/storage/FileStamp.h"

#include <ctime>

namespace cardwright {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;

std::int64_t Nanoseconds(const timespec& time) noexcept { return time.tv_sec * kSecond + time.tv_nsec; }

// Files are stamped from a clock that moves with the kernel's timer: every 1 to 10 ms, by its build. Twice
// the longest step leaves room for a write that took its time before and reached the disk after the tick.
constexpr std::int64_t kTimerMargin = 20'000'000;

// Some file systems keep times in whole seconds or, as FAT does, in pairs of them. Times without a fraction
// are taken for theirs; on any other file system such a time is a rare chance and costs some reading.
constexpr std::int64_t kWholeSecondMargin = 2 * kSecond + kTimerMargin;

bool IsSettled(std::int64_t time, std::int64_t now) noexcept {
  const std::int64_t margin = time % kSecond == 0 ? kWholeSecondMargin : kTimerMargin;
  return time + margin <= now;
}

}  // namespace

std::optional<FileStamp> FileStamp::Of(const std::filesystem::path& path) noexcept {
  struct stat status;
  if (path.empty() || ::stat(path.c_str(), &status) != 0) return std::nullopt;
  return FileStamp{.device = status.st_dev,
                   .inode = status.st_ino,
                   .size = status.st_size,
                   .modified = Nanoseconds(status.st_mtim),
                   .changed = Nanoseconds(status.st_ctim),
                   .mode = status.st_mode};
}

// The change time alone would do where the file system has one of its own; those of FAT's kind report another
// time in its place. A modification time set to the future says nothing: any write would change it.
bool FileStamp::IsSettledAt(std::int64_t now) const noexcept {
  return IsSettled(changed, now) && (modified > now || IsSettled(modified, now));
}

std::int64_t FileStamp::Now() noexcept {
  timespec now;
  ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
  return Nanoseconds(now);
}

}  // namespace cardwright
