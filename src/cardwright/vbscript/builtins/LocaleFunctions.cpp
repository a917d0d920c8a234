#include "cardwright/vbscript/builtins/LocaleFunctions.h"

#include "cardwright/automation/Errors.h"
#include "cardwright/vbscript/builtins/Arguments.h"

namespace cardwright::vbscript {

namespace {

constexpr std::int32_t kNeutral = 0, kUserDefault = 0x400, kSystemDefault = 0x800;

const Locale* ByNumber(std::int32_t number) noexcept {
  if (number == kNeutral || number == kUserDefault || number == kSystemDefault) return &Locale::OfProcess();
  return Locale::Find(number);
}

// By its whole name or its language alone. A country that the table does not know must not pass for another
// one: the order of days and months may differ.
const Locale* ByName(std::u16string_view name) noexcept {
  const Locale* found = name.empty() ? nullptr : Locale::Find(name);
  return found && EqualsNoCase(found->name.substr(0, name.size()), name) ? found : nullptr;
}

const Locale* FindLocale(const Variant& value) {
  if (value.IsString() && !IsNumericText(value.StringView())) return ByName(value.StringView());
  return ByNumber(ToLong(value));
}

}  // namespace

Variant GetLocaleFunction(Context& context, Args) { return std::int32_t{context.locale->lcid}; }

Variant SetLocaleFunction(Context& context, Args args) {
  const Variant* wanted = ArgumentAt(args, 0);
  const Locale* locale = wanted ? FindLocale(DefaultValue(*wanted)) : &Locale::OfProcess();
  if (!locale) Raise(ErrorNumber::LocaleNotSupported);
  const std::int32_t before = context.locale->lcid;
  context.locale = locale;
  Locale::SetCurrent(*locale);  // what the conversions go by
  return before;
}

}  // namespace cardwright::vbscript
