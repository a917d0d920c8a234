// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <mutex>
#include <thread>

#include "vbscript/VbScriptProgram.h"

namespace cardwright::vbscript {
namespace {

constexpr unsigned kThreads = 4;
// Each thread runs some of the programs, and all of them run these.
constexpr std::size_t kOfAll = 7;

TEST(EngineThreads, RunProgramsAtTheSameTime) {
  const std::vector<std::filesystem::path> files = ProgramFiles();
  std::mutex mutex;
  std::vector<std::string> wrong;
  std::vector<std::thread> threads;
  for (unsigned part = 0; part < kThreads; ++part) {
    threads.emplace_back([&, part] {
      for (std::size_t k = 0; k < files.size(); ++k) {
        // Programs about the limits of the stack need one as large as the first thread's.
        if (files[k].parent_path().filename() == "limits" || (k % kThreads != part && k % kOfAll != 0))
          continue;
        const Program program = ReadProgram(files[k]);
        if (Fits(program.expected, RunProgram(program))) continue;
        const std::lock_guard lock(mutex);
        wrong.push_back(files[k].string());
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const std::string& file : wrong) ADD_FAILURE() << file;
}

}  // namespace
}  // namespace cardwright::vbscript
