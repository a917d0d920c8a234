// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <csignal>

class QSocketNotifier;

namespace cardwright::qt {

/// While it lives, Ctrl+C in the terminal is the Break key: it asks whether a script that runs is to stop.
/// Where no script runs, and on the second Ctrl+C in any case, the program ends as it would without this. One
/// at a time; needs an application object.
class TerminalBreak final : public QObject {
 public:
  TerminalBreak();
  ~TerminalBreak() override;

 private:
  bool event(QEvent* event) override;
  void Arm();
  void OnSignal();

  int m_Pipe[2] = {-1, -1};
  QSocketNotifier* m_Notifier = nullptr;
  struct sigaction m_Before {};
};

}  // namespace cardwright::qt
