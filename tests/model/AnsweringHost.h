// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "cardwright/shared/HostExecutor.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {

/// A host with prepared answers that records the commands it gets.
class AnsweringHost final : public HostConnection {
 public:
  Text Execute(std::u16string_view) override { return {}; }
  Text Request(std::u16string_view command) override {
    asked = command;
    if (onRequest) onRequest();
    const auto found = answers.find(std::u16string(command));
    return found == answers.end() ? answer : found->second;
  }
  Text answer;  ///< to commands without a prepared answer
  std::map<std::u16string, Text> answers;
  Text asked;  ///< last command
  std::function<void()> onRequest;
};

/// A scripted host that the thread is connected to.
struct Connected {
  Connected() {
    handle = Module().connections.Register(host);
    SharedHost().SetHandle(handle);
  }
  ~Connected() {
    SharedHost().SetHandle(0);
    Module().connections.Close(handle);
  }
  Ref<AnsweringHost> host = MakeRef<AnsweringHost>();
  std::int32_t handle;
};

}  // namespace cardwright
