// SPDX-License-Identifier: MIT
#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Locale.h"
#include "cardwright/vbscript/Context.h"
#include "cardwright/vbscript/NamedError.h"
#include "cardwright/vbscript/builtins/Builtin.h"
#include "cardwright/vbscript/builtins/BuiltinArguments.h"

// What the program around the engine does for scripts, the locale, and facts about the engine.
namespace cardwright::vbscript {

namespace {

// A help file and its topic come together or not at all. No help is ever shown.
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

// MsgBox(prompt[, buttons[, title[, helpfile, context]]]): 0 where the script may show nothing.
Variant MsgBoxFunction(Context& context, Args args) {
  const Text prompt = Text(RequireText(args[0]));
  const std::int32_t style = LongOr(args, 1, 0);
  const Text title = TitleAt(context, args, 2);
  CheckHelp(args, 3);
  const int answer = context.allowUI ? context.Host().ShowMessage(prompt, style, title) : 0;
  return static_cast<std::int16_t>(answer);
}

// InputBox(prompt[, title[, default[, xpos[, ypos[, helpfile, context]]]]]): Empty where it was cancelled or
// where the script may show nothing.
Variant InputBoxFunction(Context& context, Args args) {
  const Text prompt = Text(RequireText(args[0]));
  const Text title = TitleAt(context, args, 1);
  const Text initial = TextOr(args, 2, {});
  const Variant x = PositionAt(args, 3);
  const Variant y = PositionAt(args, 4);
  CheckHelp(args, 5);
  return context.allowUI ? context.Host().AskText(prompt, title, initial, x, y) : Variant();
}

Variant RequireObject(Ref<Object> object, ErrorNumber error) {
  if (!object) Raise(error);
  return object;
}

// The error report to the host names the class.
Variant CreateByProgid(Context& context, const Text& progid, const Text& server) {
  try {
    return RequireObject(context.Host().CreateObject(progid, server), ErrorNumber::CannotCreateObject);
  } catch (const Error& error) {
    if (!error.Is(ErrorNumber::CannotCreateObject)) throw;
    throw NamedError(ErrorNumber::CannotCreateObject, progid);
  }
}

// CreateObject(progid[, server])
Variant CreateObjectFunction(Context& context, Args args) {
  const Text progid = Text(RequireText(args[0]));
  return CreateByProgid(context, progid, TextOr(args, 1, {}));
}

// GetObject([path][, progid]): an empty path asks for a new object of the class, a path left out for the
// running one.
Variant GetObjectFunction(Context& context, Args args) {
  const bool hasPath = ArgumentAt(args, 0) != nullptr;
  const Text path = TextOr(args, 0, {});
  const Text progid = TextOr(args, 1, {});
  if (path.IsEmpty() && progid.IsEmpty())
    Raise(hasPath ? ErrorNumber::FileOrClassNotFound : ErrorNumber::InvalidCall);
  if (hasPath && path.IsEmpty()) return CreateByProgid(context, progid, {});
  return RequireObject(context.Host().GetObject(path, progid),
                       hasPath ? ErrorNumber::FileOrClassNotFound : ErrorNumber::CannotCreateObject);
}

// LoadPicture(path)
Variant LoadPictureFunction(Context& context, Args args) {
  return RequireObject(context.Host().LoadPicture(RequireText(args[0])), ErrorNumber::InvalidPicture);
}

const Locale* LocaleByNumber(std::int32_t number) noexcept {
  constexpr std::int32_t kNeutral = 0, kUserDefault = 0x400, kSystemDefault = 0x800;
  if (number == kNeutral || number == kUserDefault || number == kSystemDefault) return &Locale::OfProcess();
  return Locale::Find(number);
}

// By the whole name, or the language alone. An unknown country must not become another country of its
// language: the order of days and months may differ.
const Locale* LocaleByName(std::u16string_view name) noexcept {
  const Locale* found = name.empty() ? nullptr : Locale::Find(name);
  return found && EqualsNoCase(found->name.substr(0, name.size()), name) ? found : nullptr;
}

const Locale* FindLocale(const Variant& value) {
  if (value.IsString() && !IsNumericText(value.StringView())) return LocaleByName(value.StringView());
  return LocaleByNumber(ToLong(value));
}

// GetLocale()
Variant GetLocaleFunction(Context& context, Args) { return std::int32_t{context.locale->lcid}; }

// SetLocale([lcid]): a number or a name, the process's locale where it was left out. Answers the number of
// the locale before; error 447 for an unknown one.
Variant SetLocaleFunction(Context& context, Args args) {
  const Variant* wanted = ArgumentAt(args, 0);
  const Locale* locale = wanted ? FindLocale(DefaultValue(*wanted)) : &Locale::OfProcess();
  if (!locale) Raise(ErrorNumber::LocaleNotSupported);
  const std::int32_t before = context.locale->lcid;
  context.locale = locale;
  Locale::SetCurrent(*locale);  // what the conversions go by
  return before;
}

// The last version of the language, with the build number that most machines had. Scripts compare it with the
// least that they need.
constexpr std::int32_t kMajorVersion = 5, kMinorVersion = 8, kBuildVersion = 16384;

Variant ScriptEngineFunction(Context&, Args) { return u"VBScript"; }

template <std::int32_t Number>
Variant VersionFunction(Context&, Args) {
  return Number;
}

constexpr Builtin kHostFunctions[] = {
    {u"CreateObject", CreateObjectFunction, 1, 2},
    {u"GetLocale", GetLocaleFunction, 0, 0},
    {u"GetObject", GetObjectFunction, 0, 2},
    {u"InputBox", InputBoxFunction, 1, 7},
    {u"LoadPicture", LoadPictureFunction, 1, 1},
    {u"MsgBox", MsgBoxFunction, 1, 5},
    {u"ScriptEngine", ScriptEngineFunction, 0, 0},
    {u"ScriptEngineBuildVersion", VersionFunction<kBuildVersion>, 0, 0},
    {u"ScriptEngineMajorVersion", VersionFunction<kMajorVersion>, 0, 0},
    {u"ScriptEngineMinorVersion", VersionFunction<kMinorVersion>, 0, 0},
    {u"SetLocale", SetLocaleFunction, 0, 1},
};

}  // namespace

std::span<const Builtin> HostFunctions() { return kHostFunctions; }

}  // namespace cardwright::vbscript
