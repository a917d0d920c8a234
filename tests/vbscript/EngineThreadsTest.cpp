#include <gtest/gtest.h>

#include <mutex>
#include <thread>

#include "vbscript/Program.h"

namespace cardwright::vbscript {
namespace {

constexpr unsigned kThreads = 4;
// Each thread takes some of the programs, and all of them take these.
constexpr std::size_t kOfAll = 7;

TEST(EngineThreads, RunProgramsAtTheSameTime) {
  const std::vector<std::filesystem::path> files = ProgramFiles();
  std::mutex mutex;
  std::vector<std::string> wrong;
  std::vector<std::thread> threads;
  for (unsigned part = 0; part < kThreads; ++part) {
    threads.emplace_back([&, part] {
      for (std::size_t k = 0; k < files.size(); ++k) {
        // Those that go to the limits of the thread's stack need one of the first thread's size.
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
