#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "cardwright/orv/Command.h"
#include "cardwright/orv/Edits.h"
#include "cardwright/orv/EmbeddedHost.h"
#include "cardwright/orv/NameIndex.h"
#include "cardwright/orv/Store.h"
#include "cardwright/orv/Theme.h"

namespace cardwright {

/// The themes of a store, their selections, and the commands over them.
class EmbeddedHost::Session {
 public:
  /// What a command has come to.
  struct Outcome {
    Text answer;
    Text refusal;  ///< "" where the command was carried out
    Text telling;  ///< what a person is to be told now; a refused question is left to who asked it
    bool isQuestion = true;
  };

  Session(const Text& source, bool readOnly);

  /// Carries out a command. Refusals are part of the outcome.
  Outcome Run(std::u16string_view command);
  /// Stores the values that wait; the reason where they could not be stored.
  Text FinishEdits();
  std::vector<std::int64_t> FeatureIds(std::u16string_view theme);
  void ReadFeatures(std::u16string_view theme, std::span<const Text> attributes,
                    const std::function<void(std::int64_t id, std::vector<Text> values)>& onFeature);

  bool IsReadOnly() const noexcept { return m_Store.IsReadOnly(); }

  std::int32_t handle = 0;
  Text lastError;

 private:
  using CommandReader = orv::CommandReader;
  using Theme = orv::Theme;

  /// What a command does to values that wait to be stored.
  enum class Effect { Asks, AddsEdit, EndsEdits };
  struct Verb {
    std::u16string_view name;
    Effect effect;
    Text (Session::*perform)(CommandReader& parts);
  };
  static const Verb kVerbs[];
  static const Verb* FindVerb(std::u16string_view name);

  void Perform(std::u16string_view command, Outcome& outcome);

  Theme* FindTheme(std::u16string_view name);
  /// The theme of the first two parts; refused where there is none of that name.
  Theme& ReadTheme(CommandReader& parts);
  /// The same where the theme has features of the type asked for, else null.
  Theme* ReadAnsweringTheme(CommandReader& parts);

  /// @name The commands, each by its own name.
  /// @{
  Text ThemeNames(CommandReader& parts);
  /// The feature type of each theme that ThemeNames answers, in its order.
  Text ThemeFeatureTypes(CommandReader& parts);
  Text ThemeNumber(CommandReader& parts);
  Text ThemeActive(CommandReader& parts);
  Text ThemeCreate(CommandReader& parts);
  Text SelectByValue(CommandReader& parts);
  Text SelectNone(CommandReader& parts);
  Text SelectedNumber(CommandReader& parts);
  Text MoveFirst(CommandReader& parts);
  Text CurrentIsValid(CommandReader& parts);
  Text AttributeNumber(CommandReader& parts);
  Text AttributeRecord(CommandReader& parts);
  Text AttributeNames(CommandReader& parts);
  Text GetAttribute(CommandReader& parts);
  Text SetAttribute(CommandReader& parts);
  Text FlagRedraw(CommandReader& parts);
  Text Redraw(CommandReader& parts);
  Text ControlWindow(CommandReader& parts);
  /// @}

  void AddTheme(OGRLayer& layer);
  void SelectById(Theme& theme, const orv::GivenValue& id);
  void SelectWhere(Theme& theme, const orv::Attribute& attribute, const orv::GivenValue& given);
  std::vector<std::int64_t> IdsWhere(Theme& theme, const orv::Attribute& attribute,
                                     const orv::FieldValue& value);
  void KeepValue(OGRFeature& feature, const orv::Attribute& attribute, const orv::GivenValue& given);

  orv::Store m_Store;
  std::vector<std::unique_ptr<Theme>> m_Themes;
  orv::NameIndex m_Index;
  Theme* m_LastTheme = nullptr;
  orv::Edits m_Edits;
  /// Why the values of another feature could not be stored when a value for the next one came.
  Text m_LateFailure;
};

}  // namespace cardwright
