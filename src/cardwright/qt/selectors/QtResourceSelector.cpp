// SPDX-License-Identifier: MIT
#include "cardwright/qt/selectors/QtResourceSelector.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QResizeEvent>
#include <utility>

#include "cardwright/qt/dialogs/PathLists.h"
#include "cardwright/qt/selectors/ChoiceButton.h"
#include "cardwright/qt/selectors/PathEdit.h"
#include "cardwright/qt/selectors/SelectorBackground.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/WidgetKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kResourceSelector =
    MakeFieldKind(u"ResourceSelector", MouseUse::LeftButton, ClickSource::MouseRelease);

}  // namespace

/// Lays out the field and the button.
class QtResourceSelector::Box final : public SelectorBackground {
 public:
  Box(QWidget* parent)
      : SelectorBackground(parent), edit(new PathEdit(this)), button(new ChoiceButton(*this, *edit)) {
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(edit);
  }

  PathEdit* const edit;
  ChoiceButton* const button;

 protected:
  void resizeEvent(QResizeEvent* event) override {
    const int side = std::min(ChoiceButton::WidthFor(event->size().height()), event->size().width());
    const int rest = event->size().width() - side;
    edit->setGeometry(0, 0, rest, event->size().height());
    button->setGeometry(rest, 0, side, event->size().height());
  }
  /// The widget's menu is the field's.
  void contextMenuEvent(QContextMenuEvent* event) override { QCoreApplication::sendEvent(edit, event); }
};

QtResourceSelector::QtResourceSelector(WidgetPlace place)
    : QtButtonSelector(kResourceSelector, place), m_Box(new Box(place.parent)), m_Edit(m_Box->edit) {
  Adopt(*m_Box, *m_Box->edit, *m_Box->button);
  ApplySettings();
  m_Edit->onChoose = [this] { Choose(); };
  m_Edit->onDropped = [this](const QStringList& paths) { Take(FromQString(JoinPathList(paths))); };
  QObject::connect(m_Edit, &QLineEdit::textChanged, this, [this] { OnTyped(); });
}

Text QtResourceSelector::Path() const { return Live(m_Path); }

void QtResourceSelector::SetPath(const Text& path) {
  RequireAlive();
  Take(path);
}

/// A path that somebody chose or set stays as it is, whatever the field can show of it.
void QtResourceSelector::Take(const Text& path) {
  if (path == m_Path) return;
  m_Path = path;
  {
    const QSignalBlocker silence(m_Edit);
    m_Edit->setText(ShownPaths(ToQString(path)));
    m_Edit->setCursorPosition(0);
  }
  NotifyChange();
}

void QtResourceSelector::OnTyped() {
  Text typed = FromQString(TypedPaths(m_Edit->text()));
  if (typed == m_Path) return;
  m_Path = std::move(typed);
  NotifyChange();
}

void QtResourceSelector::RunDialog() {
  const auto chosen = ChooseFiles(
      *m_Box, {Mode(), ToQString(m_Title), ToQString(m_Filter), ToQString(m_Path), ToQString(m_StartFolder)});
  if (Native() && chosen) Take(FromQString(*chosen));
}

FileMode QtResourceSelector::Mode() const {
  if (m_BrowseForFolder) return FileMode::Folder;
  if (m_ShowSave) return FileMode::Save;
  return m_MultiSelect ? FileMode::OpenSeveral : FileMode::Open;
}

void QtResourceSelector::ApplySettings() {
  m_Edit->setReadOnly(m_IsLocked || !m_IsInputTextEnabled);
  m_Edit->isLocked = m_IsLocked;
  m_Edit->SetWanted({m_BrowseForFolder, Mode() == FileMode::OpenSeveral, NamePatterns(ToQString(m_Filter))});
  m_Box->button->setToolTip(m_BrowseForFolder ? QToolButton::tr("Choose a folder (F4)")
                                              : QToolButton::tr("Choose a file (F4)"));
  m_Box->button->setAccessibleName(m_BrowseForFolder ? QToolButton::tr("Choose a folder")
                                                     : QToolButton::tr("Choose a file"));
}

bool QtResourceSelector::BrowseForFolder() const { return Live(m_BrowseForFolder); }

void QtResourceSelector::SetBrowseForFolder(bool folder) {
  Live(m_BrowseForFolder) = folder;
  ApplySettings();
}

Text QtResourceSelector::Filter() const { return Live(m_Filter); }

void QtResourceSelector::SetFilter(const Text& filter) {
  Live(m_Filter) = filter;
  ApplySettings();
}

bool QtResourceSelector::IsInputTextEnabled() const { return Live(m_IsInputTextEnabled); }

void QtResourceSelector::SetInputTextEnabled(bool enabled) {
  Live(m_IsInputTextEnabled) = enabled;
  ApplySettings();
}

bool QtResourceSelector::ShowSave() const { return Live(m_ShowSave); }

void QtResourceSelector::SetShowSave(bool save) {
  Live(m_ShowSave) = save;
  ApplySettings();
}

bool QtResourceSelector::MultiSelect() const { return Live(m_MultiSelect); }

void QtResourceSelector::SetMultiSelect(bool several) {
  Live(m_MultiSelect) = several;
  ApplySettings();
}

Text QtResourceSelector::StartFolder() const { return Live(m_StartFolder); }

void QtResourceSelector::SetStartFolder(const Text& folder) { Live(m_StartFolder) = folder; }

}  // namespace cardwright::qt
