// SPDX-License-Identifier: MIT
#include "cardwright/qt/dialogs/PathLists.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace cardwright::qt {

namespace {

constexpr QChar kBetween = QChar::Null;
constexpr QChar kQuote = u'"';

QString Quoted(QString name) { return kQuote + name.replace(kQuote, QStringLiteral("\"\"")) + kQuote; }

/// The quoted texts; none where a quote is missing or anything but blanks is between two of them.
QStringList QuotedParts(const QString& shown) {
  QStringList parts;
  qsizetype at = 0;
  while (at < shown.size()) {
    if (shown[at].isSpace()) {
      ++at;
      continue;
    }
    if (shown[at++] != kQuote) return {};
    QString part;
    for (;; ++at) {
      if (at >= shown.size()) return {};
      if (shown[at] != kQuote) {
        part += shown[at];
      } else if (at + 1 < shown.size() && shown[at + 1] == kQuote) {
        part += shown[at++];
      } else {
        break;
      }
    }
    ++at;
    parts += part;
  }
  return parts;
}

/// "*.txt" for each way to write it; "" for what no file dialog takes.
QString PatternOf(QString extension) {
  extension = extension.trimmed();
  if (extension == QStringLiteral("*.*")) return QStringLiteral("*");
  if (extension.isEmpty() || extension.contains(u'(') || extension.contains(u')')) return {};
  if (extension.contains(u'*') || extension.contains(u'?')) return extension;
  return extension.startsWith(u'.') ? u'*' + extension : QStringLiteral("*.") + extension;
}

struct FilterPart {
  QString description;
  QStringList patterns;
};

QList<FilterPart> PartsOf(const QString& filter) {
  QList<FilterPart> parts;
  const QStringList texts = filter.split(u'|');
  for (qsizetype i = 0; i + 1 < texts.size(); i += 2) {
    FilterPart part{texts[i].trimmed(), {}};
    for (const QString& extension : texts[i + 1].split(u';')) {
      const QString pattern = PatternOf(extension);
      if (!pattern.isEmpty()) part.patterns += pattern;
    }
    if (!part.patterns.isEmpty()) parts += part;
  }
  return parts;
}

}  // namespace

QStringList SplitPathList(const QString& list) {
  QStringList parts = list.split(kBetween, Qt::SkipEmptyParts);
  if (parts.size() < 2) return parts;
  const QString folder = parts.takeFirst();
  const QString start = folder.endsWith(u'/') ? folder : folder + u'/';
  for (QString& name : parts)
    if (!QDir::isAbsolutePath(name)) name.prepend(start);
  return parts;
}

QString JoinPathList(const QStringList& files) {
  if (files.size() < 2) return files.value(0);
  const QString folder = QFileInfo(files.front()).path();
  QString list = folder;
  int count = 0;
  for (const QString& file : files) {
    const QFileInfo info(file);
    if (info.path() != folder) continue;
    list += kBetween + info.fileName();
    ++count;
  }
  return count < 2 ? files.front() : list;
}

QString ShownPaths(const QString& list) {
  if (!list.contains(kBetween)) return list;
  const QStringList files = SplitPathList(list);
  if (files.size() < 2) return files.value(0);
  QStringList shown{Quoted(files.front())};
  const QString folder = QFileInfo(files.front()).path();
  for (const QString& file : files.mid(1)) {
    const QFileInfo info(file);
    shown += Quoted(info.path() == folder ? info.fileName() : file);
  }
  return shown.join(u' ');
}

QString TypedPaths(const QString& shown) {
  const QStringList parts = QuotedParts(shown);
  if (parts.size() < 2 || parts.contains(QString())) return shown;
  const QFileInfo first(parts.front());
  QString list = first.path() + kBetween + first.fileName();
  for (const QString& part : parts.mid(1)) list += kBetween + part;
  return list;
}

QStringList NameFilters(const QString& filter) {
  QStringList filters;
  for (const FilterPart& part : PartsOf(filter)) {
    const QString patterns = part.patterns.join(u' ');
    // A description that ends with the extensions in brackets need not say them twice.
    const qsizetype bracket = part.description.endsWith(u')') ? part.description.lastIndexOf(u'(') : -1;
    const QString description = bracket > 0 && part.description.mid(bracket).contains(u'*')
                                    ? part.description.left(bracket).trimmed()
                                    : part.description;
    filters += (description.isEmpty() ? patterns : description) + QStringLiteral(" (") + patterns + u')';
  }
  return filters;
}

QStringList NamePatterns(const QString& filter) {
  QStringList patterns;
  for (const FilterPart& part : PartsOf(filter)) patterns += part.patterns;
  patterns.removeDuplicates();
  return patterns;
}

QString SuffixOf(const QString& nameFilter) {
  const qsizetype start = nameFilter.lastIndexOf(u'(') + 1;
  const QString first = nameFilter.mid(start).section(u' ', 0, 0).remove(u')');
  const QString suffix = first.startsWith(QStringLiteral("*.")) ? first.mid(2) : QString();
  return suffix.contains(u'*') || suffix.contains(u'?') ? QString() : suffix;
}

}  // namespace cardwright::qt
