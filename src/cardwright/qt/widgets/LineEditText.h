// SPDX-License-Identifier: MIT
#pragma once

class QLineEdit;
class QString;

namespace cardwright::qt {

/// @name Selection of a line edit as the platform counts it. A start beyond the text is its end; negative
/// numbers are error 380.
/// @{
int SelectionStart(const QLineEdit& edit);
void SetSelectionStart(QLineEdit& edit, int start);
int SelectionLength(const QLineEdit& edit);
void SetSelectionLength(QLineEdit& edit, int length);
QString SelectedText(const QLineEdit& edit);
void ReplaceSelection(QLineEdit& edit, const QString& text);
/// @}
/// Limits what can be typed; 0 for no limit. A text that is longer already stays whole.
void SetLimit(QLineEdit& edit, int length);

}  // namespace cardwright::qt
