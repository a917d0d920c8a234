// SPDX-License-Identifier: MIT
#include "cardwright/runtime/DebugStorage.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/shared/Messages.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright {
namespace {

void Print(const Text& text) {
  if (const Ref<Object> output = Module().debugOutput)
    BestEffort([&] { LetProperty(*output, u"SelText", Variant(text)); });
}

Text DebugRule() { return Text(std::u16string(100, u'-')); }
Text StorageBanner(int step) {
  return GetMessage(messages::InternalProcedure, {Variant(GetMessage(step))}) + u"\r\n";
}

/// Prints the commands that a debugging run would send.
class PrintingConnection final : public HostConnection {
 public:
  Text Execute(std::u16string_view command) override {
    Print(Text(u"     ") + command + u"\r\n");
    return {};
  }
  Text Request(std::u16string_view) override { return {}; }
};

}  // namespace

void PrintDebugOpening() {
  Print(Text(u"\r\n\r\n") + DebugRule() + u"\r\n");
  Print(StorageBanner(messages::StorageStart));
  Print(DebugRule() + u"\r\n");
}

void PrintDebugClosing() {
  Print(DebugRule() + u"\r\n");
  Print(StorageBanner(messages::StorageEnd));
  Print(DebugRule() + u"\r\n\r\n\r\n");
}

Ref<HostConnection> DebugConnection() { return MakeRef<PrintingConnection>(); }

}  // namespace cardwright
