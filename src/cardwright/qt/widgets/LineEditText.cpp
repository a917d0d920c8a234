// SPDX-License-Identifier: MIT
#include "cardwright/qt/widgets/LineEditText.h"

#include <QLineEdit>
#include <algorithm>

#include "cardwright/automation/Errors.h"

namespace cardwright::qt {

namespace {

constexpr int kNoLimit = 32767;

}  // namespace

int SelectionStart(const QLineEdit& edit) {
  return edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
}

void SetSelectionStart(QLineEdit& edit, int start) {
  if (start < 0) Raise(ErrorNumber::InvalidPropertyValue);
  edit.deselect();
  edit.setCursorPosition(std::min(start, static_cast<int>(edit.text().size())));
}

int SelectionLength(const QLineEdit& edit) { return static_cast<int>(edit.selectedText().size()); }

void SetSelectionLength(QLineEdit& edit, int length) {
  if (length < 0) Raise(ErrorNumber::InvalidPropertyValue);
  const int start = SelectionStart(edit);
  edit.setSelection(start, std::min<int>(length, static_cast<int>(edit.text().size()) - start));
}

QString SelectedText(const QLineEdit& edit) { return edit.selectedText(); }

void ReplaceSelection(QLineEdit& edit, const QString& text) { edit.insert(text); }

void SetLimit(QLineEdit& edit, int length) {
  if (length < 0) Raise(ErrorNumber::InvalidPropertyValue);
  const int limit = std::max(length == 0 ? kNoLimit : length, static_cast<int>(edit.text().size()));
  if (limit == edit.maxLength()) return;
  const int caret = edit.cursorPosition();  // which the toolkit would move to the end
  edit.setMaxLength(limit);
  edit.setCursorPosition(caret);
}

}  // namespace cardwright::qt
