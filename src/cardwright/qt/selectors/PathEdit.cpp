// SPDX-License-Identifier: MIT
#include "cardwright/qt/selectors/PathEdit.h"

#include <QCompleter>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QKeyEvent>
#include <QMimeData>
#include <QUrl>

#include "cardwright/qt/selectors/ChoiceButton.h"

namespace cardwright::qt {

PathEdit::PathEdit(QWidget* parent) : QLineEdit(parent) { setAcceptDrops(true); }

void PathEdit::SetWanted(Wanted wanted) {
  m_Wanted = std::move(wanted);
  if (m_Files) ApplyToFiles();
}

/// The toolkit reads folders in the background, so that a slow disk does not hold up typing.
void PathEdit::PrepareCompletion() {
  if (m_Files) return;
  auto* const completer = new QCompleter(this);
  m_Files = new QFileSystemModel(completer);
  m_Files->setOption(QFileSystemModel::DontWatchForChanges);
  m_Files->setOption(QFileSystemModel::DontUseCustomDirectoryIcons);
  m_Files->setNameFilterDisables(false);
  m_Files->sort(0);
  ApplyToFiles();
  completer->setModel(m_Files);
  completer->setMaxVisibleItems(12);
  setCompleter(completer);
  connect(this, &QLineEdit::textEdited, this, [this](const QString& typed) { ReadFolderOf(typed); });
}

/// The toolkit offers what it has read, and by itself reads nothing.
void PathEdit::ReadFolderOf(const QString& typed) {
  const QString folder = typed.left(typed.lastIndexOf(u'/') + 1);
  if (QDir::isAbsolutePath(folder) && !folder.contains(QChar::Null)) m_Files->setRootPath(folder);
}

void PathEdit::ApplyToFiles() {
  const QDir::Filters kinds = QDir::AllDirs | QDir::Drives | QDir::NoDotAndDotDot;
  m_Files->setFilter(m_Wanted.folders ? kinds : kinds | QDir::Files);
  m_Files->setNameFilters(m_Wanted.folders ? QStringList() : m_Wanted.patterns);
}

void PathEdit::keyPressEvent(QKeyEvent* event) {
  if (IsChoiceKey(*event)) {
    if (onChoose) onChoose();
    return;
  }
  if (!isReadOnly() && !event->text().isEmpty()) PrepareCompletion();
  QLineEdit::keyPressEvent(event);
}

/// Those that are there, of the kind wanted; none where one of them is of another kind.
QStringList PathEdit::WantedPaths(const QMimeData& dropped) const {
  QStringList paths;
  for (const QUrl& url : dropped.urls()) {
    const QString path = url.toLocalFile();
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists() || info.isDir() != m_Wanted.folders) return {};
    paths += QDir::toNativeSeparators(QDir::cleanPath(path));
  }
  return paths.size() > 1 && (m_Wanted.folders || !m_Wanted.several) ? QStringList() : paths;
}

/// Files are for this widget alone: without this their addresses would come in as text.
bool PathEdit::Takes(QDropEvent& event) const {
  if (isLocked || !event.mimeData()->hasUrls()) return false;
  if (WantedPaths(*event.mimeData()).isEmpty()) {
    event.ignore();
    return true;
  }
  // Whatever is proposed, the file stays where it is: a move would have its owner delete it.
  event.setDropAction(event.possibleActions().testFlag(Qt::CopyAction) ? Qt::CopyAction : Qt::LinkAction);
  event.accept();
  return true;
}

void PathEdit::dragEnterEvent(QDragEnterEvent* event) {
  if (isLocked) return event->ignore();
  if (!Takes(*event)) QLineEdit::dragEnterEvent(event);
}

void PathEdit::dragMoveEvent(QDragMoveEvent* event) {
  if (isLocked) return event->ignore();
  if (!Takes(*event)) QLineEdit::dragMoveEvent(event);
}

void PathEdit::dropEvent(QDropEvent* event) {
  if (isLocked) return event->ignore();
  if (!Takes(*event)) return QLineEdit::dropEvent(event);
  const QStringList paths = WantedPaths(*event->mimeData());
  if (!paths.isEmpty() && onDropped) onDropped(paths);
}

}  // namespace cardwright::qt
