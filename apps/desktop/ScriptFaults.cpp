// SPDX-License-Identifier: MIT
#include "desktop/ScriptFaults.h"

#include <QRegularExpression>

#include "cardwright/model/ControlClasses.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/shared/ScriptText.h"
#include "cardwright/storage/ProjectReader.h"
#include "desktop/ScriptProcedures.h"
#include "launcher/Languages.h"

namespace cardwright::desktop {
namespace {

constexpr std::u16string_view kOptionExplicit = u"option explicit";

class ScriptFaults {
 public:
  ScriptFaults(const QString& file, std::span<const ScriptedElement> elements) : m_Elements(elements) {
    if (const auto project = ProjectReader::Open(qt::FromQString(file))) {
      ProjectScript script = project->Script();
      m_Script = std::move(script.content);
      m_Language = std::move(script.language);
    }
    if (!m_Script.IsEmpty() && !m_Language.IsEmpty()) CheckScript();
  }

  std::vector<Fault> Take() { return std::move(m_Faults); }

 private:
  void Add(const QString& text) { m_Faults.push_back({QStringLiteral("SCRIPT"), text}); }
  void AddAt(int line, const QString& text) { Add(QStringLiteral("line %1: %2").arg(line).arg(text)); }

  void CheckScript() {
    const ScriptLanguages languages = app::Languages();
    const ScriptLanguage* language = languages.Named(m_Language);
    if (!language)
      return Add(QStringLiteral("the language %1 is neither VBScript nor JScript: no script runs")
                     .arg(qt::ToQString(m_Language)));
    CheckNames();
    CheckProgram(*language);
    for (const ScriptProcedure& procedure : ProceduresOf(qt::ToQString(m_Script), qt::ToQString(m_Language)))
      CheckProcedure(procedure);
  }

  // The program declares a variable for each element under its name.
  void CheckNames() {
    static const QRegularExpression basic(QStringLiteral("^[A-Za-z][A-Za-z0-9_]*$"));
    static const QRegularExpression java(QStringLiteral("^[\\p{L}_$][\\p{L}\\p{N}_$]*$"));
    const QRegularExpression& identifier = EqualsNoCase(m_Language, u"JScript") ? java : basic;
    for (const ScriptedElement& element : m_Elements) {
      if (identifier.match(element.userName).hasMatch()) {
        m_Names.push_back(qt::FromQString(element.userName));
      } else {
        Add(QStringLiteral("the user name %1 is no identifier: the script does not start")
                .arg(element.userName));
      }
    }
  }

  void CheckProgram(const ScriptLanguage& language) {
    const ComposedScript composed = ComposeScript(m_Script, m_Language, m_Names);
    ScriptError error = language.check(composed.code);
    if (error.number == 0) error = language.check(composed.mainCode);
    if (error.number == 0) return;
    const int line = error.line - composed.lineOffset;
    const QString text = QStringLiteral("%1 (error %2, column %3)")
                             .arg(qt::ToQString(error.description))
                             .arg(error.number)
                             .arg(error.column + 1);
    if (line < 1) return Add(QStringLiteral("the names of the form's elements: ") + text);
    AddAt(line, text);
    const QString culprit = qt::ToQString(m_Script).section(u'\n', line - 1, line - 1).trimmed();
    if (culprit.startsWith(QStringView(kOptionExplicit), Qt::CaseInsensitive))
      AddAt(line, QStringLiteral("Option Explicit has to be the first line of the script"));
  }

  void CheckProcedure(const ScriptProcedure& procedure) {
    const ScriptedElement* element = nullptr;
    QString event;
    for (const ScriptedElement& one : m_Elements) {
      if (!procedure.name.startsWith(one.userName + u'_', Qt::CaseInsensitive)) continue;
      if (element && element->userName.size() > one.userName.size()) continue;
      element = &one;
      event = procedure.name.mid(one.userName.size() + 1);
    }
    if (!element) return LookForElement(procedure);
    const std::u16string_view* const known = FindEvent(element->events, event);
    if (!known)
      return AddAt(procedure.line, QStringLiteral("%1 has no event %2: %3 is never run by the form")
                                       .arg(element->userName, event, procedure.name));
    if (FindProcedure(m_Script, qt::FromQString(procedure.name), m_Language) == 0)
      AddAt(procedure.line, QStringLiteral("%1 is not found by the form: its line has to begin with \"%2\"")
                                .arg(procedure.name, HeaderOf(procedure.name)));
    CheckSpelling(procedure, element->userName + u'_' + qt::ToQString(*known));
  }

  // The form finds procedures in any case, but a language that distinguishes cases does not.
  void CheckSpelling(const ScriptProcedure& procedure, const QString& called) {
    if (EqualsNoCase(m_Language, u"JScript") && procedure.name != called)
      AddAt(procedure.line,
            QStringLiteral("%1 fails as an event procedure: JScript tells cases apart, and the form calls %2")
                .arg(procedure.name, called));
  }

  // A procedure may have any name, but one that is named like an event was probably meant as one.
  void LookForElement(const ScriptProcedure& procedure) {
    const qsizetype line = procedure.name.lastIndexOf(u'_');
    if (line <= 0) return;
    const QString event = procedure.name.mid(line + 1);
    for (const ClassTable* one : ControlClasses())
      if (FindEvent(one->events, event))
        return AddAt(procedure.line, QStringLiteral("the form has no element %1: %2 is never run by the form")
                                         .arg(procedure.name.first(line), procedure.name));
  }

  /// Null if there is no such event.
  static const std::u16string_view* FindEvent(std::span<const std::u16string_view> events,
                                              const QString& name) {
    const auto event = std::find_if(events.begin(), events.end(), [&](std::u16string_view one) {
      return EqualsNoCase(one, qt::ViewOf(name));
    });
    return event == events.end() ? nullptr : &*event;
  }
  QString HeaderOf(const QString& name) const {
    return qt::ToQString(BuildProcedureHeader(qt::ViewOf(name), m_Language)).trimmed();
  }

  std::span<const ScriptedElement> m_Elements;
  std::vector<Fault> m_Faults;
  Text m_Script, m_Language;
  std::vector<Text> m_Names;
};

}  // namespace

std::vector<Fault> FindScriptFaults(const QString& file, std::span<const ScriptedElement> elements) {
  return ScriptFaults(file, elements).Take();
}

}  // namespace cardwright::desktop
