// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

#include "cardwright/automation/Variant.h"
#include "cardwright/hosting/FilePaths.h"
#include "cardwright/hosting/TextStream.h"

/// What the file system object and its files and folders do on the disk. Errors: 53 for a file and 76 for a
/// folder that does not exist, 58 for one that exists already, 70 for what is not permitted.
namespace cardwright::files {

enum class OpenMode { Reading = 1, Writing = 2, Appending = 8 };
enum class IfMissing { Fail, Create };
enum class IfExists { Fail, Overwrite };
enum class ReadOnlyFiles { Keep, Delete };

/// The encoding of a script's `format`: -1 is UTF-16, 0 and -2 the code page; error 5 for any other number.
TextEncoding EncodingOf(std::int32_t format);
/// The mode of a script's `iomode`; error 5 for another number.
OpenMode ModeOf(std::int32_t mode);
Ref<TextStream> Open(const std::filesystem::path& path, OpenMode mode, IfMissing ifMissing,
                     TextEncoding encoding);
Ref<TextStream> Create(const std::filesystem::path& path, IfExists ifExists, TextEncoding encoding);

/// @name On all entries that match a path, whose last part may have wildcards. Where it has some, or where
/// the target ends with a separator, the target is an existing folder to put them into; otherwise it is the
/// new name.
/// @{
void Copy(std::u16string_view source, std::u16string_view target, EntryKind kind, IfExists ifExists);
void Move(std::u16string_view source, std::u16string_view target, EntryKind kind);
void Delete(std::u16string_view source, EntryKind kind, ReadOnlyFiles readOnlyFiles);
/// @}
void CreateFolder(const std::filesystem::path& path);

/// Attribute numbers of files and folders.
namespace attribute {
inline constexpr std::int32_t kReadOnly = 1, kHidden = 2, kSystem = 4, kDirectory = 16, kArchive = 32,
                              kAlias = 1024;
}
/// Read-only by the permissions, hidden by a name that begins with a point, directory, alias for a link.
std::int32_t Attributes(const std::filesystem::path& path);
/// Sets read-only; other attributes cannot be changed and are ignored. Error 5 for unknown numbers.
void SetAttributes(const std::filesystem::path& path, std::int32_t attributes);

enum class FileTime { Modified, Accessed, Created };
Date TimeOf(const std::filesystem::path& path, FileTime which);
/// Bytes of a file, or of all files below a folder.
Variant SizeOf(const std::filesystem::path& path);

}  // namespace cardwright::files
