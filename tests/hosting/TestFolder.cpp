// SPDX-License-Identifier: MIT
#include "hosting/TestFolder.h"

#include <unistd.h>

#include <fstream>
#include <iterator>

#include "cardwright/platform/Files.h"

namespace cardwright::testing {

TestFolder::TestFolder() {
  static int number = 0;
  m_Path = std::filesystem::temp_directory_path() /
           ("cardwright hostìng " + std::to_string(::getpid()) + "-" + std::to_string(++number));
  std::filesystem::create_directories(m_Path);
}

TestFolder::~TestFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(m_Path, ignored);
}

Text TestFolder::Path() const { return FromPath(m_Path); }

Text TestFolder::operator/(const std::string& name) const { return FromPath(m_Path / name); }

Text TestFolder::Write(const std::string& name, const std::string& bytes) const {
  std::filesystem::create_directories((m_Path / name).parent_path());
  std::ofstream(m_Path / name, std::ios::binary) << bytes;
  return *this / name;
}

std::string TestFolder::Read(const std::string& name) const {
  std::ifstream file(m_Path / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool TestFolder::Has(const std::string& name) const { return std::filesystem::exists(m_Path / name); }

}  // namespace cardwright::testing
