// SPDX-License-Identifier: MIT
#include "cardwright/robot/dialogs/DialogResponder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include "cardwright/platform/Desktop.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/robot/input/Keyboard.h"
#include "cardwright/robot/widgets/WidgetPart.h"

namespace cardwright::robot {
namespace {

QMessageBox::StandardButton ButtonNumbered(int number) {
  constexpr QMessageBox::StandardButton kButtons[] = {
      QMessageBox::NoButton, QMessageBox::Ok,     QMessageBox::Cancel, QMessageBox::Abort,
      QMessageBox::Retry,    QMessageBox::Ignore, QMessageBox::Yes,    QMessageBox::No};
  return number > 0 && number < static_cast<int>(std::size(kButtons)) ? kButtons[number]
                                                                      : QMessageBox::NoButton;
}

/// Without the shortcut after the tab.
QString CaptionOf(const QAction& item) { return item.text().section(u'\t', 0, 0); }

Text ItemText(const QAction& item) {
  if (item.isSeparator()) return u"-";
  const Text text = qt::FromQString(item.objectName() + u'=' + CaptionOf(item));
  return item.isEnabled() ? text : u"!" + text;
}

Text ItemsText(const QMenu& menu) {
  Text items;
  for (const QAction* item : menu.actions()) {
    if (!item->isVisible()) continue;
    if (!items.IsEmpty()) items += u";";
    items += ItemText(*item);
  }
  return items;
}

/// Items without a name, such as those of the toolkit's own menus, are found by their caption. Null where a
/// user could not choose the item.
QAction* ItemNamed(const QMenu& menu, std::u16string_view name) {
  for (QAction* item : menu.actions()) {
    const QString known = item->objectName().isEmpty() ? CaptionOf(*item).remove(u'&') : item->objectName();
    const bool isMeant = !name.empty() && EqualsNoCase(qt::ViewOf(known), name);
    if (isMeant && item->isVisible() && item->isEnabled()) return item;
  }
  return nullptr;
}

/// Several files are given as their folder and their names, separated by NUL, as forms keep them. They are
/// typed as a user would type them, each in quotes.
void PutPaths(QFileDialog& dialog, const QString& path) {
  QStringList parts = path.split(QChar::Null);
  auto* const line = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (parts.size() < 3 || !line) return dialog.selectFile(parts.join(u'/'));
  dialog.setDirectory(parts.takeFirst());
  line->setText(u'"' + parts.join(QStringLiteral("\" \"")) + u'"');
}

}  // namespace

DialogResponder::DialogResponder(Mouse& mouse) : m_Mouse(mouse) {
  // Native dialogs are no widgets, so they could not be answered.
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  qApp->installEventFilter(this);
}

bool DialogResponder::eventFilter(QObject* target, QEvent* event) {
  if (event->type() == QEvent::Show && target->isWidgetType()) OnShown(static_cast<QWidget&>(*target));
  return false;
}

void DialogResponder::OnShown(QWidget& widget) {
  if (auto* box = qobject_cast<QMessageBox*>(&widget)) return AnswerLater(*box, &DialogResponder::AnswerBox);
  if (auto* input = qobject_cast<QInputDialog*>(&widget))
    return AnswerLater(*input, &DialogResponder::AnswerInput);
  if (auto* file = qobject_cast<QFileDialog*>(&widget))
    return AnswerLater(*file, &DialogResponder::AnswerFile);
  if (auto* color = qobject_cast<QColorDialog*>(&widget))
    return AnswerLater(*color, &DialogResponder::AnswerColor);
  if (auto* font = qobject_cast<QFontDialog*>(&widget))
    return AnswerLater(*font, &DialogResponder::AnswerFont);
  if (auto* dialog = qobject_cast<QDialog*>(&widget); dialog && dialog->isModal())
    return AnswerLater(*dialog, &DialogResponder::AnswerDialog);
  if (auto* menu = qobject_cast<QMenu*>(&widget)) AnswerLater(*menu, &DialogResponder::AnswerMenu);
}

template <class Shown>
void DialogResponder::AnswerLater(Shown& shown, void (DialogResponder::*answer)(Shown&)) {
  QTimer::singleShot(0, this, [this, answer, shown = QPointer<Shown>(&shown)] {
    m_Mouse.FinishGesture();
    if (shown && shown->isVisible()) (this->*answer)(*shown);
  });
}

void DialogResponder::AnswerBox(QMessageBox& box) {
  QAbstractButton* wanted = nullptr;
  if (const auto number = TakeNext(m_Answers.boxes)) wanted = box.button(ButtonNumbered(*number));
  if (!wanted) wanted = box.defaultButton();
  if (!wanted) return box.reject();
  m_Mouse.Click(*wanted, wanted->rect().center());
}

void DialogResponder::AnswerInput(QInputDialog& dialog) {
  PressKey(dialog, ParseStroke(TakeNext(m_Answers.boxes) == BoxAnswer::Cancel ? u"Esc" : u"Enter"));
}

void DialogResponder::AnswerFile(QFileDialog& dialog) {
  const Text path = TakeNext(m_Answers.files).value_or(Text());
  if (path.IsEmpty()) return dialog.reject();
  PutPaths(dialog, qt::ToQString(path));
  const QPointer<QFileDialog> open = &dialog;
  PressKey(dialog, ParseStroke(u"Enter"));
  // For a missing file, or one that must not be overwritten, the dialog has shown a message and is still
  // open.
  if (open && open->isVisible()) open->reject();
}

void DialogResponder::AnswerColor(QColorDialog& dialog) {
  const int color = TakeNext(m_Answers.colors).value_or(-1);
  if (color == -1) return dialog.reject();
  dialog.setCurrentColor(qt::ToQColor(color, QApplication::palette()));
  dialog.accept();
}

void DialogResponder::AnswerFont(QFontDialog& dialog) {
  const FontAnswer font = TakeNext(m_Answers.fonts).value_or(FontAnswer());
  if (font.name.IsEmpty()) return dialog.reject();
  QFont chosen = dialog.currentFont();
  chosen.setFamily(qt::ToQString(font.name));
  chosen.setPointSizeF(font.size);
  dialog.setCurrentFont(chosen);
  dialog.accept();
}

void DialogResponder::SetProcedure(const Text& dialog, Ref<Object> procedure) {
  std::erase_if(m_Procedures, [&](const auto& known) { return EqualsNoCase(known.first, dialog); });
  if (procedure) m_Procedures.emplace_back(dialog, std::move(procedure));
}

Ref<Object> DialogResponder::ProcedureFor(std::u16string_view dialog) const {
  for (const auto& [name, procedure] : m_Procedures)
    if (EqualsNoCase(name, dialog)) return procedure;
  return nullptr;
}

void DialogResponder::RaisePendingError() {
  if (const auto error = std::exchange(m_PendingError, std::nullopt)) throw Error(*error);
}

void DialogResponder::AnswerDialog(QDialog& dialog) {
  const QPointer<QDialog> open = &dialog;
  const QString name = dialog.objectName();
  if (const Ref<Object> procedure = ProcedureFor(qt::ViewOf(name))) CallProcedure(*procedure, dialog);
  if (open && open->isVisible()) open->reject();
}

void DialogResponder::CallProcedure(Object& procedure, QDialog& dialog) {
  Variant argument(Ref<Object>(MakeRef<WidgetPart>(dialog)));
  try {
    procedure.Invoke(procedure.DefaultMember(), CallKind::Method, Args(&argument, 1));
  } catch (const Error& error) {
    if (!m_PendingError) m_PendingError = error;
  }
}

void DialogResponder::AnswerMenu(QMenu& menu) {
  m_LastMenu = ItemsText(menu);
  QAction* const item = ItemNamed(menu, TakeNext(m_Answers.menus).value_or(Text()));
  if (!item) return PressKey(menu, ParseStroke(u"Esc"));
  m_Mouse.Click(menu, menu.actionGeometry(item).center());
}

}  // namespace cardwright::robot
