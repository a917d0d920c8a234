// SPDX-License-Identifier: MIT
#include "desktop/ScriptProcedures.h"

#include <QRegularExpression>
#include <QStringList>

namespace cardwright::desktop {

std::vector<ScriptProcedure> ProceduresOf(const QString& script, const QString& language) {
  static const QRegularExpression basic(
      QStringLiteral(
          "^\\s*(?:(?:public|private)\\s+)?(?:default\\s+)?(?:sub|function)\\s+(\\w+|\\[[^\\]]*\\])"),
      QRegularExpression::CaseInsensitiveOption);
  static const QRegularExpression java(QStringLiteral("^\\s*function\\s+([\\w$]+)"),
                                       QRegularExpression::UseUnicodePropertiesOption);
  const bool isJava = language.compare(u"jscript", Qt::CaseInsensitive) == 0;
  std::vector<ScriptProcedure> procedures;
  int number = 0;
  for (const QString& line : script.split(u'\n')) {
    ++number;
    const auto match = (isJava ? java : basic).match(line);
    if (match.hasMatch()) procedures.push_back({match.captured(1), number});
  }
  return procedures;
}

}  // namespace cardwright::desktop
