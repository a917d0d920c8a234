#pragma once

#include <QCommandLineParser>
#include <initializer_list>
#include <optional>

namespace cardwright::desktop {

/// One option of a command: its name, the word for its value ("" for a plain switch) and what it does.
struct OptionText {
  QString name;
  QString value;
  QString help;
};

/// The words behind a command, read by its description; every command knows --codepage, --locale, --help and
/// --version as well.
class Options {
 public:
  /// `operands` as the help shows them, "FORM" or "FORM…".
  Options(const QString& command, const QString& summary, const QString& operands,
          std::initializer_list<OptionText> options = {});

  /// Reads the words. A status where the run ends here: help or version was asked for, or the words are
  /// wrong, which has been said on standard error.
  std::optional<int> Parse(const QStringList& words, int leastOperands, int mostOperands);

  bool Has(const QString& name) const { return m_Parser.isSet(name); }
  QString Value(const QString& name) const { return m_Parser.value(name); }
  QStringList Operands() const { return m_Parser.positionalArguments(); }
  /// Says what is wrong with the words on standard error; the status to end with.
  int Refuse(const QString& reason) const;

 private:
  QString Help() const;
  bool ApplyRegion();

  QString m_Command;
  QString m_Summary;
  QString m_Operands;
  QCommandLineParser m_Parser;
};

}  // namespace cardwright::desktop
