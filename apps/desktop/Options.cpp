#include "desktop/Options.h"

#include "cardwright/automation/Locale.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/storage/CodePage.h"
#include "desktop/Console.h"

namespace cardwright::desktop {

Options::Options(const QString& command, const QString& summary, const QString& operands,
                 std::initializer_list<OptionText> options)
    : m_Command(command), m_Summary(summary), m_Operands(operands) {
  for (const OptionText& option : options) {
    const QStringList names = option.name.split(u'|');
    m_Parser.addOption(QCommandLineOption(names, option.help, option.value));
  }
  m_Parser.addOption(
      {QStringLiteral("codepage"), QStringLiteral("code page of form projects (windows-1252)"), "NAME"});
  m_Parser.addOption({QStringLiteral("locale"), QStringLiteral("language and country, as in it-IT"), "NAME"});
  m_Parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("this text")});
  m_Parser.addOption(
      {{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("the program's version")});
}

std::optional<int> Options::Parse(const QStringList& words, int leastOperands, int mostOperands) {
  const bool understood = m_Parser.parse(QStringList(QStringLiteral("cardwright")) + words);
  if (Has(QStringLiteral("help"))) {
    PrintLine(Help());
    return kDone;
  }
  if (Has(QStringLiteral("version"))) {
    PrintLine(QStringLiteral("cardwright " CARDWRIGHT_VERSION));
    return kDone;
  }
  if (!understood) return Refuse(m_Parser.errorText());
  if (!ApplyRegion()) return kWrongUse;
  const auto count = Operands().size();
  if (count < leastOperands)
    return Refuse(QStringLiteral("%1 is missing").arg(m_Operands.section(u' ', 0, 0)));
  if (count > mostOperands)
    return Refuse(QStringLiteral("one word too many: %1").arg(Operands().at(mostOperands)));
  return std::nullopt;
}

int Options::Refuse(const QString& reason) const {
  PrintError(QStringLiteral("cardwright %1: %2").arg(m_Command, reason));
  PrintError(QStringLiteral("Try: cardwright %1 --help").arg(m_Command));
  return kWrongUse;
}

QString Options::Help() const {
  // The parser's own help wants an application object; its list of options is all that is taken from it.
  QString text =
      QStringLiteral("Usage: cardwright %1 [options] %2\n%3\n").arg(m_Command, m_Operands, m_Summary);
  const QString own = m_Parser.helpText();
  return text + own.mid(own.indexOf(QStringLiteral("\nOptions:"))).trimmed().prepend(u'\n');
}

bool Options::ApplyRegion() {
  const QString codePage = Value(QStringLiteral("codepage"));
  if (!codePage.isEmpty() && !CodePage::Select(codePage.toStdString())) {
    Refuse(QStringLiteral("unknown code page: %1").arg(codePage));
    return false;
  }
  const QString locale = Value(QStringLiteral("locale"));
  if (locale.isEmpty()) return true;
  const Locale* found = Locale::Find(qt::ViewOf(locale));
  if (!found) {
    Refuse(QStringLiteral("unknown locale: %1").arg(locale));
    return false;
  }
  Locale::SetCurrent(*found);
  return true;
}

}  // namespace cardwright::desktop
