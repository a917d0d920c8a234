// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <QTextEdit>
#include <array>
#include <memory>

#include "cardwright/editor/LineTokens.h"
#include "cardwright/qt/widgets/FocusFramed.h"

namespace cardwright::qt {

/// How the elements of a script are shown.
using ElementStyles = std::array<ElementStyle, kSyntaxElementCount>;

/// A text that is coloured by word lists. A line is read when it comes into view, so that a long text opens
/// at once. With line numbers, the bracket that belongs to the one at the caret, and a zoom by Ctrl and the
/// wheel.
class CodeEdit final : public FocusFramed<QPlainTextEdit> {
  Q_OBJECT
 public:
  explicit CodeEdit(QWidget* parent);
  ~CodeEdit() override;

  /// Reads all lines again when they are seen next.
  void SetLanguage(const LexipadLanguage& language, const ElementStyles& styles, int maxLineLength);
  const LanguageWords& Words() const noexcept { return *m_Words; }
  /// Whether a line begins inside a remark over several lines.
  bool BeginsInRemark(const QTextBlock& block);
  /// What is at a place of a line; "code" for a blank.
  SyntaxElement ElementAt(const QTextBlock& block, int column);

  /// @name Lines that the user, or the editor, changed since they were read
  /// @{
  static bool IsEdited(const QTextBlock& block);
  static void SetEdited(QTextBlock block, bool edited);
  /// Whether changes count as edits; a text that is loaded is none.
  void SetTracksEdits(bool tracks) noexcept { m_TracksEdits = tracks; }
  /// @}

  /// Shows places of the text in formats of their own, beside the brackets. Replaces former ones.
  void SetMarks(QList<QTextEdit::ExtraSelection> marks);

  bool HasLineNumbers() const noexcept { return m_HasLineNumbers; }
  void SetLineNumbers(bool shown);
  int TabBlanks() const noexcept { return m_TabBlanks; }
  /// Shows the text in the widget's font, larger or smaller by the zoom.
  void ApplyFont();
  /// Width of the line numbers, in pixels.
  int MarginWidth() const;

 Q_SIGNALS:
  void KeyReleased(int key, Qt::KeyboardModifiers modifiers);
  /// An event of the user begins and ends; what changes in between is reported at its end.
  void InputBegins();
  void InputEnds();

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  class Margin;

  void OnContentsChange(int position, int removed, int added);
  void ReadVisibleLines();
  void ReadLine(QTextBlock block);
  QTextCharFormat FormatOf(SyntaxElement element) const;
  void ShowBrackets();
  QTextCursor BracketOpposite(const QTextCursor& bracket);
  bool IsCodeAt(const QTextBlock& block, int column);
  void LayOutMargin();
  void PaintMargin(QPaintEvent& event);
  void Indent(bool further);
  void Zoom(int steps);

  std::unique_ptr<LanguageWords> m_Words;
  ElementStyles m_Styles;
  std::array<QTextCharFormat, kSyntaxElementCount> m_Formats;
  QList<QTextEdit::ExtraSelection> m_Marks;
  int m_MaxLineLength = 1024;
  int m_Revision = 1;  // of language and styles
  Margin* m_Margin;
  bool m_HasLineNumbers = true;
  bool m_TracksEdits = true;
  int m_TabBlanks = 4;
  int m_Zoom = 0;  // points
  int m_WheelRest = 0;
};

/// The element that a piece of a line is shown as.
SyntaxElement ElementOf(LexemeKind kind) noexcept;

}  // namespace cardwright::qt
