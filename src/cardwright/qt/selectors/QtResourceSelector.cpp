#include "cardwright/qt/selectors/QtResourceSelector.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QResizeEvent>
#include <utility>

#include "cardwright/qt/dialogs/PathLists.h"
#include "cardwright/qt/selectors/ChoiceButton.h"
#include "cardwright/qt/selectors/GroundColor.h"
#include "cardwright/qt/selectors/PathEdit.h"
#include "cardwright/qt/selectors/SelectorBackground.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/FieldKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kResourceSelector =
    MakeFieldKind(u"ResourceSelector", MouseUse::LeftButton, ClickSource::MouseRelease);

}  // namespace

/// Lays out the field and the button.
class QtResourceSelector::Box final : public Ground {
 public:
  Box(QWidget* parent) : Ground(parent), edit(new PathEdit(this)), button(new ChoiceButton(*this, *edit)) {
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
    : QtWidget(kResourceSelector, place),
      m_Box(new Box(place.parent)),
      m_Edit(m_Box->edit),
      m_Button(m_Box->button) {
  Adopt(*m_Box);
  WatchPart(*m_Edit);
  WatchPart(*m_Button);
  ApplyWishes();
  m_Edit->onChoose = [this] { Choose(); };
  m_Edit->onDropped = [this](const QStringList& paths) { Take(FromQString(JoinPathList(paths))); };
  QObject::connect(m_Edit, &QLineEdit::textChanged, this, [this] { OnTyped(); });
  QObject::connect(m_Button, &QToolButton::clicked, this, [this] { Choose(); });
}

QWidget* QtResourceSelector::Part(std::u16string_view name) const {
  if (!Native()) return nullptr;
  if (EqualsNoCase(name, u"edit")) return m_Edit;
  return EqualsNoCase(name, u"button") ? m_Button : nullptr;
}

bool QtResourceSelector::IsClickedBy(const QWidget& part) const { return m_IsLocked || &part != m_Button; }

void QtResourceSelector::CollectColors(QPalette& own, const QPalette& inherited) const {
  WidgetCore::CollectColors(own, inherited);
  CollectGround(own, inherited, m_BackColorBkg);
}

bool QtResourceSelector::IsLocked() const {
  RequireAlive();
  return m_IsLocked;
}

void QtResourceSelector::SetLocked(bool locked) {
  RequireAlive();
  m_IsLocked = locked;
  ApplyWishes();
}

Text QtResourceSelector::Path() const {
  RequireAlive();
  return m_Path;
}

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

void QtResourceSelector::Choose() {
  if (m_IsLocked) return;
  // Handlers, or whatever runs while the dialog is open, may take the widget away.
  const Ref<Widget> keepAlive(&Self());
  const SurfaceState::Handling handling(*m_Place.state);
  Notify([](WidgetListener& listener) { listener.OnBeforeButtonClick(); });
  if (!Native()) return;
  const auto chosen = ChooseFiles(
      *m_Box, {Mode(), ToQString(m_Title), ToQString(m_Filter), ToQString(m_Path), ToQString(m_StartFolder)});
  if (Native() && chosen) Take(FromQString(*chosen));
  if (Native()) Notify([](WidgetListener& listener) { listener.OnAfterButtonClick(); });
}

FileMode QtResourceSelector::Mode() const {
  if (m_BrowsesForFolder) return FileMode::Folder;
  if (m_ShowsSave) return FileMode::Save;
  return m_TakesSeveral ? FileMode::OpenSeveral : FileMode::Open;
}

void QtResourceSelector::ApplyWishes() {
  m_Edit->setReadOnly(m_IsLocked || !m_IsInputTextEnabled);
  m_Edit->isLocked = m_IsLocked;
  m_Edit->SetWanted({m_BrowsesForFolder, Mode() == FileMode::OpenSeveral, NamePatterns(ToQString(m_Filter))});
  m_Button->setToolTip(m_BrowsesForFolder ? QToolButton::tr("Choose a folder (F4)")
                                          : QToolButton::tr("Choose a file (F4)"));
  m_Button->setAccessibleName(m_BrowsesForFolder ? QToolButton::tr("Choose a folder")
                                                 : QToolButton::tr("Choose a file"));
}

OleColor QtResourceSelector::BackColorBkg() const {
  RequireAlive();
  return m_BackColorBkg;
}

void QtResourceSelector::SetBackColorBkg(OleColor color) {
  RequireAlive();
  m_BackColorBkg = color;
  ApplyColors();
}

bool QtResourceSelector::BrowsesForFolder() const {
  RequireAlive();
  return m_BrowsesForFolder;
}

void QtResourceSelector::SetBrowseForFolder(bool folder) {
  RequireAlive();
  m_BrowsesForFolder = folder;
  ApplyWishes();
}

Text QtResourceSelector::Filter() const {
  RequireAlive();
  return m_Filter;
}

void QtResourceSelector::SetFilter(const Text& filter) {
  RequireAlive();
  m_Filter = filter;
  ApplyWishes();
}

bool QtResourceSelector::IsInputTextEnabled() const {
  RequireAlive();
  return m_IsInputTextEnabled;
}

void QtResourceSelector::SetInputTextEnabled(bool enabled) {
  RequireAlive();
  m_IsInputTextEnabled = enabled;
  ApplyWishes();
}

bool QtResourceSelector::ShowsSave() const {
  RequireAlive();
  return m_ShowsSave;
}

void QtResourceSelector::SetShowSave(bool save) {
  RequireAlive();
  m_ShowsSave = save;
  ApplyWishes();
}

Text QtResourceSelector::Title() const {
  RequireAlive();
  return m_Title;
}

void QtResourceSelector::SetTitle(const Text& title) {
  RequireAlive();
  m_Title = title;
}

bool QtResourceSelector::TakesSeveral() const {
  RequireAlive();
  return m_TakesSeveral;
}

void QtResourceSelector::SetMultiSelect(bool several) {
  RequireAlive();
  m_TakesSeveral = several;
  ApplyWishes();
}

Text QtResourceSelector::StartFolder() const {
  RequireAlive();
  return m_StartFolder;
}

void QtResourceSelector::SetStartFolder(const Text& folder) {
  RequireAlive();
  m_StartFolder = folder;
}

}  // namespace cardwright::qt
