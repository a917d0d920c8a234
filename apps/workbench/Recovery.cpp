// SPDX-License-Identifier: MIT
#include "workbench/Recovery.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include "workbench/Preferences.h"

namespace cardwright::workbench {
namespace {

// What the preferences hold: the files with unsaved work, and their projects.
const QString kGroup = QStringLiteral("Work");

QString DataFolder() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                         QStringLiteral("/Cardwright/work");
  QDir().mkpath(folder);
  return folder;
}

const QString kLock = QStringLiteral(".lock");
QString LockOf(const QString& file) { return file + kLock; }

// A slash would start a group.
QString KeyOf(const QString& file) {
  return QString::fromLatin1(file.toUtf8().toBase64(QByteArray::Base64UrlEncoding));
}
QString FileOf(const QString& key) {
  return QString::fromUtf8(QByteArray::fromBase64(key.toLatin1(), QByteArray::Base64UrlEncoding));
}

bool IsKept(const QString& file) {
  QLockFile lock(LockOf(file));
  lock.setStaleLockTime(0);
  return !lock.tryLock(0);
}

}  // namespace

QString Recovery::FileFor(const QString& project) {
  if (project.isEmpty()) {
    // Process ids are reused, soon after a restart of the machine, and the work may be older than that.
    static const qint64 began = QDateTime::currentMSecsSinceEpoch();
    return DataFolder() + QStringLiteral("/new-%1-%2.cwf").arg(QCoreApplication::applicationPid()).arg(began);
  }
  const QFileInfo info(project);
  const QString beside =
      info.absolutePath() + QStringLiteral("/.") + info.fileName() + QStringLiteral(".unsaved");
  if (QFileInfo(info.absolutePath()).isWritable()) return beside;
  const QByteArray digest =
      QCryptographicHash::hash(info.absoluteFilePath().toUtf8(), QCryptographicHash::Sha1).toHex();
  return DataFolder() + QLatin1Char('/') + QString::fromLatin1(digest) + QStringLiteral(".cwf");
}

std::vector<LeftWork> Recovery::Left() {
  std::vector<LeftWork> all;
  Preferences preferences;
  preferences.beginGroup(kGroup);
  for (const QString& key : preferences.childKeys()) {
    const LeftWork work{FileOf(key), preferences.value(key).toString(),
                        QFileInfo(FileOf(key)).lastModified()};
    if (!QFileInfo(work.file).isFile()) {
      preferences.remove(key);
    } else if (!IsKept(work.file)) {
      all.push_back(work);
    }
  }
  return all;
}

// Files in the project's folder count even if the preferences do not list them, as after the folder was
// moved.
std::vector<LeftWork> Recovery::LeftOn(const QString& project) {
  const QString path = QFileInfo(project).absoluteFilePath();
  const QFileInfo latest(FileFor(path));
  std::vector<LeftWork> all;
  for (const QFileInfo& work : latest.dir().entryInfoList(QDir::Files | QDir::Hidden, QDir::Name)) {
    const bool isOnIt = work.fileName().startsWith(latest.fileName()) && !work.fileName().endsWith(kLock);
    if (isOnIt && !IsKept(work.filePath())) all.push_back({work.filePath(), path, work.lastModified()});
  }
  return all;
}

void Recovery::Forget(const LeftWork& work) {
  QFile::remove(work.file);
  Preferences preferences;
  preferences.beginGroup(kGroup);
  preferences.remove(KeyOf(work.file));
}

void Recovery::SetAside(const LeftWork& work) {
  if (work.file != FileFor(work.project))
    return;  // it is kept already, or belongs to a program that has ended
  const QString aside = work.file + work.time.toString(QStringLiteral(".yyyyMMdd-HHmmss"));
  if (!QFile::rename(work.file, aside)) return;
  Preferences preferences;
  preferences.beginGroup(kGroup);
  preferences.remove(KeyOf(work.file));
  preferences.setValue(KeyOf(aside), work.project);
}

void Recovery::Keep(const QString& project, const QByteArray& bytes) {
  const QString file = FileFor(project);
  if (file != m_File) Drop();
  if (m_File.isEmpty()) {
    auto lock = std::make_unique<QLockFile>(LockOf(file));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) return;  // another window has the same project open and keeps its own file
    m_Lock = std::move(lock);
    m_File = file;
    Preferences preferences;
    preferences.beginGroup(kGroup);
    preferences.setValue(KeyOf(file), project);
  }
  QSaveFile out(file);
  if (!out.open(QIODevice::WriteOnly)) return;
  out.write(bytes);
  out.commit();
}

void Recovery::Drop() {
  if (m_File.isEmpty()) return;
  Forget({m_File, {}, {}});
  m_File.clear();
  m_Lock = nullptr;
}

}  // namespace cardwright::workbench
