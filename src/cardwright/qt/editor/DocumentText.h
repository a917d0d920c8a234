// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <cstdint>

#include "cardwright/automation/Text.h"

class QTextBlock;
class QTextCursor;
class QTextDocument;

namespace cardwright::qt {

/// A text as a document of the toolkit holds it, so that it comes out as it went in. The document keeps lines
/// apart by one separator, which stands for the line end that the text has most often. What else would part a
/// line there, a lone LF among CR LF say, is a sign within the line that remembers what it was.
///
/// Positions are those of the text: a line end of two characters counts two.
class DocumentText {
 public:
  explicit DocumentText(QTextDocument& document) : m_Document(document) {}

  /// Replaces all text, and the line end; a text without one has CR LF.
  void Set(const Text& text);
  Text Get() const;
  Text GetRange(std::int32_t start, std::int32_t length) const;
  /// Text of a line without its end.
  Text LineText(const QTextBlock& block) const;
  /// Replaces what is selected.
  void Insert(QTextCursor& cursor, const Text& text) const;

  std::int32_t Length() const;
  /// The text's position of a place in the document.
  std::int32_t ToText(int position) const;
  /// The place in the document; inside a line end it is the place before it, outside the text the nearest.
  int ToDocument(std::int32_t position) const;

  /// The document was changed by other means. Its revision does not tell: all changes of one editing block
  /// have the same.
  void Forget() const noexcept { m_CachedRevision = -1; }

  std::u16string_view LineEnd() const noexcept { return m_LineEnd; }

 private:
  int LineEndSize() const noexcept { return static_cast<int>(m_LineEnd.size()); }
  QString ToDocumentForm(std::u16string_view text, std::u16string& signs) const;
  char16_t OriginalAt(int position) const;
  Text FromDocumentForm(const QString& raw, int position) const;

  QTextDocument& m_Document;
  std::u16string_view m_LineEnd = u"\r\n";
  mutable Text m_Cached;  // all text
  mutable int m_CachedRevision = -1;
};

}  // namespace cardwright::qt
