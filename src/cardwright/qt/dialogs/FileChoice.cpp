// SPDX-License-Identifier: MIT
#include "cardwright/qt/dialogs/FileChoice.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include "cardwright/qt/dialogs/PathLists.h"
#include "cardwright/qt/dialogs/RunDialog.h"

namespace cardwright::qt {

namespace {

bool IsFolder(const QString& path) {
  return !path.isEmpty() && !path.contains(QChar::Null) && QFileInfo(path).isDir();
}

struct StartPlace {
  QString folder;  ///< "" for where the dialog was last
  QString name;
};

StartPlace PlaceToStart(const FileQuestion& question) {
  const QString path = SplitPathList(question.path).value(0);
  if (question.mode == FileMode::Folder && IsFolder(path)) return {path, {}};
  const QFileInfo info(path);
  const QString name = question.mode == FileMode::Folder ? QString() : info.fileName();
  if (info.isAbsolute() && IsFolder(info.path())) return {info.path(), name};
  return {IsFolder(question.folder) ? question.folder : QString(), info.isAbsolute() ? QString() : name};
}

QFileDialog::FileMode ModeOf(FileMode mode) {
  switch (mode) {
    case FileMode::Open: return QFileDialog::ExistingFile;
    case FileMode::OpenSeveral: return QFileDialog::ExistingFiles;
    case FileMode::Save: return QFileDialog::AnyFile;
    case FileMode::Folder: break;
  }
  return QFileDialog::Directory;
}

void SetUp(QFileDialog& dialog, const FileQuestion& question) {
  dialog.setFileMode(ModeOf(question.mode));
  dialog.setOption(QFileDialog::ShowDirsOnly, question.mode == FileMode::Folder);
  if (!question.title.isEmpty()) dialog.setWindowTitle(question.title);
  const QStringList filters = NameFilters(question.filter);
  if (!filters.isEmpty() && question.mode != FileMode::Folder) dialog.setNameFilters(filters);
  if (question.mode == FileMode::Save) {
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(SuffixOf(filters.value(0)));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString& filter) { dialog.setDefaultSuffix(SuffixOf(filter)); });
  }
  const StartPlace place = PlaceToStart(question);
  if (!place.folder.isEmpty()) dialog.setDirectory(place.folder);
  if (!place.name.isEmpty()) dialog.selectFile(place.name);
}

}  // namespace

std::optional<QString> ChooseFiles(QWidget& owner, const FileQuestion& question) {
  auto* const dialog = new QFileDialog(owner.window());
  SetUp(*dialog, question);
  QStringList files;
  RunDialog(dialog, owner, [&](const QFileDialog& accepted) { files = accepted.selectedFiles(); });
  if (files.isEmpty()) return std::nullopt;
  for (QString& file : files) file = QDir::toNativeSeparators(file);
  return JoinPathList(files);
}

}  // namespace cardwright::qt
