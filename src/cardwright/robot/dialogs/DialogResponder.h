// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <optional>
#include <utility>
#include <vector>

#include "cardwright/automation/Errors.h"
#include "cardwright/automation/Object.h"
#include "cardwright/robot/dialogs/Answers.h"
#include "cardwright/robot/input/Mouse.h"

class QColorDialog;
class QDialog;
class QFileDialog;
class QFontDialog;
class QInputDialog;
class QMenu;
class QMessageBox;

namespace cardwright::robot {

/// Answers every message box, dialog of the toolkit and popup menu as soon as it is shown: with the queued
/// answer or, without one, with the default button of a message box and by dismissing everything else. So
/// nothing waits for a user. Any other modal dialog is passed to the procedure that is set for its name,
/// and dismissed if it is still open afterwards.
class DialogResponder final : public QObject {
 public:
  explicit DialogResponder(Mouse& mouse);

  Answers& Queue() noexcept { return m_Answers; }
  /// Sets the procedure for dialogs of that name, in any case: its default member is called with each that
  /// opens. Null removes it.
  void SetProcedure(const Text& dialog, Ref<Object> procedure);
  /// Raises the first error that a procedure ended with since the last call. While its dialog was open the
  /// error had no caller that it could reach.
  void RaisePendingError();
  /// The items of the popup menu shown last, separated by `;`: `name=caption` for a visible item, with `!`
  /// before a disabled one, and `-` for a separator.
  const Text& LastMenu() const noexcept { return m_LastMenu; }

 private:
  bool eventFilter(QObject* target, QEvent* event) override;
  void OnShown(QWidget& widget);
  /// Calls `answer` with the widget once the event loop that it may run has started.
  template <class Shown>
  void AnswerLater(Shown& shown, void (DialogResponder::*answer)(Shown&));

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
  std::vector<std::pair<Text, Ref<Object>>> m_Procedures;
  std::optional<Error> m_PendingError;
};

}  // namespace cardwright::robot
