// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "cardwright/orv/CommandReader.h"
#include "cardwright/orv/NameLookup.h"
#include "cardwright/orv/PendingEdits.h"
#include "cardwright/orv/Store.h"
#include "cardwright/orv/Theme.h"

namespace cardwright::orv {

/// What a command resulted in.
struct CommandResult {
  Text reply;
  Text error;   ///< "" where the command was carried out
  Text notice;  ///< the error to report to the user; a failed query leaves that to whoever sent it
  bool isQuery = true;
};

/// The themes of an open store, their selections, and the commands over them.
class StoreSession {
 public:
  StoreSession(const Text& source, bool readOnly);

  /// Carries out a command. Errors are part of the result.
  CommandResult Run(std::u16string_view command);
  /// Stores the pending values. Returns the reason where they could not be stored.
  Text FlushEdits();

  /// @name For programs that show all features of a theme
  /// @{
  std::vector<std::int64_t> FeatureIds(std::u16string_view theme);
  void ReadFeatures(std::u16string_view theme, std::span<const Text> attributes,
                    const std::function<void(std::int64_t id, std::vector<Text> values)>& onFeature);
  /// @}

  bool IsReadOnly() const noexcept { return m_Store.IsReadOnly(); }

  std::int32_t handle = 0;
  Text lastError;

 private:
  /// What a command does to the pending values.
  enum class Effect { Query, AddsEdit, FlushesEdits };
  struct Command {
    std::u16string_view name;
    Effect effect;
    Text (StoreSession::*perform)(CommandReader& parts);
  };
  static const Command kCommands[];
  static const Command* FindCommand(std::u16string_view name);

  void Perform(std::u16string_view text, CommandResult& result);

  void AddTheme(OGRLayer& layer);
  Theme* FindTheme(std::u16string_view name);
  /// The theme that the next part names. Fails where there is none of that name.
  Theme& ReadTheme(CommandReader& parts);
  /// The theme that the next two parts name with its feature type; null where the type is another.
  Theme* ReadThemeOfType(CommandReader& parts);

  /// @name The commands, in StoreCommands.cpp
  /// @{
  Text ThemeNames(CommandReader& parts);
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

  void SelectById(Theme& theme, const CommandValue& id);
  void SelectWhere(Theme& theme, const Attribute& attribute, const CommandValue& given);
  std::vector<std::int64_t> IdsWhere(Theme& theme, const Attribute& attribute, const FieldValue& value);
  void SetValue(OGRFeature& feature, const Attribute& attribute, const CommandValue& given);

  Store m_Store;
  std::vector<std::unique_ptr<Theme>> m_Themes;
  NameLookup m_ThemeNames;
  Theme* m_LastTheme = nullptr;
  PendingEdits m_Edits;
  /// Why the values of one feature could not be stored when a value for another one came.
  Text m_FlushError;
};

}  // namespace cardwright::orv
