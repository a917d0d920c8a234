// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

#include "cardwright/automation/Text.h"

namespace cardwright::testing {

/// A folder that goes with the test. Its name has a blank and an accent, as users' folders do.
class TestFolder {
 public:
  TestFolder();
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  Text Path() const;
  /// Path of an entry in it.
  Text operator/(const std::string& name) const;
  Text Write(const std::string& name, const std::string& bytes) const;
  std::string Read(const std::string& name) const;
  bool Has(const std::string& name) const;

 private:
  std::filesystem::path m_Path;
};

}  // namespace cardwright::testing
