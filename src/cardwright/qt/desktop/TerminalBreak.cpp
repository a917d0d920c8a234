// SPDX-License-Identifier: MIT
#include "cardwright/qt/desktop/TerminalBreak.h"

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QSocketNotifier>
#include <atomic>
#include <cerrno>

namespace cardwright::qt {
namespace {

std::atomic<int> s_Pipe = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void Note(int) {
  const int error = errno;
  [[maybe_unused]] const auto written = write(s_Pipe, "", 1);
  errno = error;
}

}  // namespace

TerminalBreak::TerminalBreak() {
  sigaction(SIGINT, nullptr, &m_Before);
  // Nobody's terminal reaches a program in the background.
  if (m_Before.sa_handler == SIG_IGN || pipe2(m_Pipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
  s_Pipe = m_Pipe[1];
  m_Notifier = new QSocketNotifier(m_Pipe[0], QSocketNotifier::Read, this);
  connect(m_Notifier, &QSocketNotifier::activated, this, &TerminalBreak::OnSignal);
  Arm();
}

TerminalBreak::~TerminalBreak() {
  if (!m_Notifier) return;
  sigaction(SIGINT, &m_Before, nullptr);
  delete m_Notifier;
  s_Pipe = -1;
  close(m_Pipe[0]);
  close(m_Pipe[1]);
}

void TerminalBreak::Arm() {
  struct sigaction action {};
  action.sa_handler = Note;
  // The default comes back with the first signal, so that nothing can hold the program.
  action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
  sigaction(SIGINT, &action, nullptr);
}

void TerminalBreak::OnSignal() {
  char note = 0;
  if (read(m_Pipe[0], &note, 1) != 1) return;
  Arm();
  QKeyEvent stroke(QEvent::KeyPress, Qt::Key_Cancel, Qt::ControlModifier);
  QCoreApplication::sendEvent(this, &stroke);
}

// The key comes this far only where nothing consumed it.
bool TerminalBreak::event(QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::event(event);
  sigaction(SIGINT, &m_Before, nullptr);
  raise(SIGINT);
  return true;
}

}  // namespace cardwright::qt
