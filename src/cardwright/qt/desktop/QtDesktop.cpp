// SPDX-License-Identifier: MIT
#include "cardwright/qt/desktop/QtDesktop.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <algorithm>
#include <array>
#include <vector>

#include "cardwright/automation/Conversions.h"
#include "cardwright/platform/Scale.h"
#include "cardwright/qt/desktop/QtSettings.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/values/WindowHandles.h"
#include "cardwright/qt/widgets/WidgetCore.h"

namespace cardwright::qt {

namespace {

struct Answer {
  QMessageBox::StandardButton button;
  int number;
};

constexpr Answer kOk{QMessageBox::Ok, 1}, kCancel{QMessageBox::Cancel, 2}, kAbort{QMessageBox::Abort, 3},
    kRetry{QMessageBox::Retry, 4}, kIgnore{QMessageBox::Ignore, 5}, kYes{QMessageBox::Yes, 6},
    kNo{QMessageBox::No, 7};

/// In the order in which the style counts default buttons.
std::vector<Answer> AnswersOf(int style) {
  switch (style & 0xF) {
    case BoxStyle::OkCancel: return {kOk, kCancel};
    case 2: return {kAbort, kRetry, kIgnore};
    case BoxStyle::YesNoCancel: return {kYes, kNo, kCancel};
    case BoxStyle::YesNo: return {kYes, kNo};
    case 5: return {kRetry, kCancel};
    default: return {kOk};
  }
}

QMessageBox::Icon IconOf(int style) {
  switch (style & 0xF0) {
    case BoxStyle::Critical: return QMessageBox::Critical;
    case BoxStyle::Question: return QMessageBox::Question;
    case BoxStyle::Exclamation: return QMessageBox::Warning;
    case BoxStyle::Information: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
  }
}

// What X11 makes of Ctrl+Pause; the toolkit has no name for it.
constexpr quint32 kBreakSymbol = 0xFF6B;

bool IsBreak(const QKeyEvent& key) {
  return !key.isAutoRepeat() &&
         (key.key() == Qt::Key_Cancel || key.nativeVirtualKey() == kBreakSymbol ||
          (key.key() == Qt::Key_Pause && key.modifiers().testFlag(Qt::ControlModifier)));
}

bool IsHeldBack(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::Close:
    case QEvent::Timer: return true;
    default: return false;
  }
}

/// While it lives, nothing that a user does reaches any widget: keys, clicks and the closing of windows are
/// dropped, and timers are put off. It only notes whether Break was pressed: the key Cancel, or Ctrl+Pause.
/// Windows still paint themselves.
class BreakWatch final : public QObject {
 public:
  BreakWatch() { QCoreApplication::instance()->installEventFilter(this); }
  bool WasPressed() const noexcept { return m_WasPressed; }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::KeyPress && IsBreak(static_cast<QKeyEvent&>(*event))) m_WasPressed = true;
    if (!IsHeldBack(event->type())) return false;
    // The window system asks again whoever would close a window that was not closed.
    event->setAccepted(event->type() != QEvent::Close);
    return true;
  }

  bool m_WasPressed = false;
};

}  // namespace

QtDesktop::QtDesktop() : m_Settings(std::make_unique<QtSettings>()) {}

QtDesktop::~QtDesktop() = default;

int QtDesktop::ShowMessage(const Text& text, int style, const Text& title) {
  const std::vector<Answer> answers = AnswersOf(style);
  // Not on the stack: the window that it belongs to can be closed under it, and takes it along.
  const QPointer<QMessageBox> box = new QMessageBox(QApplication::activeWindow());
  box->setIcon(IconOf(style));
  box->setTextFormat(Qt::PlainText);
  box->setText(ToQString(text));
  box->setWindowTitle(title.IsEmpty() ? QGuiApplication::applicationDisplayName() : ToQString(title));
  for (const Answer& answer : answers) box->addButton(answer.button);
  const auto defaultPlace = static_cast<std::size_t>((style >> 8) & 0x3);
  box->setDefaultButton(answers[std::min(defaultPlace, answers.size() - 1)].button);
  const int pressed = box->exec();
  delete box.data();
  const auto given =
      std::find_if(answers.begin(), answers.end(), [&](const Answer& a) { return a.button == pressed; });
  return given == answers.end() ? answers.back().number : given->number;
}

Variant QtDesktop::AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                           const Variant& y) {
  const QPointer<QInputDialog> box = new QInputDialog(QApplication::activeWindow());
  box->setWindowTitle(title.IsEmpty() ? QGuiApplication::applicationDisplayName() : ToQString(title));
  box->setLabelText(ToQString(prompt));
  box->setTextValue(ToQString(initial));
  const auto pixels = [](const Variant& twips) {
    return static_cast<int>(ScaleToPixels(static_cast<float>(ToInteger(twips)), ScaleMode::Twips));
  };
  if (!x.Deref().IsMissing() && !y.Deref().IsMissing()) box->move(pixels(x), pixels(y));
  const bool isAccepted = box->exec() == QDialog::Accepted;
  if (!box) return {};
  const Text typed = FromQString(box->textValue());
  delete box.data();
  return isAccepted ? Variant(typed) : Variant();
}

bool QtDesktop::IsAttended() const {
  const QString platform = QGuiApplication::platformName();
  return !m_IsUnattended && platform != u"offscreen" && platform != u"minimal";
}

bool QtDesktop::BreakPressed() {
  BreakWatch watch;
  QCoreApplication::processEvents();
  return watch.WasPressed();
}

void QtDesktop::Beep() { QApplication::beep(); }

Ref<Widget> QtDesktop::ActiveControl() const {
  QWidget* focused = QApplication::focusWidget();
  WidgetCore* core = focused ? WidgetCore::Of(*focused) : nullptr;
  return core ? &core->Self() : nullptr;
}

OleColor QtDesktop::ResolveColor(OleColor color) const {
  return FromQColor(ToQColor(color, QApplication::palette()));
}

bool QtDesktop::IsWindow(std::int32_t handle) const {
  return WindowHandles::Instance().Find(handle) != nullptr;
}

void QtDesktop::Start(const Text& commandLine) {
  QStringList parts = QProcess::splitCommand(ToQString(commandLine));
  if (parts.isEmpty()) return;
  const QString program = parts.takeFirst();
  QProcess::startDetached(program, parts);
}

Text QtDesktop::Digest(const Text& text) const {
  const QByteArray digest = QCryptographicHash::hash(ToQString(text).toUtf8(), QCryptographicHash::Sha256);
  return FromQString(QString::fromLatin1(digest.toHex()));
}

}  // namespace cardwright::qt
