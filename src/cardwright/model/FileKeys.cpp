#include "cardwright/model/FileKeys.h"

#include "cardwright/model/CItems.h"

namespace cardwright {
namespace {

// What stands under the key, or the fallback for a missing key; an empty value reads as Empty. Fallbacks are
// made only when they are needed: most keys of a project are there.
template <class Fallback>
Variant ReadValue(const CIni& ini, const Text& section, std::u16string_view key, Fallback&& fallback) {
  if (auto found = ini.Find(section, key)) return *found;
  return ini.GetValue(section, key, fallback());
}

void ReadFont(TableControl& control, const CIni& ini, const Text& section) {
  if (auto font = control.GetFont()) font->Assign(ReadFontKeys(font->Values(), ini, section));
}

void WriteFont(const TableControl& control, CIni& ini, const Text& section) {
  if (auto font = control.GetFont()) WriteFontKeys(font->Values(), ini, section);
}

CItems* ItemsOf(const TableControl& control, const FileKey& key) {
  const Variant held = key.field.get(control);
  return held.IsObject() ? dynamic_cast<CItems*>(held.ObjectPtr()) : nullptr;
}

}  // namespace

void ReadKey(TableControl& control, const FileKey& key, const CIni& ini, const Text& section) {
  if (key.form == KeyForm::Font) return ReadFont(control, ini, section);
  if (!key.field.set) return;
  const Variant stored = ReadValue(
      ini, section, key.name, [&] { return key.fallback ? Variant(key.fallback) : key.field.get(control); });
  switch (key.form) {
    case KeyForm::Number: return key.field.set(control, Variant(Val(ToText(stored))));
    case KeyForm::Color: return key.field.set(control, Variant(ToLong(stored)));
    default: return key.field.set(control, Variant(ToText(stored)));
  }
}

void WriteKey(const TableControl& control, const FileKey& key, CIni& ini, const Text& section) {
  switch (key.form) {
    case KeyForm::Font: return WriteFont(control, ini, section);
    case KeyForm::Items:
      if (const CItems* items = ItemsOf(control, key)) items->Save(ini, section);
      return;
    default: return ini.WriteValue(section, key.name, key.field.get(control));
  }
}

FontValues ReadFontKeys(const FontValues& current, const CIni& ini, const Text& section) {
  FontValues font = current;
  auto read = [&](std::u16string_view key, auto& member, auto convert) {
    Attempt([&] { member = convert(ReadValue(ini, section, key, [&] { return Variant(member); })); });
  };
  read(u"FontName", font.name, [](const Variant& value) { return ToText(value); });
  read(u"FontSize", font.size, [](const Variant& value) { return ToFontSize(Val(ToText(value))); });
  read(u"FontBold", font.bold, ToBoolean);
  read(u"FontItalic", font.italic, ToBoolean);
  read(u"FontUnderline", font.underline, ToBoolean);
  read(u"FontStrikethrough", font.strikethrough, ToBoolean);
  return font;
}

void WriteFontKeys(const FontValues& font, CIni& ini, const Text& section) {
  auto flag = [](bool value) { return Variant(std::int32_t{value}); };
  ini.WriteValue(section, u"FontName", font.name);
  ini.WriteValue(section, u"FontSize", font.size);
  ini.WriteValue(section, u"FontBold", flag(font.bold));
  ini.WriteValue(section, u"FontItalic", flag(font.italic));
  ini.WriteValue(section, u"FontUnderline", flag(font.underline));
  ini.WriteValue(section, u"FontStrikethrough", flag(font.strikethrough));
}

}  // namespace cardwright
