#include "cardwright/robot/AttendedDesktop.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/robot/ShownMessage.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright::robot {
namespace {

Desktop& DesktopOfThread() {
  Desktop* const desktop = Module().desktop;
  if (!desktop) Raise(ErrorNumber::ObjectNotSet);
  return *desktop;
}

/// Gives the window that was active before a box its place back: without a window manager nobody else does.
class ActiveWindow {
 public:
  ActiveWindow() = default;
  ~ActiveWindow() {
    if (m_Before && !QApplication::activeWindow()) m_Before->activateWindow();
  }
  ActiveWindow(const ActiveWindow&) = delete;
  ActiveWindow& operator=(const ActiveWindow&) = delete;

 private:
  const QPointer<QWidget> m_Before = QApplication::activeWindow();
};

}  // namespace

AttendedDesktop::AttendedDesktop() : ForwardingDesktop(DesktopOfThread()) { Module().desktop = this; }

AttendedDesktop::~AttendedDesktop() {
  if (Module().desktop == this) Module().desktop = &Next();
}

void AttendedDesktop::Keep(const Text& text, int style, const Text& title) {
  const Text shown = title.IsEmpty() ? qt::FromQString(QGuiApplication::applicationDisplayName()) : title;
  m_Messages->Add(Ref<Object>(MakeRef<ShownMessage>(text, shown, style)));
}

int AttendedDesktop::ShowMessage(const Text& text, int style, const Text& title) {
  Keep(text, style, title);
  const ActiveWindow active;
  return Next().ShowMessage(text, style, title);
}

Variant AttendedDesktop::AskText(const Text& prompt, const Text& title, const Text& initial, const Variant& x,
                                 const Variant& y) {
  Keep(prompt, BoxStyle::OkCancel, title);
  const ActiveWindow active;
  return Next().AskText(prompt, title, initial, x, y);
}

void AttendedDesktop::Beep() {
  ++m_Beeps;
  Next().Beep();
}

void AttendedDesktop::Start(const Text& commandLine) { m_Launches->Add(Variant(commandLine)); }

}  // namespace cardwright::robot
