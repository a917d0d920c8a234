// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "cardwright/automation/Text.h"

namespace cardwright {

/// A folder of a test's own, gone with everything in it at the end.
class TempFolder {
 public:
  TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "storage-XXXXXX").string();
    m_Path = ::mkdtemp(pattern.data());
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::permissions(m_Path, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(m_Path, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& Path() const { return m_Path; }
  std::filesystem::path File(std::string_view name) const { return m_Path / name; }
  Text Name(std::string_view name) const { return Text::FromUtf8(File(name).native()); }

  /// Writes a file the way any other program would, in place.
  Text Put(std::string_view name, std::string_view bytes) const {
    std::ofstream(File(name), std::ios::binary | std::ios::trunc)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return Name(name);
  }
  std::string Get(std::string_view name) const {
    std::ifstream file(File(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }

 private:
  std::filesystem::path m_Path;
};

}  // namespace cardwright
