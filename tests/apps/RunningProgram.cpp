// SPDX-License-Identifier: MIT
#include "RunningProgram.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <functional>
#include <sstream>
#include <thread>

#include "RunProgram.h"

namespace cardwright::testing {
namespace {

using namespace std::chrono_literals;

bool WaitFor(std::chrono::milliseconds time, const std::function<bool()>& holds) {
  const auto end = std::chrono::steady_clock::now() + time;
  while (!holds()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(10ms);
  }
  return true;
}

}  // namespace

RunningProgram::RunningProgram(std::vector<std::string> words) {
  words.insert(words.begin(), CARDWRIGHT_PROGRAM);
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  m_Child = fork();
  if (m_Child != 0) return;
  const int nowhere = open("/dev/null", O_RDWR);
  for (const int stream : {0, 1, 2}) dup2(nowhere, stream);
  signal(SIGINT, SIG_DFL);
  execv(CARDWRIGHT_PROGRAM, arguments.data());
  _exit(99);
}

RunningProgram::~RunningProgram() {
  if (m_HasEnded) return;
  kill(m_Child, SIGKILL);
  waitpid(m_Child, nullptr, 0);
}

std::string RunningProgram::Proc(const char* file) const {
  return ReadAll("/proc/" + std::to_string(m_Child) + "/" + file);
}

bool RunningProgram::WaitUntilItHandlesCtrlC() const {
  return WaitFor(30s, [this] {
    const std::string status = Proc("status");
    const std::size_t caught = status.find("SigCgt:");
    if (caught == std::string::npos) return false;
    return (std::strtoull(status.c_str() + caught + 7, nullptr, 16) >> (SIGINT - 1) & 1) != 0;
  });
}

void RunningProgram::PressCtrlC() const { kill(m_Child, SIGINT); }

// The fields after the program's name, which is in brackets.
long RunningProgram::ProcessorTime() const {
  const std::string all = Proc("stat");
  std::istringstream fields(all.substr(all.rfind(')') + 1));
  std::string field;
  long user = 0, system = 0;
  for (int i = 3; i < 14 && fields >> field; ++i) continue;
  fields >> user >> system;
  return user + system;
}

bool RunningProgram::WaitUntilItRests() const {
  const long second = sysconf(_SC_CLK_TCK);
  return WaitFor(30s, [&] {
    const long before = ProcessorTime();
    std::this_thread::sleep_for(500ms);
    return ProcessorTime() - before < second / 20;
  });
}

std::optional<int> RunningProgram::WaitForEnd(std::chrono::seconds time) {
  int status = 0;
  m_HasEnded = WaitFor(time, [&] { return waitpid(m_Child, &status, WNOHANG) == m_Child; });
  if (!m_HasEnded) return std::nullopt;
  return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

}  // namespace cardwright::testing
