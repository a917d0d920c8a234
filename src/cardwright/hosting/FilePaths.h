#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// @name Paths as scripts give them: the backslash parts folders as the slash does.
/// @{
/// The same with slashes only.
Text WithSlashes(std::u16string_view path);
/// A path for the system's calls. Error 5 for the empty text, 52 for one that can name nothing.
std::filesystem::path FilePath(std::u16string_view path);
/// Complete path without "." and ".."; the current folder for the empty text.
Text AbsolutePath(std::u16string_view path);
/// Last part of a path, with its extension; separators at the end do not count.
Text FileName(std::u16string_view path);
/// The last part up to its last point, or behind it.
Text BaseName(std::u16string_view path);
Text ExtensionName(std::u16string_view path);
/// The path up to the last part; "" where there is none.
Text ParentName(std::u16string_view path);
/// Both parts with a separator between them; one that is there is enough.
Text JoinPath(std::u16string_view folder, std::u16string_view name);
bool EndsWithSeparator(std::u16string_view path) noexcept;
/// @}

/// Whether the last part has "*" or "?" in it.
bool HasWildcards(std::u16string_view path) noexcept;
/// Whether the name fits the pattern: "*" stands for any characters, "?" for one, and "*.*" for every name.
bool MatchesWildcards(std::u16string_view name, std::u16string_view pattern) noexcept;

enum class EntryKind { File, Folder };
/// What a path with wildcards in its last part stands for, by name; what one without them stands for if it
/// exists. Error 76 where its folder does not exist, and the kind's own (53, 76) where nothing fits.
std::vector<std::filesystem::path> MatchingEntries(std::u16string_view path, EntryKind kind);

/// Raises the platform's error for a failed system call on a path: 53 where the file is missing, 76 where its
/// folder is, 58, 61, 70 and so on.
[[noreturn]] void RaiseFileError(const std::error_code& error, const std::filesystem::path& path);
[[noreturn]] void RaiseFileError(int systemError, const std::filesystem::path& path);

}  // namespace cardwright
