// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>

namespace cardwright::workbench {

/// Turns the selected lines into comments that begin with `mark`; if all of them are, back into code. Blank
/// lines stay.
void ToggleComment(QPlainTextEdit& edit, const QString& mark);

/// Asks the user for a line and moves the caret there.
void AskForLine(QPlainTextEdit& edit);

}  // namespace cardwright::workbench
