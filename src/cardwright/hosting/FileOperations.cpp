// SPDX-License-Identifier: MIT
#include "cardwright/hosting/FileOperations.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/platform/Files.h"

namespace cardwright::files {
namespace {

namespace fs = std::filesystem;

bool IsFolder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

bool Exists(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(path, ignored));
}

bool IsProtected(const fs::path& path) { return IsReadOnly(FromPath(path)); }

void Check(const std::error_code& error, const fs::path& path) {
  if (error) RaiseFileError(error, path);
}

// Calls `act` with each matching entry and its target path.
template <class Act>
void ForEachTarget(std::u16string_view source, std::u16string_view target, EntryKind kind, Act act) {
  const std::vector<fs::path> entries = MatchingEntries(source, kind);
  const fs::path to = FilePath(target);
  const bool isInto = HasWildcards(source) || EndsWithSeparator(target);
  if (isInto && !IsFolder(to)) Raise(ErrorNumber::PathNotFound);
  for (const fs::path& entry : entries) act(entry, isInto ? to / FilePath(FileName(FromPath(entry))) : to);
}

void CopyFile(const fs::path& from, const fs::path& to, IfExists ifExists) {
  if (IsFolder(to) || IsProtected(to)) Raise(ErrorNumber::PermissionDenied);
  if (Exists(to) && ifExists == IfExists::Fail) Raise(ErrorNumber::FileExists);
  std::error_code error;
  fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
  // The source exists, so the target's folder does not.
  if (error == std::errc::no_such_file_or_directory) Raise(ErrorNumber::PathNotFound);
  if (error == std::errc::file_exists) Raise(ErrorNumber::PermissionDenied);  // onto itself
  Check(error, to);
}

void CopyFolder(const fs::path& from, const fs::path& to, IfExists ifExists) {
  std::error_code error;
  const fs::path inside =
      fs::weakly_canonical(to, error).lexically_relative(fs::weakly_canonical(from, error));
  // Copying a folder into itself would never end.
  if (!inside.empty() && *inside.begin() != "..") Raise(ErrorNumber::PermissionDenied);
  if (Exists(to) && !IsFolder(to)) Raise(ErrorNumber::FileExists);
  if (!IsFolder(to)) CreateFolder(to);
  for (fs::directory_iterator entry(from, error), end; !error && entry != end; entry.increment(error)) {
    const fs::path target = to / entry->path().filename();
    if (IsFolder(entry->path())) {
      CopyFolder(entry->path(), target, ifExists);
    } else {
      CopyFile(entry->path(), target, ifExists);
    }
  }
  Check(error, from);
}

void CheckUnprotected(const fs::path& folder) {
  std::error_code error;
  for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error))
    if (!entry->is_symlink() && IsProtected(entry->path())) Raise(ErrorNumber::PermissionDenied);
  Check(error, folder);
}

}  // namespace

void Copy(std::u16string_view source, std::u16string_view target, EntryKind kind, IfExists ifExists) {
  ForEachTarget(source, target, kind, [&](const fs::path& from, const fs::path& to) {
    if (kind == EntryKind::File) {
      CopyFile(from, to, ifExists);
    } else {
      CopyFolder(from, to, ifExists);
    }
  });
}

void Move(std::u16string_view source, std::u16string_view target, EntryKind kind) {
  ForEachTarget(source, target, kind, [&](const fs::path& from, const fs::path& to) {
    if (Exists(to)) Raise(ErrorNumber::FileExists);
    std::error_code error;
    fs::rename(from, to, error);
    if (error == std::errc::cross_device_link && kind == EntryKind::File) {
      CopyFile(from, to, IfExists::Fail);
      fs::remove(from, error);
    }
    if (error == std::errc::no_such_file_or_directory) Raise(ErrorNumber::PathNotFound);
    if (error == std::errc::invalid_argument) Raise(ErrorNumber::PermissionDenied);  // into itself
    Check(error, from);
  });
}

void Delete(std::u16string_view source, EntryKind kind, ReadOnlyFiles readOnlyFiles) {
  for (const fs::path& entry : MatchingEntries(source, kind)) {
    if (readOnlyFiles == ReadOnlyFiles::Keep) {
      if (IsProtected(entry)) Raise(ErrorNumber::PermissionDenied);
      if (kind == EntryKind::Folder) CheckUnprotected(entry);
    }
    std::error_code error;
    if (kind == EntryKind::Folder) {
      fs::remove_all(entry, error);
    } else {
      fs::remove(entry, error);
    }
    Check(error, entry);
  }
}

void CreateFolder(const fs::path& path) {
  if (Exists(path)) Raise(ErrorNumber::FileExists);
  std::error_code error;
  fs::create_directory(path, error);
  if (error == std::errc::no_such_file_or_directory) Raise(ErrorNumber::PathNotFound);
  Check(error, path);
}

}  // namespace cardwright::files
