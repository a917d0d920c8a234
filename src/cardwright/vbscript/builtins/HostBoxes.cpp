#include "cardwright/vbscript/builtins/HostBoxes.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/builtins/Arguments.h"

namespace cardwright::vbscript {

namespace {

// A help file and a topic in it come together or not at all.
void CheckHelp(Args args, std::size_t index) {
  const Variant* file = ArgumentAt(args, index);
  const Variant* topic = ArgumentAt(args, index + 1);
  if ((file == nullptr) != (topic == nullptr)) Raise(ErrorNumber::InvalidCall);
  if (!file) return;
  ToText(*file);
  ToLong(*topic);
}

Variant PositionAt(Args args, std::size_t index) {
  const Variant* value = ArgumentAt(args, index);
  return value ? Variant(ToLong(*value)) : Variant::Missing();
}

Text TitleAt(Context& context, Args args, std::size_t index) {
  const Variant* title = ArgumentAt(args, index);
  return title ? ToText(*title) : context.Host().BoxTitle();
}

}  // namespace

Variant MsgBoxFunction(Context& context, Args args) {
  const Text prompt = RequiredText(args, 0);
  const std::int32_t style = LongOr(args, 1, 0);
  const Text title = TitleAt(context, args, 2);
  CheckHelp(args, 3);
  const int answer = context.allowUI ? context.Host().ShowMessage(prompt, style, title) : 0;
  return static_cast<std::int16_t>(answer);
}

Variant InputBoxFunction(Context& context, Args args) {
  const Text prompt = RequiredText(args, 0);
  const Text title = TitleAt(context, args, 1);
  const Text initial = TextOr(args, 2, {});
  const Variant x = PositionAt(args, 3);
  const Variant y = PositionAt(args, 4);
  CheckHelp(args, 5);
  return context.allowUI ? context.Host().AskText(prompt, title, initial, x, y) : Variant();
}

}  // namespace cardwright::vbscript
