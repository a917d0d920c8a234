#pragma once

#include <QObject>
#include <optional>
#include <utility>
#include <vector>

#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"
#include "cardwright/robot/Answers.h"
#include "cardwright/robot/Mouse.h"

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
/// waits for a person while it lives. Other modal dialogs are left to the procedure that is set for their
/// name, and dismissed if they are still open after it.
class Attendant final : public QObject {
 public:
  explicit Attendant(Mouse& mouse);

  Answers& Queues() noexcept { return m_Answers; }
  /// Has the default member of `procedure` called with each dialog of that name that opens, in any case,
  /// until another one is set; null takes it away.
  void SetProcedure(const Text& dialog, Ref<Object> procedure);
  /// Raises the first error of such a procedure since the last call, which could not reach anybody while the
  /// dialog was open.
  void RaiseFailure();
  /// The popup menu shown last: `name=caption` for each visible item with `!` before a disabled one, `-` for
  /// separators, in order and separated by `;`.
  const Text& LastMenu() const noexcept { return m_LastMenu; }
  /// Text of the tooltip that a designer's drag has shown last.
  const Text& LastTooltip() const noexcept { return m_LastTooltip; }

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
  void AnswerDialog(QDialog& dialog);
  void CallProcedure(Object& procedure, QDialog& dialog);

  Ref<Object> ProcedureFor(std::u16string_view dialog) const;

  Mouse& m_Mouse;
  Answers m_Answers;
  Text m_LastMenu;
  Text m_LastTooltip;
  std::vector<std::pair<Text, Ref<Object>>> m_Procedures;
  std::optional<Error> m_Failure;
};

}  // namespace cardwright::robot
