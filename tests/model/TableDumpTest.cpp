// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include "automation/Printing.h"
#include "cardwright/model/CForm.h"
#include "cardwright/model/ControlClasses.h"
#include "cardwright/shared/Messages.h"

namespace cardwright {
namespace {

std::string Utf8(std::u16string_view text) { return Text(text).ToUtf8(); }

std::string_view NameOf(PropertyTypeEnum type) {
  static constexpr std::string_view kNames[] = {
      "ptNone",    "ptString",    "ptColor",      "ptInteger",  "ptFloat",           "ptFont",
      "ptBoolean", "ptAttribute", "ptCollection", "ptThemes",   "ptFeatureType",     "ptFileName",
      "ptImage",   "ptName",      "ptList",       "ptControls", "ptConnectionString"};
  return kNames[static_cast<int>(type) + 1];
}

std::string_view NameOf(KeyForm form) {
  switch (form) {
    case KeyForm::Text: return "text";
    case KeyForm::Number: return "number";
    case KeyForm::Color: return "colour";
    case KeyForm::Font: return "font, six keys";
    case KeyForm::Items: return "items, two keys each";
  }
  return "";
}

// A message on one line: a line break is shown as "\n".
std::string Message(int id) {
  std::string text = Utf8(Replace(GetMessage(id), u"\r\n", u"\\n"));
  return std::to_string(id) + " \"" + text + "\"";
}

void WriteRow(std::ostream& out, std::size_t number, const PropertyRow& row) {
  out << "  " << number << " " << Utf8(row.name) << " " << NameOf(row.type);
  if (row.description) out << " " << Message(row.description);
  if (!row.field.set) out << " [read only]";
  for (std::size_t i = 0; i < row.choices.size(); ++i)
    out << (i == 0 ? " choices: " : ", ") << Utf8(row.choices[i]);
  if (row.filter) out << " filter: " << Message(row.filter);
  if (row.argument) out << " with " << Message(row.argument);
  if (const ClassTable* linked = FindControlClass(row.links)) out << " links: " << Utf8(linked->className);
  out << "\n";
}

void WriteKey(std::ostream& out, const FileKey& key) {
  out << "  " << Utf8(key.name) << ", " << NameOf(key.form);
  if (key.fallback) out << ", default \"" << Utf8(key.fallback) << "\"";
  if (!key.field.set && key.form != KeyForm::Font) out << ", read last by the class";
  out << "\n";
}

void WriteDesign(std::ostream& out, const DesignTraits& design) {
  static constexpr const char* kColors[] = {"none", "back", "back and fore"};
  out << "design\n  identifier " << Utf8(design.identifier) << "\n  called " << design.displayName << ", "
      << design.defaultWidth << " x " << design.defaultHeight << "\n";
  if (design.captionPrefix) out << "  caption " << Utf8(design.captionPrefix) << " and a number\n";
  out << "  colours of the surface: " << kColors[static_cast<int>(design.surfaceColors)] << "\n";
  out << "  minimum height drawn " << design.minimumDrawnHeight << ", dragged " << design.minimumDraggedHeight
      << "\n";
  if (design.hasFixedHeight) out << "  fixed height\n";
  if (!design.hasWindow) out << "  no window\n";
  if (design.isContainer) out << "  container\n";
  if (!design.refreshesWhenNew) out << "  no refresh when new\n";
}

void WriteValue(std::ostream& out, const ValueTraits& value) {
  out << "value\n  row \"" << Utf8(value.row) << "\", required \"" << Utf8(value.requiredRow) << "\"\n";
  if (value.followsOthers) out << "  follows others\n";
}

std::string Dump(const ClassTable& table) {
  std::ostringstream out;
  out << "class " << Utf8(table.className) << "\n";
  out << "identifier " << Utf8(table.widgetIdentifier) << "\n";
  out << "type " << Utf8(table.typeText) << "\n";
  out << "number " << static_cast<int>(table.type) << "\n";
  if (table.create) WriteDesign(out, table.design);
  if (table.create) WriteValue(out, table.value);
  out << "rows\n";
  for (std::size_t i = 0; i < table.rows.size(); ++i) WriteRow(out, i, table.rows[i]);
  out << "hidden rows \"" << Utf8(table.hiddenNames) << "\"\n";
  for (std::size_t i = 0; i < table.hidden.size(); ++i) WriteRow(out, table.rows.size() + i, table.hidden[i]);
  out << "file keys\n";
  for (const FileKey& key : table.keys) WriteKey(out, key);
  out << "events\n";
  for (std::u16string_view event : table.events) out << "  " << Utf8(event) << "\n";
  return out.str();
}

std::vector<const ClassTable*> AllTables() {
  std::vector<const ClassTable*> tables = {&CForm::kTable};
  for (const ClassTable* entry : ControlClasses()) tables.push_back(entry);
  return tables;
}

}  // namespace

class EveryClassTable : public testing::TestWithParam<const ClassTable*> {};
INSTANTIATE_TEST_SUITE_P(, EveryClassTable, testing::ValuesIn(AllTables()),
                         [](const auto& test) { return Utf8(test.param->className); });

// CARDWRIGHT_PROMOTE=1 rewrites the golden files: review the difference before you commit it.
TEST_P(EveryClassTable, MatchesItsGoldenFile) {
  const ClassTable& table = *GetParam();
  const std::string path = CARDWRIGHT_SOURCE_DIR "/tests/model/golden/" + Utf8(table.className) + ".txt";
  const std::string dump = Dump(table);
  if (std::getenv("CARDWRIGHT_PROMOTE")) std::ofstream(path, std::ios::binary) << dump;
  std::ifstream golden(path, std::ios::binary);
  ASSERT_TRUE(golden) << path << " is missing; CARDWRIGHT_PROMOTE=1 writes it";
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(golden), {}), dump);
}

TEST_P(EveryClassTable, HasADescriptionForEveryRowOfTheGrid) {
  for (const PropertyRow& row : GetParam()->rows) {
    EXPECT_GT(row.description, 0) << Utf8(row.name);
    EXPECT_NE(row.type, PropertyTypeEnum::ptNone) << Utf8(row.name);
  }
}

}  // namespace cardwright
