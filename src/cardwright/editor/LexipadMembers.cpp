// SPDX-License-Identifier: MIT
// What a syntax-colouring widget answers to by name. Names of settings are lower case, as property bags of
// hosts hold them; the options dialog and scripts go through them.

#include <utility>

#include "cardwright/automation/Errors.h"
#include "cardwright/editor/Lexipad.h"
#include "cardwright/platform/WidgetMembers.h"

namespace cardwright {

namespace {

template <auto Field>
using LanguageValue = typename detail::FieldOf<decltype(Field)>::Value;
template <auto Field>
LanguageValue<Field> GetOfLanguage(Lexipad& pad) {
  return pad.Language().*Field;
}
template <auto Field>
void LetOfLanguage(Lexipad& pad, LanguageValue<Field> value) {
  LexipadLanguage language = pad.Language();
  language.*Field = std::move(value);
  pad.SetLanguage(std::move(language));
}

template <auto Field>
constexpr Member LanguageSetting(std::u16string_view name) {
  return Property<&GetOfLanguage<Field>, &LetOfLanguage<Field>>(name);
}

template <SyntaxElement Element>
OleColor GetColor(Lexipad& pad) {
  return pad.Style(Element).color;
}
template <SyntaxElement Element>
void LetColor(Lexipad& pad, OleColor color) {
  pad.SetStyle(Element, {color, pad.Style(Element).bold});
}
template <SyntaxElement Element>
bool GetBold(Lexipad& pad) {
  return pad.Style(Element).bold;
}
template <SyntaxElement Element>
void LetBold(Lexipad& pad, bool bold) {
  pad.SetStyle(Element, {pad.Style(Element).color, bold});
}

template <SyntaxElement Element>
constexpr Member ColorSetting(std::u16string_view name) {
  return Property<&GetColor<Element>, &LetColor<Element>>(name);
}
template <SyntaxElement Element>
constexpr Member BoldSetting(std::u16string_view name) {
  return Property<&GetBold<Element>, &LetBold<Element>>(name);
}

bool IsWordText(Lexipad& pad, const Text& character) {
  return character.Size() == 1 && pad.IsWordChar(character[0]);
}

// A flag that callers may give with an update changes nothing.
void BeginUpdateBy(Lexipad& pad, std::optional<bool> /*flag*/) { pad.BeginUpdate(); }
void EndUpdateBy(Lexipad& pad, std::optional<bool> /*flag*/) { pad.EndUpdate(); }

TokenKind TokenClassAt(Lexipad& pad, std::optional<std::int32_t> position) {
  return pad.TokenClass(position);
}

std::int32_t FindIn(Lexipad& pad, Text text, std::int32_t start, std::optional<std::int32_t> end,
                    std::optional<std::int32_t> options) {
  return pad.Find(text, start, end, options.value_or(0));
}

void ReformatBy(Lexipad& pad, std::int32_t mode, std::optional<std::int32_t> line) {
  if (mode != 1 && mode != 2) Raise(ErrorNumber::InvalidCall);
  pad.Reformat(static_cast<ReformatMode>(mode), line);
}

constexpr Member kPadText[] = {
    Property<&Lexipad::Contents, &Lexipad::SetContents>(u"Text"),
    Property<&Lexipad::SelStart, &Lexipad::SetSelStart>(u"SelStart"),
    Property<&Lexipad::SelLength, &Lexipad::SetSelLength>(u"SelLength"),
    Property<&Lexipad::SelText, &Lexipad::SetSelText>(u"SelText"),
    Property<&Lexipad::SelColor>(u"SelColor"),
    Property<&Lexipad::CurrentLine>(u"CurrentLine"),
    Property<&Lexipad::CurrentCol>(u"CurrentCol"),
    Property<&Lexipad::LineCount>(u"LineCount"),
    Property<&Lexipad::LineText>(u"LineText"),
    Method<&Lexipad::LineIndex>(u"LineIndex"),
    Method<&Lexipad::LineFromChar>(u"LineFromChar"),
    Method<&Lexipad::LineLength>(u"LineLength"),
    Property<&Lexipad::TabSize>(u"TabSize"),
    Property<&TokenClassAt>(u"TokenClass"),
    Method<&IsWordText>(u"IsWordChar"),
    Property<&Lexipad::CaretX>(u"CaretX"),
    Property<&Lexipad::CaretY>(u"CaretY"),
    Method<&BeginUpdateBy>(u"BeginUpdate"),
    Method<&EndUpdateBy>(u"EndUpdate"),
    Method<&FindIn>(u"Find"),
    Method<&Lexipad::MoveToDelimiter>(u"MoveToDelimiter"),
    Method<&ReformatBy>(u"Reformat"),
    Method<&Lexipad::Undo>(u"Undo"),
    Method<&Lexipad::Redo>(u"Redo"),
    Property<&Lexipad::CanUndo>(u"CanUndo"),
    Property<&Lexipad::CanRedo>(u"CanRedo"),
    Method<&Lexipad::EmptyUndoBuffer>(u"EmptyUndoBuffer"),
};

// The bold of plain text is that of the widget's font, under the name that the options dialog uses.
constexpr Member kPadSettings[] = {
    LanguageSetting<&LexipadLanguage::changeCase>(u"changecase"),
    LanguageSetting<&LexipadLanguage::caseSensitive>(u"casesensitive"),
    LanguageSetting<&LexipadLanguage::translateMode>(u"translatemode"),
    LanguageSetting<&LexipadLanguage::keywords>(u"keywords"),
    LanguageSetting<&LexipadLanguage::constants>(u"constants"),
    LanguageSetting<&LexipadLanguage::remarks>(u"remarks"),
    LanguageSetting<&LexipadLanguage::remarkKeyword>(u"remarkkeyword"),
    LanguageSetting<&LexipadLanguage::remarkBlocksStart>(u"remarkblocksstart"),
    LanguageSetting<&LexipadLanguage::remarkBlocksEnd>(u"remarkblocksend"),
    LanguageSetting<&LexipadLanguage::stringQuotes>(u"stringquotes"),
    LanguageSetting<&LexipadLanguage::operators>(u"operators"),
    LanguageSetting<&LexipadLanguage::operatorsFormat>(u"operatorsformat"),
    LanguageSetting<&LexipadLanguage::separators>(u"separators"),
    LanguageSetting<&LexipadLanguage::separatorsFormat>(u"separatorsformat"),
    BoldSetting<SyntaxElement::Text>(u"fontbold"),
    ColorSetting<SyntaxElement::Keywords>(u"keywordscolor"),
    BoldSetting<SyntaxElement::Keywords>(u"keywordsbold"),
    ColorSetting<SyntaxElement::Remarks>(u"remarkscolor"),
    BoldSetting<SyntaxElement::Remarks>(u"remarksbold"),
    ColorSetting<SyntaxElement::Constants>(u"constantscolor"),
    BoldSetting<SyntaxElement::Constants>(u"constantsbold"),
    ColorSetting<SyntaxElement::Strings>(u"stringscolor"),
    BoldSetting<SyntaxElement::Strings>(u"stringsbold"),
    ColorSetting<SyntaxElement::Numbers>(u"numberscolor"),
    BoldSetting<SyntaxElement::Numbers>(u"numbersbold"),
    ColorSetting<SyntaxElement::Variables>(u"variablescolor"),
    BoldSetting<SyntaxElement::Variables>(u"variablesbold"),
    Property<&Lexipad::MaxLineLength, &Lexipad::SetMaxLineLength>(u"maxlinelength"),
    Property<&Lexipad::ImageLockMaxWidth, &Lexipad::SetImageLockMaxWidth>(u"imagelockmaxwidth"),
    Property<&Lexipad::ImageLockMaxHeight, &Lexipad::SetImageLockMaxHeight>(u"imagelockmaxheight"),
};

}  // namespace

const MemberTable& Lexipad::Members() const {
  static const std::vector<Member> members = WithWidgetMembers({kPadText, kPadSettings});
  static const MemberTable table(members, u"Text");
  return table;
}

}  // namespace cardwright
