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

void SetSelectionLength(QLineEdit& edit, int length) {
  if (length < 0) Raise(ErrorNumber::InvalidPropertyValue);
  const int start = SelectionStart(edit);
  edit.setSelection(start, std::min<int>(length, static_cast<int>(edit.text().size()) - start));
}

void SetLimit(QLineEdit& edit, int length) {
  if (length < 0) Raise(ErrorNumber::InvalidPropertyValue);
  const int limit = std::max(length == 0 ? kNoLimit : length, static_cast<int>(edit.text().size()));
  if (limit == edit.maxLength()) return;
  const int caret = edit.cursorPosition();  // which the toolkit would move to the end
  edit.setMaxLength(limit);
  edit.setCursorPosition(caret);
}

}  // namespace cardwright::qt
