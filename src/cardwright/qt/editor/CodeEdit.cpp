// SPDX-License-Identifier: MIT
#include "cardwright/qt/editor/CodeEdit.h"

#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

#include "cardwright/qt/editor/ReadableColor.h"
#include "cardwright/qt/values/Colors.h"
#include "cardwright/qt/values/QtText.h"

namespace cardwright::qt {

namespace {

// A line's state as its block keeps it: the revision of the language it was read by, whether it was edited
// since its layout was tidied, whether a remark goes on after it. A new line has -1.
constexpr int kNewLine = -1;
constexpr int kInRemarkBit = 1, kEditedBit = 2, kRevisionShift = 2;

int StateOf(const QTextBlock& block) { return std::max(block.userState(), 0); }
int RevisionOf(const QTextBlock& block) {
  return block.userState() == kNewLine ? 0 : block.userState() >> kRevisionShift;
}

constexpr int kMarginGap = 6;  // pixels on either side of a line's number
constexpr int kGreatestZoom = 40, kLeastSize = 4;

}  // namespace

SyntaxElement ElementOf(LexemeKind kind) noexcept {
  switch (kind) {
    case LexemeKind::Keyword: return SyntaxElement::Keywords;
    case LexemeKind::Constant: return SyntaxElement::Constants;
    case LexemeKind::Number: return SyntaxElement::Numbers;
    case LexemeKind::String: return SyntaxElement::Strings;
    case LexemeKind::Remark: return SyntaxElement::Remarks;
    default: return SyntaxElement::Text;
  }
}

/// The numbers of the lines, left of the text.
class CodeEdit::Margin final : public QWidget {
 public:
  explicit Margin(CodeEdit& edit) : QWidget(&edit), m_Edit(edit) {}

 protected:
  void paintEvent(QPaintEvent* event) override { m_Edit.PaintMargin(*event); }

 private:
  CodeEdit& m_Edit;
};

CodeEdit::CodeEdit(QWidget* parent)
    : FocusFramed(parent),
      m_Words(std::make_unique<LanguageWords>(LexipadLanguage())),
      m_Styles{},
      m_Margin(new Margin(*this)) {
  setLineWrapMode(NoWrap);
  setFrameShape(StyledPanel);
  connect(document(), &QTextDocument::contentsChange, this, &CodeEdit::OnContentsChange);
  connect(this, &QPlainTextEdit::blockCountChanged, this, [this] { LayOutMargin(); });
  connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& area, int scrolled) {
    if (scrolled != 0)
      m_Margin->scroll(0, scrolled);
    else
      m_Margin->update(0, area.y(), m_Margin->width(), area.height());
  });
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, &CodeEdit::ShowBrackets);
  LayOutMargin();
}

CodeEdit::~CodeEdit() = default;

void CodeEdit::SetLanguage(const LexipadLanguage& language, const ElementStyles& styles, int maxLineLength) {
  m_Words = std::make_unique<LanguageWords>(language);
  m_Styles = styles;
  m_MaxLineLength = maxLineLength;
  ++m_Revision;
  for (int i = 0; i < kSyntaxElementCount; ++i)
    m_Formats[static_cast<std::size_t>(i)] = FormatOf(static_cast<SyntaxElement>(i));
  viewport()->update();
}

QTextCharFormat CodeEdit::FormatOf(SyntaxElement element) const {
  const ElementStyle& style = m_Styles[static_cast<std::size_t>(element)];
  QTextCharFormat format;
  const QPalette& colors = palette();
  format.setForeground(ReadableOn(colors.color(QPalette::Base), ToQColor(style.color, colors)));
  if (style.bold) format.setFontWeight(QFont::Bold);
  return format;
}

void CodeEdit::OnContentsChange(int position, int /*removed*/, int added) {
  QTextBlock block = document()->findBlock(position);
  const QTextBlock last = document()->findBlock(position + added);
  for (; block.isValid(); block = block.next()) {
    block.setUserState(m_TracksEdits ? kEditedBit : kNewLine);
    if (block == last) break;
  }
}

bool CodeEdit::IsEdited(const QTextBlock& block) { return (StateOf(block) & kEditedBit) != 0; }

void CodeEdit::SetEdited(QTextBlock block, bool edited) {
  const int state = StateOf(block);
  block.setUserState(edited ? state | kEditedBit : state & ~kEditedBit);
}

bool CodeEdit::BeginsInRemark(const QTextBlock& block) {
  if (!m_Words->HasRemarkBlocks()) return false;
  // From the nearest line whose state is known, down to this one.
  QTextBlock at = block;
  while (at.previous().isValid() && RevisionOf(at.previous()) != m_Revision) at = at.previous();
  bool isInRemark = at.previous().isValid() && (StateOf(at.previous()) & kInRemarkBit) != 0;
  for (; at != block; at = at.next()) isInRemark = m_Words->Read(ViewOf(at.text()), isInRemark).endsInRemark;
  return isInRemark;
}

void CodeEdit::ReadLine(QTextBlock block) {
  const bool wasInRemark = (StateOf(block) & kInRemarkBit) != 0;
  const QString text = block.text().left(m_MaxLineLength);
  const LineTokens tokens = m_Words->Read(ViewOf(text), BeginsInRemark(block));
  QList<QTextLayout::FormatRange> formats;
  for (const Lexeme& lexeme : tokens.lexemes) {
    const SyntaxElement element = ElementOf(lexeme.kind);
    if (element == SyntaxElement::Text) continue;
    formats.push_back({static_cast<int>(lexeme.start), static_cast<int>(lexeme.length),
                       m_Formats[static_cast<std::size_t>(element)]});
  }
  const int edited = StateOf(block) & kEditedBit;
  block.setUserState((m_Revision << kRevisionShift) | edited | (tokens.endsInRemark ? kInRemarkBit : 0));
  if (formats != block.layout()->formats()) {
    block.layout()->setFormats(formats);
    document()->markContentsDirty(block.position(), block.length());
  }
  // What follows is read again where a remark over several lines began or ended.
  if (tokens.endsInRemark != wasInRemark && block.next().isValid()) {
    QTextBlock next = block.next();
    next.setUserState(StateOf(next) & kEditedBit);
  }
}

void CodeEdit::ReadVisibleLines() {
  QTextBlock block = firstVisibleBlock();
  qreal top = contentOffset().y();
  while (block.isValid() && top <= viewport()->height()) {
    if (RevisionOf(block) != m_Revision) ReadLine(block);
    top += blockBoundingRect(block).height();
    block = block.next();
  }
}

void CodeEdit::paintEvent(QPaintEvent* event) {
  ReadVisibleLines();
  FocusFramed::paintEvent(event);
}

SyntaxElement CodeEdit::ElementAt(const QTextBlock& block, int column) {
  const LineTokens tokens = m_Words->Read(ViewOf(block.text()), BeginsInRemark(block));
  const auto at = static_cast<std::size_t>(std::max(column, 0));
  for (const Lexeme& lexeme : tokens.lexemes)
    if (at >= lexeme.start && at < lexeme.start + lexeme.length) return ElementOf(lexeme.kind);
  return SyntaxElement::Text;
}

void CodeEdit::SetLineNumbers(bool shown) {
  m_HasLineNumbers = shown;
  m_Margin->setVisible(shown);
  LayOutMargin();
}

int CodeEdit::MarginWidth() const {
  if (!m_HasLineNumbers) return 0;
  const auto digits = static_cast<int>(QString::number(std::max(blockCount(), 99)).size());
  return QFontMetrics(document()->defaultFont()).horizontalAdvance(u'9') * digits + 2 * kMarginGap;
}

void CodeEdit::LayOutMargin() {
  const int width = MarginWidth();
  setViewportMargins(width, 0, 0, 0);
  const QRect area = contentsRect();
  m_Margin->setGeometry(area.left(), area.top(), width, area.height());
}

void CodeEdit::PaintMargin(QPaintEvent& event) {
  QPainter painter(m_Margin);
  painter.fillRect(event.rect(), palette().color(QPalette::AlternateBase));
  painter.setFont(document()->defaultFont());
  const int current = textCursor().blockNumber();
  QTextBlock block = firstVisibleBlock();
  qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
  while (block.isValid() && top <= event.rect().bottom()) {
    const qreal height = blockBoundingRect(block).height();
    if (top + height >= event.rect().top()) {
      const bool isCurrent = block.blockNumber() == current;
      painter.setPen(palette().color(isCurrent ? QPalette::Active : QPalette::Disabled, QPalette::Text));
      painter.drawText(QRectF(0, top, m_Margin->width() - kMarginGap, height),
                       Qt::AlignRight | Qt::AlignVCenter, QString::number(block.blockNumber() + 1));
    }
    top += height;
    block = block.next();
  }
}

void CodeEdit::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  LayOutMargin();
}

bool CodeEdit::event(QEvent* event) {
  const bool isInput = event->type() == QEvent::InputMethod;
  if (isInput) Q_EMIT InputBegins();
  const bool done = FocusFramed::event(event);
  if (isInput) Q_EMIT InputEnds();
  if (event->type() == QEvent::PaletteChange) {
    for (int i = 0; i < kSyntaxElementCount; ++i)
      m_Formats[static_cast<std::size_t>(i)] = FormatOf(static_cast<SyntaxElement>(i));
    ++m_Revision;
    m_Margin->update();
  }
  return done;
}

bool CodeEdit::viewportEvent(QEvent* event) {
  const QEvent::Type type = event->type();
  const bool isInput = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
                       type == QEvent::MouseMove || type == QEvent::MouseButtonDblClick ||
                       type == QEvent::Drop;
  if (isInput) Q_EMIT InputBegins();
  const bool done = FocusFramed::viewportEvent(event);
  if (isInput) Q_EMIT InputEnds();
  return done;
}

void CodeEdit::keyPressEvent(QKeyEvent* event) {
  Q_EMIT InputBegins();
  const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
  if (isTab && !isReadOnly() && (event->modifiers() & ~Qt::ShiftModifier) == 0) {
    Indent(event->key() == Qt::Key_Tab && event->modifiers() == Qt::NoModifier);
    event->accept();
  } else {
    FocusFramed::keyPressEvent(event);
  }
  Q_EMIT InputEnds();
}

void CodeEdit::keyReleaseEvent(QKeyEvent* event) {
  FocusFramed::keyReleaseEvent(event);
  if (!event->isAutoRepeat()) Q_EMIT KeyReleased(event->key(), event->modifiers());
}

// Blanks, as the indent of a new line counts blanks and no tabs. Several selected lines move as a whole.
void CodeEdit::Indent(bool further) {
  QTextCursor cursor = textCursor();
  const QTextBlock first = document()->findBlock(cursor.selectionStart());
  const QTextBlock last = document()->findBlock(cursor.selectionEnd());
  if (further && first == last) {
    const int column = cursor.selectionStart() - first.position();
    cursor.insertText(QString(m_TabBlanks - column % m_TabBlanks, u' '));
    setTextCursor(cursor);
    return;
  }
  cursor.beginEditBlock();
  for (QTextBlock block = first; block.isValid(); block = block.next()) {
    QTextCursor edge(block);
    if (further) {
      if (!block.text().isEmpty()) edge.insertText(QString(m_TabBlanks, u' '));
    } else {
      const QString text = block.text();
      int blanks = 0;
      while (blanks < std::min<int>(m_TabBlanks, static_cast<int>(text.size())) && text[blanks] == u' ')
        ++blanks;
      if (blanks == 0 && text.startsWith(u'\t')) blanks = 1;
      edge.setPosition(block.position() + blanks, QTextCursor::KeepAnchor);
      edge.removeSelectedText();
    }
    if (block == last) break;
  }
  cursor.endEditBlock();
}

void CodeEdit::insertFromMimeData(const QMimeData* source) {
  if (isReadOnly() || !source->hasText()) return;
  Q_EMIT InputBegins();
  textCursor().insertText(source->text(), QTextCharFormat());
  ensureCursorVisible();
  Q_EMIT InputEnds();
}

void CodeEdit::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return FocusFramed::wheelEvent(event);
  constexpr int kStep = 120;  // of the wheel, as the toolkit counts
  m_WheelRest += event->angleDelta().y();
  Zoom(m_WheelRest / kStep);
  m_WheelRest %= kStep;
  event->accept();
}

void CodeEdit::Zoom(int steps) {
  m_Zoom = std::clamp(m_Zoom + steps, -kGreatestZoom, kGreatestZoom);
  ApplyFont();
}

void CodeEdit::ApplyFont() {
  QFont font = this->font();
  const qreal size = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
  font.setPointSizeF(std::max<qreal>(size + m_Zoom, kLeastSize));
  // A machine that lacks the family gets another one whose characters are equally wide.
  font.setFamilies({font.family(), QFontDatabase::systemFont(QFontDatabase::FixedFont).family()});
  document()->setDefaultFont(font);
  setTabStopDistance(QFontMetricsF(font).horizontalAdvance(u' ') * m_TabBlanks);
  ++m_Revision;
  LayOutMargin();
}

void CodeEdit::contextMenuEvent(QContextMenuEvent* event) {
  const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
  menu->addSeparator();
  QAction* const numbers = menu->addAction(tr("Line &numbers"));
  numbers->setCheckable(true);
  numbers->setChecked(m_HasLineNumbers);
  connect(numbers, &QAction::toggled, this, &CodeEdit::SetLineNumbers);
  menu->exec(event->globalPos());
}

}  // namespace cardwright::qt
