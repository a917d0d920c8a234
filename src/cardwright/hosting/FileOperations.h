#pragma once

#include <filesystem>
#include <string_view>

#include "cardwright/automation/Variant.h"
#include "cardwright/hosting/FilePaths.h"
#include "cardwright/hosting/TextStream.h"

/// What the file system object and its files and folders do to the disk. Failures are the platform's errors:
/// 53 and 76 for what is missing, 58 for what is there already, 70 for what is not allowed.
namespace cardwright::files {

enum class OpenMode { Reading = 1, Writing = 2, Appending = 8 };
enum class IfMissing { Fail, Create };
enum class IfThere { Fail, Overwrite };
enum class ReadOnly { Keep, Delete };

/// A coding by the platform's number: -1 is UTF-16, 0 and -2 the code page; error 5 for any other.
TextCoding CodingOf(std::int32_t format);
/// Error 5 for a number that is no mode.
OpenMode ModeOf(std::int32_t mode);
Ref<TextStream> Open(const std::filesystem::path& path, OpenMode mode, IfMissing ifMissing,
                     TextCoding coding);
Ref<TextStream> Create(const std::filesystem::path& path, IfThere ifThere, TextCoding coding);

/// @name All entries that a path, which may have wildcards in its last part, stands for. Where it has some,
/// or the target ends with a separator, the target is a folder to put them into; else it is the new name.
/// @{
void Copy(std::u16string_view source, std::u16string_view target, EntryKind kind, IfThere ifThere);
void Move(std::u16string_view source, std::u16string_view target, EntryKind kind);
void Delete(std::u16string_view source, EntryKind kind, ReadOnly readOnly);
/// @}
void CreateFolder(const std::filesystem::path& path);

/// Attribute numbers of files and folders.
namespace attribute {
inline constexpr std::int32_t kReadOnly = 1, kHidden = 2, kSystem = 4, kDirectory = 16, kArchive = 32,
                              kAlias = 1024;
}
/// Read-only by the permissions, hidden by a point in front of the name, directory, alias for a link.
std::int32_t Attributes(const std::filesystem::path& path);
/// Changes the permissions to write; the other attributes are what the file is. Error 5 for unknown numbers.
void SetAttributes(const std::filesystem::path& path, std::int32_t attributes);

enum class Moment { Changed, Used, Created };
Date TimeOf(const std::filesystem::path& path, Moment moment);
/// Bytes of a file, or of all files below a folder.
Variant SizeOf(const std::filesystem::path& path);

}  // namespace cardwright::files
