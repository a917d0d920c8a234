// SPDX-License-Identifier: MIT
// Opening and saving projects, with the questions to the user.

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

#include "cardwright/storage/CodePage.h"
#include "workbench/Recent.h"
#include "workbench/Workbench.h"
#include "workbench/grid/PropertyGrid.h"

namespace cardwright::workbench {
namespace {

const Recent kRecentProjects(QStringLiteral("Recent"));
const QString kSuffix = QStringLiteral(".cwf");

QString ProjectFilter() { return Workbench::tr("Form projects (*.cwf);;All files (*)"); }

}  // namespace

bool Workbench::OpenProject(const QString& path) {
  for (const LeftWork& work : Recovery::LeftOn(path))
    if (Offer(work)) return true;
  QString failure = m_Document->Open(path);
  if (!failure.isEmpty()) {
    if (!QFileInfo::exists(path) && kRecentProjects.Remove(QFileInfo(path).absoluteFilePath()))
      failure += QLatin1Char('\n') + tr("It is no longer among the recent ones.");
    QMessageBox::warning(this, tr("Open"), failure);
    return false;
  }
  NoteOpened();
  return true;
}

void Workbench::NoteOpened() {
  if (QFileInfo::exists(m_Document->Path())) kRecentProjects.Add(m_Document->Path());
  if (!m_Document->Notice().isEmpty()) QMessageBox::information(this, tr("Open"), m_Document->Notice());
}

void Workbench::NewProject() {
  if (MayLeave()) m_Document->New();
}

void Workbench::ChooseProject() {
  if (!MayLeave()) return;
  const QString path =
      QFileDialog::getOpenFileName(this, tr("Open a form project"), Folder(), ProjectFilter());
  if (!path.isEmpty()) OpenProject(path);
}

bool Workbench::Save() {
  m_Grid->FinishEditing();
  return m_Document->Path().isEmpty() ? SaveAs() : SaveTo(m_Document->Path());
}

bool Workbench::SaveAs() {
  m_Grid->FinishEditing();
  QString start = m_Document->Path();
  if (start.isEmpty()) start = QDir(Folder()).filePath(tr("form") + kSuffix);
  QFileDialog dialog(this, tr("Save the form project"), start, ProjectFilter());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(kSuffix);
  dialog.selectFile(QFileInfo(start).fileName());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
  return SaveTo(dialog.selectedFiles().first());
}

bool Workbench::SaveTo(const QString& path) {
  const QString failure = m_Document->Save(path);
  if (!failure.isEmpty()) {
    QMessageBox::warning(this, tr("Save"), failure);
    return false;
  }
  kRecentProjects.Add(m_Document->Path());
  const Text& script = m_Document->GetScript().content;
  const auto lost = CodePage::Current().FirstLost(script);
  if (lost) {
    ShowMessage(tr("Saved, but the code page of form projects has no “%1”: the script holds “?” in its place")
                    .arg(QChar(script[*lost])));
  } else {
    ShowMessage(tr("Saved %1").arg(QDir::toNativeSeparators(m_Document->Path())));
  }
  return true;
}

bool Workbench::MayLeave() {
  m_Grid->FinishEditing();
  m_Document->RecordNow();
  if (!m_Document->IsModified()) return true;
  const QString name =
      m_Document->Path().isEmpty() ? tr("the new form") : QFileInfo(m_Document->Path()).fileName();
  QMessageBox box(QMessageBox::Question, tr("Unsaved changes"), tr("Save the changes to %1?").arg(name),
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
  box.setDefaultButton(QMessageBox::Save);
  // Not every desktop assigns mnemonics to them.
  box.button(QMessageBox::Save)->setText(tr("&Save"));
  box.button(QMessageBox::Discard)->setText(tr("&Discard"));
  box.button(QMessageBox::Cancel)->setText(tr("&Cancel"));
  const int answer = box.exec();
  if (answer == QMessageBox::Save) return Save();
  return answer == QMessageBox::Discard;
}

void Workbench::FillRecentMenu(QMenu& menu) {
  kRecentProjects.Fill(menu, [this](const QString& path) {
    if (MayLeave()) OpenProject(path);
  });
}

bool Workbench::OfferLeftWork() {
  bool isTaken = false;
  for (const LeftWork& work : Recovery::Left())
    if (!isTaken) isTaken = Offer(work);
  return isTaken;
}

bool Workbench::Offer(const LeftWork& work) {
  const QString name = work.project.isEmpty() ? tr("a new form") : QFileInfo(work.project).fileName();
  QMessageBox box(QMessageBox::Question, tr("Unsaved work"),
                  tr("The program ended unexpectedly while %1 was not saved.\n"
                     "Its work of %2 is still there.")
                      .arg(name, QLocale().toString(work.time, QLocale::ShortFormat)),
                  QMessageBox::NoButton, this);
  QPushButton* take = box.addButton(tr("&Restore it"), QMessageBox::AcceptRole);
  QPushButton* discard = box.addButton(tr("&Discard it"), QMessageBox::DestructiveRole);
  box.addButton(tr("Ask &later"), QMessageBox::RejectRole);
  box.setDefaultButton(take);
  box.exec();
  if (box.clickedButton() == discard) {
    Recovery::Forget(work);
    return false;
  }
  if (box.clickedButton() != take) {
    Recovery::SetAside(work);
    return false;
  }
  const QString failure = m_Document->OpenUnsaved(work.file, work.project);
  if (!failure.isEmpty()) {
    QMessageBox::warning(this, tr("Unsaved work"), failure);
    return false;
  }
  // From now on this window keeps the work; the old file is removed once there is a copy.
  for (const LeftWork& other : Recovery::LeftOn(work.project))
    if (other.file != work.file) Recovery::SetAside(other);
  KeepWork();
  if (Recovery::FileFor(work.project) != work.file) Recovery::Forget(work);
  NoteOpened();
  return true;
}

// A form without controls has no project file, so there is nothing to keep.
void Workbench::KeepWork() {
  if (m_Run) return m_KeepSoon.start();
  const QByteArray bytes = m_Document->Bytes();
  if (m_Document->IsModified() && !bytes.isEmpty()) m_Recovery.Keep(m_Document->Path(), bytes);
}

}  // namespace cardwright::workbench
