// SPDX-License-Identifier: MIT
#include "cardwright/hosting/FilePaths.h"

#include <algorithm>
#include <cerrno>

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/Files.h"

namespace cardwright {
namespace {

namespace fs = std::filesystem;

constexpr std::u16string_view kSeparators = u"/\\";

std::u16string_view WithoutEndSeparators(std::u16string_view path) {
  while (path.size() > 1 && EndsWithSeparator(path)) path.remove_suffix(1);
  return path;
}

// Position of the last part.
std::size_t LastPart(std::u16string_view path) {
  const std::size_t separator = path.find_last_of(kSeparators);
  return separator == std::u16string_view::npos ? 0 : separator + 1;
}

bool IsOfKind(const fs::path& path, EntryKind kind) {
  std::error_code ignored;
  const fs::file_status status = fs::status(path, ignored);
  return kind == EntryKind::Folder ? fs::is_directory(status)
                                   : fs::exists(status) && !fs::is_directory(status);
}

}  // namespace

Text WithSlashes(std::u16string_view path) {
  if (path.find(u'\\') == std::u16string_view::npos) return path;
  std::u16string result(path);
  std::ranges::replace(result, u'\\', u'/');
  return result;
}

fs::path FilePath(std::u16string_view path) {
  if (path.empty()) Raise(ErrorNumber::InvalidCall);
  fs::path result = ToPath(WithSlashes(path));
  if (result.empty()) Raise(ErrorNumber::BadFileName);
  return result;
}

Text AbsolutePath(std::u16string_view path) {
  std::error_code error;
  const fs::path current = fs::current_path(error);
  if (error) Raise(ErrorNumber::PathNotFound);
  if (path.empty()) return FromPath(current);
  const Text whole = FromPath((current / FilePath(path)).lexically_normal());
  return WithoutEndSeparators(whole);
}

Text FileName(std::u16string_view path) {
  path = WithoutEndSeparators(path);
  return path.substr(LastPart(path));
}

Text BaseName(std::u16string_view path) {
  const Text name = FileName(path);
  return name.View().substr(0, name.View().rfind(u'.'));
}

Text ExtensionName(std::u16string_view path) {
  const Text name = FileName(path);
  const std::size_t point = name.View().rfind(u'.');
  return point == std::u16string_view::npos ? Text() : Text(name.View().substr(point + 1));
}

Text ParentName(std::u16string_view path) {
  path = WithoutEndSeparators(path);
  const std::size_t last = LastPart(path);
  if (last == 0 || path.size() == 1) return {};
  return WithoutEndSeparators(path.substr(0, last));
}

Text JoinPath(std::u16string_view folder, std::u16string_view name) {
  if (folder.empty() || name.empty()) return folder.empty() ? name : folder;
  while (!name.empty() && kSeparators.find(name.front()) != std::u16string_view::npos) name.remove_prefix(1);
  Text path(folder);
  if (!EndsWithSeparator(folder)) path += u"/";
  return path + name;
}

bool EndsWithSeparator(std::u16string_view path) noexcept {
  return !path.empty() && kSeparators.find(path.back()) != std::u16string_view::npos;
}

bool HasWildcards(std::u16string_view path) noexcept {
  return path.substr(LastPart(path)).find_first_of(u"*?") != std::u16string_view::npos;
}

bool MatchesWildcards(std::u16string_view name, std::u16string_view pattern) noexcept {
  if (pattern == u"*.*") pattern = u"*";
  // On a mismatch after a "*" that star takes one more character; earlier stars never need to.
  constexpr std::size_t kNone = std::u16string_view::npos;
  std::size_t at = 0, in = 0, star = kNone, taken = 0;
  while (at < name.size()) {
    if (in < pattern.size() && pattern[in] == u'*') {
      star = in++;
      taken = at;
    } else if (in < pattern.size() && (pattern[in] == u'?' || pattern[in] == name[at])) {
      ++at;
      ++in;
    } else if (star != kNone) {
      in = star + 1;
      at = ++taken;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(u'*', in) == kNone;
}

std::vector<fs::path> MatchingEntries(std::u16string_view path, EntryKind kind) {
  const Text name = WithSlashes(WithoutEndSeparators(path));
  std::vector<fs::path> found;
  const fs::path whole = FilePath(name);
  const fs::path folder = whole.has_parent_path() ? whole.parent_path() : fs::path(".");
  if (HasWildcards(name)) {
    const std::u16string_view pattern = name.View().substr(LastPart(name));
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
      if (MatchesWildcards(FromPath(entry->path().filename()), pattern) && IsOfKind(entry->path(), kind))
        found.push_back(whole.parent_path() / entry->path().filename());
    }
    std::ranges::sort(found);
  } else if (IsOfKind(whole, kind)) {
    found.push_back(whole);
  }
  if (found.empty() && (kind == EntryKind::Folder || !IsOfKind(folder, EntryKind::Folder)))
    Raise(ErrorNumber::PathNotFound);
  if (found.empty()) Raise(ErrorNumber::FileNotFound);
  return found;
}

void RaiseFileError(const std::error_code& error, const fs::path& path) {
  RaiseFileError(error.value(), path);
}

void RaiseFileError(int systemError, const fs::path& path) {
  std::error_code ignored;
  switch (systemError) {
    case ENOENT:
      if (!path.has_parent_path() || fs::is_directory(path.parent_path(), ignored))
        Raise(ErrorNumber::FileNotFound);
      Raise(ErrorNumber::PathNotFound);
    case ENOTDIR: Raise(ErrorNumber::PathNotFound);
    case EEXIST: Raise(ErrorNumber::FileExists);
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case EBUSY:
    case ETXTBSY:
    case ENOTEMPTY: Raise(ErrorNumber::PermissionDenied);
    case ENAMETOOLONG:
    case EINVAL: Raise(ErrorNumber::BadFileName);
    case ENOSPC:
    case EDQUOT: Raise(ErrorNumber::DiskFull);
    case EMFILE:
    case ENFILE: Raise(ErrorNumber::TooManyFiles);
    case EXDEV: Raise(ErrorNumber::DifferentDevice);
    case EIO: Raise(ErrorNumber::DeviceError);
    default: Raise(ErrorNumber::PathAccess);
  }
}

}  // namespace cardwright
