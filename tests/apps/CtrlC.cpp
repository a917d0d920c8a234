// SPDX-License-Identifier: MIT
#include "CtrlC.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <thread>

namespace cardwright::testing {

int StatusAfterCtrlC(const TempFolder& folder, const std::string& script) {
  const std::string out = folder.File("out"), error = folder.File("err");
  std::filesystem::remove(error);  // of an earlier run
  const pid_t child = fork();
  if (child == 0) {
    (void)!freopen(out.c_str(), "w", stdout);
    (void)!freopen(error.c_str(), "w", stderr);
    execl(CARDWRIGHT_PROGRAM, CARDWRIGHT_PROGRAM, "script", script.c_str(), nullptr);
    _exit(99);
  }
  for (int i = 0; i < 1000 && ReadAll(error).empty(); ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  kill(child, SIGINT);
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace cardwright::testing
