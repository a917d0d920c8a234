// SPDX-License-Identifier: MIT
#include "cardwright/model/FileKeys.h"

#include "cardwright/model/CItems.h"
#include "cardwright/storage/ProjectWriter.h"

namespace cardwright {
namespace {

// The value of the key, or the fallback for a missing key; an empty value reads as Empty. Fallbacks are
// made only when they are needed: most keys of a project are there.
template <class Fallback>
Variant ReadValue(const SectionReader& section, std::u16string_view key, Fallback&& fallback) {
  if (auto found = section.Find(key)) return *found;
  return section.GetValue(key, fallback());
}

void ReadFont(TableControl& control, const SectionReader& section) {
  if (auto font = control.GetFont()) font->Assign(ReadFontKeys(font->Values(), section));
}

void WriteFont(const TableControl& control, SectionWriter& section) {
  if (auto font = control.GetFont()) WriteFontKeys(font->Values(), section);
}

CItems* ItemsOf(const TableControl& control, const FileKey& key) {
  const Variant held = key.field.get(control);
  return held.IsObject() ? dynamic_cast<CItems*>(held.ObjectPtr()) : nullptr;
}

}  // namespace

void ReadKey(TableControl& control, const FileKey& key, const SectionReader& section) {
  if (key.form == KeyForm::Font) return ReadFont(control, section);
  if (!key.field.set) return;
  const Variant stored = ReadValue(
      section, key.name, [&] { return key.fallback ? Variant(key.fallback) : key.field.get(control); });
  switch (key.form) {
    case KeyForm::Number: return key.field.set(control, Variant(Val(ToText(stored))));
    case KeyForm::Color: return key.field.set(control, Variant(ToLong(stored)));
    default: return key.field.set(control, Variant(ToText(stored)));
  }
}

void WriteKey(const TableControl& control, const FileKey& key, SectionWriter& section) {
  switch (key.form) {
    case KeyForm::Font: return WriteFont(control, section);
    case KeyForm::Items:
      if (const CItems* items = ItemsOf(control, key)) items->Save(section);
      return;
    default: return section.Write(key.name, key.field.get(control));
  }
}

FontValues ReadFontKeys(const FontValues& current, const SectionReader& section) {
  FontValues font = current;
  auto read = [&](std::u16string_view key, auto& member, auto convert) {
    BestEffort([&] { member = convert(ReadValue(section, key, [&] { return Variant(member); })); });
  };
  read(u"FontName", font.name, [](const Variant& value) { return ToText(value); });
  read(u"FontSize", font.size, [](const Variant& value) { return ToFontSize(Val(ToText(value))); });
  read(u"FontBold", font.bold, ToBoolean);
  read(u"FontItalic", font.italic, ToBoolean);
  read(u"FontUnderline", font.underline, ToBoolean);
  read(u"FontStrikethrough", font.strikethrough, ToBoolean);
  return font;
}

void WriteFontKeys(const FontValues& font, SectionWriter& section) {
  auto flag = [](bool value) { return Variant(std::int32_t{value}); };
  section.Write(u"FontName", font.name);
  section.Write(u"FontSize", font.size);
  section.Write(u"FontBold", flag(font.bold));
  section.Write(u"FontItalic", flag(font.italic));
  section.Write(u"FontUnderline", flag(font.underline));
  section.Write(u"FontStrikethrough", flag(font.strikethrough));
}

}  // namespace cardwright
