// SPDX-License-Identifier: MIT
#include "cardwright/robot/dialogs/RecordingDesktop.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "cardwright/automation/Errors.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/robot/dialogs/ShownMessage.h"
#include "cardwright/shared/ModuleState.h"

namespace cardwright::robot {
namespace {

Desktop& DesktopOfThread() {
  Desktop* const desktop = Module().desktop;
  if (!desktop) Raise(ErrorNumber::ObjectNotSet);
  return *desktop;
}

/// Activates the window again that was active before a message box. Without a window manager nobody else
/// does.
class ActiveWindowRestorer {
 public:
  ActiveWindowRestorer() = default;
  ~ActiveWindowRestorer() {
    if (m_Before && !QApplication::activeWindow()) m_Before->activateWindow();
  }
  ActiveWindowRestorer(const ActiveWindowRestorer&) = delete;
  ActiveWindowRestorer& operator=(const ActiveWindowRestorer&) = delete;

 private:
  const QPointer<QWidget> m_Before = QApplication::activeWindow();
};

}  // namespace

RecordingDesktop::RecordingDesktop() : ForwardingDesktop(DesktopOfThread()) { Module().desktop = this; }

RecordingDesktop::~RecordingDesktop() {
  if (Module().desktop == this) Module().desktop = &Next();
}

void RecordingDesktop::Record(const Text& text, int style, const Text& title) {
  const Text shown = title.IsEmpty() ? qt::FromQString(QGuiApplication::applicationDisplayName()) : title;
  m_Messages->Add(Ref<Object>(MakeRef<ShownMessage>(text, shown, style)));
}

int RecordingDesktop::ShowMessage(const Text& text, int style, const Text& title) {
  Record(text, style, title);
  const ActiveWindowRestorer active;
  return Next().ShowMessage(text, style, title);
}

Variant RecordingDesktop::AskText(const Text& prompt, const Text& title, const Text& initial,
                                  const Variant& x, const Variant& y) {
  Record(prompt, BoxStyle::OkCancel, title);
  const ActiveWindowRestorer active;
  return Next().AskText(prompt, title, initial, x, y);
}

void RecordingDesktop::Beep() {
  ++m_Beeps;
  Next().Beep();
}

void RecordingDesktop::Start(const Text& commandLine) { m_Launches->Add(Variant(commandLine)); }

}  // namespace cardwright::robot
