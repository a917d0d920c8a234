#pragma once

#include <QObject>

#include "robot/Answers.h"
#include "robot/Mouse.h"

class QColorDialog;
class QDialog;
class QFileDialog;
class QFontDialog;
class QInputDialog;
class QMenu;
class QMessageBox;

namespace cardwright::robot {

/// Stands by and answers every message box, dialog of the toolkit and popup menu as soon as it is shown, with
/// the queued answer or, without one, the default button of a box and a dismissal of all others: nothing
/// waits for a person while it lives.
class Attendant final : public QObject {
 public:
  explicit Attendant(Mouse& mouse);

  Answers& Queues() noexcept { return m_Answers; }
  /// The popup menu shown last: `name=caption` for each visible item with `!` before a disabled one, `-` for
  /// separators, in order and separated by `;`.
  const Text& LastMenu() const noexcept { return m_LastMenu; }

 private:
  bool eventFilter(QObject* target, QEvent* event) override;
  void OnShown(QWidget& widget);
  /// Calls `answer` with the widget as soon as the loop that it may run has begun.
  template <class Shown>
  void Meet(Shown& shown, void (Attendant::*answer)(Shown&));

  void AnswerBox(QMessageBox& box);
  void AnswerInput(QInputDialog& dialog);
  void AnswerFile(QFileDialog& dialog);
  void AnswerColor(QColorDialog& dialog);
  void AnswerFont(QFontDialog& dialog);
  void AnswerMenu(QMenu& menu);

  Mouse& m_Mouse;
  Answers m_Answers;
  Text m_LastMenu;
};

}  // namespace cardwright::robot
