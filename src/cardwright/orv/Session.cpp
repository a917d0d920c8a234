#include "cardwright/orv/Session.h"

#include <utility>

#include "cardwright/orv/ErrorTrap.h"
#include "cardwright/orv/Refusal.h"

namespace cardwright {

using orv::Refusal;
using orv::Refuse;

namespace {

Text Joined(const Text& first, const Text& second) {
  return first.IsEmpty() || second.IsEmpty() ? first + second : first + u"\r\n" + second;
}

}  // namespace

EmbeddedHost::Session::Session(const Text& source, bool readOnly) : m_Store(source, readOnly) {
  const orv::ErrorTrap trap;
  for (OGRLayer* layer : m_Store.Data().GetLayers()) AddTheme(*layer);
  // A layer whose columns are first read while another program holds a lock stays without them.
  if (trap.IsLock()) orv::RaiseNotOpened(source, trap.Reason());
}

void EmbeddedHost::Session::AddTheme(OGRLayer& layer) {
  auto theme = std::make_unique<Theme>(layer, m_Store);
  // No command could name it.
  if (theme->Name().View().find(u'|') != std::u16string_view::npos) return;
  m_Index.Add(theme->Name(), static_cast<int>(m_Themes.size()));
  m_Themes.push_back(std::move(theme));
}

const EmbeddedHost::Session::Verb EmbeddedHost::Session::kVerbs[] = {
    {u"THEME_NAMES", Effect::Asks, &Session::ThemeNames},
    {u"THEME_FEATURE_TYPES", Effect::Asks, &Session::ThemeFeatureTypes},
    {u"THEME_NUMBER", Effect::Asks, &Session::ThemeNumber},
    {u"THEME_ACTIVE", Effect::Asks, &Session::ThemeActive},
    {u"THEME_CREATE", Effect::EndsEdits, &Session::ThemeCreate},
    {u"THEME_SELECTION_BYVALUE", Effect::EndsEdits, &Session::SelectByValue},
    {u"THEME_SELECTION_NONE", Effect::EndsEdits, &Session::SelectNone},
    {u"THEME_SELECTED_NUMBER", Effect::Asks, &Session::SelectedNumber},
    {u"THEME_MOVEFIRST", Effect::EndsEdits, &Session::MoveFirst},
    {u"THEME_CURRENT_ISVALID", Effect::Asks, &Session::CurrentIsValid},
    {u"THEME_ATTRIBUTE_NUMBER", Effect::Asks, &Session::AttributeNumber},
    {u"THEME_ATTRIBUTE", Effect::Asks, &Session::AttributeRecord},
    {u"THEME_ATTRIBUTE_NAMES", Effect::Asks, &Session::AttributeNames},
    {u"THEME_GET_ATTRIBUTE", Effect::Asks, &Session::GetAttribute},
    {u"THEME_SET_ATTRIBUTE", Effect::AddsEdit, &Session::SetAttribute},
    {u"APPLICATION_FLAGREDRAW", Effect::EndsEdits, &Session::FlagRedraw},
    {u"APPLICATION_REDRAW", Effect::EndsEdits, &Session::Redraw},
    {u"HWND_CONTROL", Effect::Asks, &Session::ControlWindow},
};

const EmbeddedHost::Session::Verb* EmbeddedHost::Session::FindVerb(std::u16string_view name) {
  static const orv::NameIndex index = [] {
    orv::NameIndex names;
    for (const Verb& verb : kVerbs) names.Add(verb.name, static_cast<int>(&verb - kVerbs));
    return names;
  }();
  const int position = index.Find(name);
  return position == orv::NameIndex::kNone ? nullptr : &kVerbs[position];
}

EmbeddedHost::Session::Outcome EmbeddedHost::Session::Run(std::u16string_view command) {
  Outcome outcome;
  Perform(command, outcome);
  lastError = outcome.refusal;
  return outcome;
}

void EmbeddedHost::Session::Perform(std::u16string_view command, Outcome& outcome) {
  CommandReader parts(command);
  const auto name = parts.Word();
  const Verb* const verb = FindVerb(name);
  outcome.isQuestion = !verb || verb->effect == Effect::Asks;
  Text earlier;
  if (verb && verb->effect == Effect::EndsEdits) earlier = FinishEdits();
  Text own;
  bool isToldLater = false;
  try {
    if (!verb) Refuse(u"This host has no command " + orv::Quoted(name) + u".");
    outcome.answer = (this->*verb->perform)(parts);
  } catch (const Refusal& refusal) {
    own = refusal.reason;
    // A refused value is told together with all others that it takes down with it.
    isToldLater = verb && verb->effect == Effect::AddsEdit && m_Edits.IsOpen();
    if (isToldLater) m_Edits.Spoil(own);
  }
  if (!m_LateFailure.IsEmpty()) earlier = std::exchange(m_LateFailure, Text());
  outcome.refusal = Joined(earlier, own);
  outcome.telling = outcome.isQuestion || isToldLater ? earlier : outcome.refusal;
}

Text EmbeddedHost::Session::FinishEdits() {
  try {
    m_Edits.Finish(m_Store);
    return {};
  } catch (const Refusal& refusal) {
    return refusal.reason;
  }
}

// A form asks about one theme a few hundred times on end.
orv::Theme* EmbeddedHost::Session::FindTheme(std::u16string_view name) {
  if (m_LastTheme && m_LastTheme->Name() == name) return m_LastTheme;
  const int position = m_Index.Find(name);
  m_LastTheme =
      position == orv::NameIndex::kNone ? nullptr : m_Themes[static_cast<std::size_t>(position)].get();
  return m_LastTheme;
}

orv::Theme& EmbeddedHost::Session::ReadTheme(CommandReader& parts) {
  const auto name = parts.Barred(u"theme name");
  Theme* const theme = FindTheme(name);
  if (!theme) Refuse(u"There is no theme " + orv::Quoted(name) + u".");
  return *theme;
}

orv::Theme* EmbeddedHost::Session::ReadAnsweringTheme(CommandReader& parts) {
  Theme& theme = ReadTheme(parts);
  return theme.Answers(parts.Barred(u"feature type")) ? &theme : nullptr;
}

}  // namespace cardwright
