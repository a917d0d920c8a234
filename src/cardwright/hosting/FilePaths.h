// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// @name Paths as scripts give them: backslashes separate folders as slashes do.
/// @{
/// The path with slashes only.
Text WithSlashes(std::u16string_view path);
/// A path for the system. Error 5 for the empty text, 52 for one that can name no file.
std::filesystem::path FilePath(std::u16string_view path);
/// Absolute path without "." and ".."; the current folder for the empty text.
Text AbsolutePath(std::u16string_view path);
/// Last part of a path, with its extension; separators at the end do not count.
Text FileName(std::u16string_view path);
/// The last part before its last point, and after it.
Text BaseName(std::u16string_view path);
Text ExtensionName(std::u16string_view path);
/// The path up to the last part; "" where there is none.
Text ParentName(std::u16string_view path);
/// Both parts with exactly one separator between them.
Text JoinPath(std::u16string_view folder, std::u16string_view name);
bool EndsWithSeparator(std::u16string_view path) noexcept;
/// @}

/// Whether the last part has "*" or "?" in it.
bool HasWildcards(std::u16string_view path) noexcept;
/// Whether the name matches the pattern: "*" matches any characters, "?" one, and "*.*" every name.
bool MatchesWildcards(std::u16string_view name, std::u16string_view pattern) noexcept;

enum class EntryKind { File, Folder };
/// The entries that match a path with wildcards in its last part, sorted by name; without wildcards the path
/// itself. Error 76 where its folder does not exist; 53 for files and 76 for folders where nothing matches.
std::vector<std::filesystem::path> MatchingEntries(std::u16string_view path, EntryKind kind);

/// Raises the platform's error for a failed system call on a path: 53 where the file is missing, 76 where its
/// folder is, 58, 61, 70 and so on.
[[noreturn]] void RaiseFileError(const std::error_code& error, const std::filesystem::path& path);
[[noreturn]] void RaiseFileError(int systemError, const std::filesystem::path& path);

}  // namespace cardwright
