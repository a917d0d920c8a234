// SPDX-License-Identifier: MIT
#include "RunProgram.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace cardwright::testing {
namespace {

std::string Quoted(const std::string& word) {
  std::string quoted = "'";
  for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

}  // namespace

TempFolder::TempFolder() {
  static int number = 0;
  m_Path = std::filesystem::temp_directory_path() /
           ("cardwright tèst " + std::to_string(::getpid()) + "-" + std::to_string(++number));
  std::filesystem::create_directories(m_Path);
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(m_Path, ignored);
}

std::string TempFolder::Copy(const std::string& source) const {
  const std::string target = File(std::filesystem::path(source).filename().string());
  std::filesystem::copy_file(SourceFile(source), target);
  return target;
}

std::string TempFolder::Write(const std::string& name, const std::string& bytes) const {
  std::ofstream(File(name), std::ios::binary) << bytes;
  return File(name);
}

std::string ReadAll(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

Outcome RunProgram(const std::string& program, const std::vector<std::string>& words,
                   const std::string& input, const std::string& folder) {
  const TempFolder streams;
  std::string command = folder.empty() ? std::string() : "cd " + Quoted(folder) + " && ";
  command += Quoted(program);
  for (const std::string& word : words) command += " " + Quoted(word);
  command += " <" + Quoted(streams.Write("in", input)) + " >" + Quoted(streams.File("out")) + " 2>" +
             Quoted(streams.File("err"));
  const int ended = std::system(command.c_str());
  return {WIFEXITED(ended) ? WEXITSTATUS(ended) : -1, ReadAll(streams.File("out")),
          ReadAll(streams.File("err"))};
}

Outcome Cardwright(const std::vector<std::string>& words, const std::string& input) {
  return RunProgram(CARDWRIGHT_PROGRAM, words, input);
}

std::string SourceFile(const std::string& path) { return std::string(CARDWRIGHT_SOURCE_DIR "/") + path; }
std::string ExampleForm() { return SourceFile("examples/wells/well-inspection.cwf"); }

}  // namespace cardwright::testing
