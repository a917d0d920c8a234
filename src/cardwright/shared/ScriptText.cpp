// SPDX-License-Identifier: MIT
#include "cardwright/shared/ScriptText.h"

namespace cardwright {
namespace {

constexpr std::u16string_view kLineEnd = u"\r\n";
constexpr std::u16string_view kIndent = u"    ";
constexpr std::u16string_view kOptionExplicit = u"option explicit\r\n";

enum class ScriptKind { Unknown, VBScript, JScript };

ScriptKind KindOf(std::u16string_view language) {
  if (EqualsNoCase(language, u"vbscript")) return ScriptKind::VBScript;
  if (EqualsNoCase(language, u"jscript")) return ScriptKind::JScript;
  return ScriptKind::Unknown;
}

void AppendParts(Text& text, std::initializer_list<std::u16string_view> parts) {
  for (const std::u16string_view part : parts) text += part;
}

void ComposeVBScript(std::span<const Text> userNames, Text& declarations, Text& mainCode) {
  AppendParts(mainCode, {kLineEnd, u"Sub Main()", kLineEnd, kIndent, kLineEnd});
  for (const Text& name : userNames) {
    AppendParts(declarations, {u"Dim ", name, kLineEnd});
    AppendParts(mainCode, {kIndent, u"Set ", name, u" = Controls(\"", name, u"\")", kLineEnd});
  }
  AppendParts(mainCode, {kIndent, kLineEnd, u"End Sub", kLineEnd});
}

void ComposeJScript(std::span<const Text> userNames, Text& declarations, Text& mainCode) {
  AppendParts(mainCode, {kLineEnd, u"function Main(){", kLineEnd});
  for (const Text& name : userNames) {
    AppendParts(declarations, {u"var ", name, u";", kLineEnd});
    AppendParts(mainCode, {kIndent, name, u" = Controls(\"", name, u"\");", kLineEnd});
  }
  AppendParts(mainCode, {u"}", kLineEnd});
}

}  // namespace

Text BuildEventName(std::u16string_view name, std::u16string_view event) {
  if (name.empty()) return event;
  Text result(name);
  AppendParts(result, {u"_", event});
  return result;
}

Text BuildProcedureHeader(std::u16string_view name, std::u16string_view language) {
  if (name.empty()) return {};
  Text header(kLineEnd);
  switch (KindOf(language)) {
    case ScriptKind::VBScript: AppendParts(header, {u"Sub ", name, u"("}); break;
    case ScriptKind::JScript: AppendParts(header, {u"function ", name, u"("}); break;
    case ScriptKind::Unknown: break;
  }
  return header;
}

std::size_t FindProcedure(std::u16string_view script, std::u16string_view name,
                          std::u16string_view language) {
  if (script.empty() || name.empty() || KindOf(language) == ScriptKind::Unknown) return 0;
  const Text header = BuildProcedureHeader(name, language);
  const std::size_t at = FindNoCase(script, header);
  if (at != script.npos) return at + 1;
  const std::u16string_view firstLine = header.View().substr(kLineEnd.size());
  return EqualsNoCase(script.substr(0, firstLine.size()), firstLine) ? 1 : 0;
}

bool ProcedureCache::Has(const Text& script, const Text& name, const Text& language) {
  if (m_Script != script || m_Language != language) {
    m_Script = script;
    m_Language = language;
    m_Answers.clear();
  }
  const auto [answer, isNew] = m_Answers.try_emplace(name, false);
  if (isNew) answer->second = FindProcedure(script, name, language) != 0;
  return answer->second;
}

ComposedScript ComposeScript(std::u16string_view script, std::u16string_view language,
                             std::span<const Text> userNames) {
  ComposedScript composed;
  // Declarations must not precede the statement that requires them.
  if (EqualsNoCase(script.substr(0, kOptionExplicit.size()), kOptionExplicit)) {
    composed.code = script.substr(0, kOptionExplicit.size());
    script.remove_prefix(kOptionExplicit.size());
  }
  switch (KindOf(language)) {
    case ScriptKind::VBScript:
      ComposeVBScript(userNames, composed.code, composed.mainCode);
      composed.lineOffset = static_cast<int>(userNames.size());
      break;
    case ScriptKind::JScript:
      ComposeJScript(userNames, composed.code, composed.mainCode);
      composed.lineOffset = static_cast<int>(userNames.size());
      break;
    case ScriptKind::Unknown: break;
  }
  composed.code += script;
  return composed;
}

}  // namespace cardwright
