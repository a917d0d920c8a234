// SPDX-License-Identifier: MIT
#include "cardwright/qt/editor/DocumentText.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <algorithm>

#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

// Shown for a character that a document cannot hold within a line; a property of its format keeps which.
constexpr char16_t kSign = u'\u2424';
constexpr int kOriginal = QTextFormat::UserProperty + 1;

// What the toolkit takes as the end of a line, or of a frame of its own.
constexpr std::u16string_view kBreaks = u"\r\n\u2029\uFDD0\uFDD1";

struct LineEndCount {
  std::u16string_view lineEnd;
  std::size_t count;
};

std::u16string_view UsualLineEnd(std::u16string_view text) {
  LineEndCount counts[] = {{u"\r\n", 0}, {u"\n", 0}, {u"\r", 0}};
  for (std::size_t at = text.find_first_of(u"\r\n"); at != text.npos; at = text.find_first_of(u"\r\n", at)) {
    LineEndCount* const found = std::ranges::find_if(
        counts, [&](const LineEndCount& each) { return text.substr(at).starts_with(each.lineEnd); });
    ++found->count;
    at += found->lineEnd.size();
  }
  return std::ranges::max_element(counts, {}, &LineEndCount::count)->lineEnd;
}

}  // namespace

// `signs` gets the originals of the signs, in their order.
QString DocumentText::ToDocumentForm(std::u16string_view text, std::u16string& signs) const {
  QString form = ToQString(text);
  if (text.find_first_of(kBreaks) == text.npos) return form;
  qsizetype written = 0;
  for (std::size_t at = 0; at < text.size();) {
    if (text.substr(at).starts_with(m_LineEnd)) {
      form[written++] = u'\n';
      at += m_LineEnd.size();
      continue;
    }
    const bool isBreak = kBreaks.find(text[at]) != kBreaks.npos;
    if (isBreak) signs += text[at];
    // A sign that is one of the text's own is marked too, so that the two are not mixed up.
    if (!isBreak && text[at] == kSign) signs += kSign;
    form[written++] = isBreak ? QChar(kSign) : QChar(text[at]);
    ++at;
  }
  form.truncate(written);
  return form;
}

char16_t DocumentText::OriginalAt(int position) const {
  QTextCursor cursor(&m_Document);
  cursor.setPosition(position + 1);
  const QVariant original = cursor.charFormat().property(kOriginal);
  return original.isValid() ? static_cast<char16_t>(original.toUInt()) : kSign;
}

// One pass, as the original of a sign may be what else ends a line.
Text DocumentText::FromDocumentForm(const QString& raw, int position) const {
  constexpr std::u16string_view kTranslated = u"\u2029\u2424";
  const std::u16string_view form = ViewOf(raw);
  std::size_t done = 0;
  std::u16string text;
  text.reserve(form.size());
  for (std::size_t at = form.find_first_of(kTranslated); at != form.npos;
       at = form.find_first_of(kTranslated, done)) {
    text += form.substr(done, at - done);
    if (form[at] == kSign)
      text += OriginalAt(position + static_cast<int>(at));
    else
      text += m_LineEnd;
    done = at + 1;
  }
  text += form.substr(done);
  return text;
}

void DocumentText::Set(const Text& text) {
  m_LineEnd = UsualLineEnd(text);
  m_CachedRevision = -1;
  std::u16string signs;
  const QString form = ToDocumentForm(text, signs);
  m_Document.setPlainText(form);
  if (signs.empty()) return;
  QTextCursor cursor(&m_Document);
  cursor.select(QTextCursor::Document);
  Insert(cursor, text);
}

void DocumentText::Insert(QTextCursor& cursor, const Text& text) const {
  Forget();
  std::u16string signs;
  const QString form = ToDocumentForm(text, signs);
  if (signs.empty()) {
    cursor.insertText(form, QTextCharFormat());
    return;
  }
  cursor.beginEditBlock();
  cursor.removeSelectedText();
  qsizetype done = 0;
  for (const char16_t original : signs) {
    const qsizetype sign = form.indexOf(kSign, done);
    cursor.insertText(form.mid(done, sign - done), QTextCharFormat());
    QTextCharFormat format;
    format.setProperty(kOriginal, static_cast<uint>(original));
    cursor.insertText(QString(QChar(kSign)), format);
    done = sign + 1;
  }
  cursor.insertText(form.mid(done), QTextCharFormat());
  cursor.endEditBlock();
}

Text DocumentText::Get() const {
  if (m_CachedRevision != m_Document.revision()) {
    m_Cached = FromDocumentForm(m_Document.toRawText(), 0);
    m_CachedRevision = m_Document.revision();
  }
  return m_Cached;
}

Text DocumentText::GetRange(std::int32_t start, std::int32_t length) const {
  const std::int32_t from = std::clamp(start, 0, Length());
  const std::int64_t wanted = std::int64_t{start} + std::max(length, 0);
  const auto to = static_cast<std::int32_t>(std::clamp<std::int64_t>(wanted, from, Length()));
  if (m_CachedRevision == m_Document.revision())
    return m_Cached.View().substr(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from));
  const QTextBlock last = m_Document.findBlock(ToDocument(to));
  const QTextBlock first = m_Document.findBlock(ToDocument(from));
  std::u16string text;
  for (QTextBlock block = first; block.isValid(); block = block.next()) {
    text += LineText(block).View();
    if (block != m_Document.lastBlock()) text += m_LineEnd;
    if (block == last) break;
  }
  const std::int32_t skipped = from - ToText(first.position());
  return std::u16string_view(text).substr(static_cast<std::size_t>(skipped),
                                          static_cast<std::size_t>(to - from));
}

Text DocumentText::LineText(const QTextBlock& block) const {
  return block.isValid() ? FromDocumentForm(block.text(), block.position()) : Text();
}

std::int32_t DocumentText::Length() const {
  return m_Document.characterCount() - 1 + (m_Document.blockCount() - 1) * (LineEndSize() - 1);
}

std::int32_t DocumentText::ToText(int position) const {
  if (LineEndSize() == 1) return position;
  return position + m_Document.findBlock(position).blockNumber();
}

int DocumentText::ToDocument(std::int32_t position) const {
  const int end = m_Document.characterCount() - 1;
  if (LineEndSize() == 1) return std::clamp(position, 0, end);
  if (position <= 0) return 0;
  // The last line that begins at the position or before it.
  int low = 0;
  int high = m_Document.blockCount() - 1;
  while (low < high) {
    const int middle = (low + high + 1) / 2;
    if (m_Document.findBlockByNumber(middle).position() + middle <= position) {
      low = middle;
    } else {
      high = middle - 1;
    }
  }
  const QTextBlock block = m_Document.findBlockByNumber(low);
  const std::int64_t inLine = std::int64_t{position} - block.position() - low;
  return block.position() + static_cast<int>(std::min<std::int64_t>(inLine, block.length() - 1));
}

}  // namespace cardwright::qt
