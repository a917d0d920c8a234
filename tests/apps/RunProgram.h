// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace cardwright::testing {

/// What a program left behind.
struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

/// A folder that goes with the test. Its name has a blank and an accent, as users' folders do.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string File(const std::string& name) const { return (m_Path / name).string(); }
  /// A copy of one of the project's own files.
  std::string Copy(const std::string& source) const;
  std::string Write(const std::string& name, const std::string& bytes) const;

 private:
  std::filesystem::path m_Path;
};

std::string ReadAll(const std::string& path);

/// Runs a program to its end, with `input` as its standard input and in `folder` where one is given.
Outcome RunProgram(const std::string& program, const std::vector<std::string>& words,
                   const std::string& input = {}, const std::string& folder = {});
/// The same for the command line.
Outcome Cardwright(const std::vector<std::string>& words, const std::string& input = {});

/// A file of the source tree.
std::string SourceFile(const std::string& path);
/// The example form.
std::string ExampleForm();

}  // namespace cardwright::testing
