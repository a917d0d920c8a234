// SPDX-License-Identifier: MIT
#include "cardwright/qt/widgets/QtMultilineTextBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

#include "cardwright/qt/values/Keys.h"
#include "cardwright/qt/values/QtText.h"
#include "cardwright/qt/widgets/FocusFramed.h"
#include "cardwright/qt/widgets/WidgetKind.h"

namespace cardwright::qt {

namespace {

constexpr WidgetKind kMultilineTextBox =
    MakeFieldKind(u"MultilineTextBox", MouseUse::All, ClickSource::MouseRelease);

/// Line ends as the toolkit's documents take them in.
QString ToDocument(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  text.replace(u'\r', u'\n');
  return text;
}

/// The text of a document or a selection, which hold lines apart with a separator of their own. Their plain
/// text would turn a hard blank into a common one.
QString FromDocument(QString raw) {
  raw.replace(QChar(QChar::ParagraphSeparator), QStringLiteral("\r\n"));
  return raw;
}

/// The platform's position of a place in the document: each line end before it counts twice.
int ToOuter(const QTextDocument& document, int position) {
  return position + document.findBlock(position).blockNumber();
}

/// The place in the document; inside a line end it is the place before it.
int ToInner(const QTextDocument& document, int outer) {
  int start = 0;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    const int length = block.length() - 1;
    if (outer <= start + length + 1) return block.position() + std::min(outer - start, length);
    start += length + 2;
  }
  return document.characterCount() - 1;
}

/// The first part of `text`, in the document's form, that is not longer than `room`.
QString CutTo(const QString& text, qsizetype room) {
  qsizetype count = 0;
  while (count < text.size()) {
    room -= text[count] == u'\n' ? 2 : 1;
    if (room < 0) break;
    ++count;
  }
  return text.left(count);
}

}  // namespace

/// Holds typed and pasted text to a greatest length.
class QtMultilineTextBox::Edit final : public FocusFramed<QPlainTextEdit> {
 public:
  using FocusFramed::FocusFramed;

  int limit = 0;

  /// As much of `text` as still fits in where it replaces the selection.
  QString Fitting(const QString& text) const {
    return limit == 0 ? text : CutTo(text, limit - RemainingLength());
  }

 protected:
  // Where a scroll bar leaves no room for text, showing it and hiding it again would chase each other, and
  // each round takes the toolkit several times as long as the one before.
  bool event(QEvent* event) override {
    if (event->type() == QEvent::Resize) {
      const int room = width() - 2 * frameWidth() - verticalScrollBar()->sizeHint().width();
      setVerticalScrollBarPolicy(room > 0 ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    }
    return FocusFramed::event(event);
  }

  void keyPressEvent(QKeyEvent* event) override {
    const bool deletes = event->key() == Qt::Key_Backspace;
    const QString typed = IsEnter(*event) ? QStringLiteral("\n") : TypedText(*event);
    if (!deletes && !typed.isEmpty() && Fitting(typed) != typed) return;
    QPlainTextEdit::keyPressEvent(event);
  }

  void inputMethodEvent(QInputMethodEvent* event) override {
    const QString fitting = Fitting(event->commitString());
    if (fitting == event->commitString()) {
      QPlainTextEdit::inputMethodEvent(event);
      return;
    }
    QInputMethodEvent cut(event->preeditString(), event->attributes());
    cut.setCommitString(fitting, event->replacementStart(), event->replacementLength());
    QPlainTextEdit::inputMethodEvent(&cut);
  }

  void insertFromMimeData(const QMimeData* source) override {
    if (!isReadOnly() && source->hasText()) insertPlainText(Fitting(ToDocument(source->text())));
  }

 private:
  /// Length of what stays when the selection is typed over.
  int RemainingLength() const {
    const QTextCursor cursor = textCursor();
    const int selected =
        ToOuter(*document(), cursor.selectionEnd()) - ToOuter(*document(), cursor.selectionStart());
    return document()->characterCount() - 1 + document()->blockCount() - 1 - selected;
  }
};

QtMultilineTextBox::QtMultilineTextBox(WidgetPlace place)
    : QtTextEntry(kMultilineTextBox, place), m_Edit(new Edit(place.parent)) {
  m_Edit->setTabChangesFocus(true);
  Adopt(*m_Edit);
  WatchPart(*m_Edit->viewport());
  QObject::connect(m_Edit, &QPlainTextEdit::textChanged, this, [this] { OnTextChanged(); });
}

/// The toolkit also calls it a change when only the looks of the text have changed.
void QtMultilineTextBox::OnTextChanged() {
  Text text = DisplayText();
  if (text == m_LastText) return;
  m_LastText = std::move(text);
  NotifyChange();
}

Text QtMultilineTextBox::DisplayText() const {
  return FromQString(FromDocument(Live(m_Edit)->document()->toRawText()));
}

void QtMultilineTextBox::SetDisplayText(const Text& text) {
  RequireAlive();
  const QString wanted = ToDocument(ToQString(text));
  {
    const QSignalBlocker silence(m_Edit);
    m_Edit->setPlainText(m_Edit->limit == 0 ? wanted : CutTo(wanted, m_Edit->limit));
  }
  OnTextChanged();
}

void QtMultilineTextBox::ApplyLocked() { m_Edit->setReadOnly(m_IsLocked); }

void QtMultilineTextBox::ApplyMaxLength(int length) { m_Edit->limit = length; }

int QtMultilineTextBox::SelStart() const {
  return ToOuter(*Live(m_Edit)->document(), m_Edit->textCursor().selectionStart());
}

void QtMultilineTextBox::SetSelStart(int start) {
  RequireAlive();
  if (start < 0) Raise(ErrorNumber::InvalidPropertyValue);
  QTextCursor cursor = m_Edit->textCursor();
  cursor.setPosition(ToInner(*m_Edit->document(), start));
  m_Edit->setTextCursor(cursor);
}

int QtMultilineTextBox::SelLength() const {
  return ToOuter(*Live(m_Edit)->document(), m_Edit->textCursor().selectionEnd()) - SelStart();
}

void QtMultilineTextBox::SetSelLength(int length) {
  RequireAlive();
  if (length < 0) Raise(ErrorNumber::InvalidPropertyValue);
  QTextCursor cursor = m_Edit->textCursor();
  const int start = cursor.selectionStart();
  // A length that would reach beyond the greatest number selects all the rest.
  const std::int64_t end = std::int64_t{SelStart()} + length;
  cursor.setPosition(start);
  cursor.setPosition(
      ToInner(*m_Edit->document(), static_cast<int>(std::min<std::int64_t>(end, INT32_MAX - 1))),
      QTextCursor::KeepAnchor);
  m_Edit->setTextCursor(cursor);
}

Text QtMultilineTextBox::SelText() const {
  return FromQString(FromDocument(Live(m_Edit)->textCursor().selectedText()));
}

void QtMultilineTextBox::SetSelText(const Text& text) {
  Live(m_Edit)->textCursor().insertText(m_Edit->Fitting(ToDocument(ToQString(text))));
}

}  // namespace cardwright::qt
