// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <span>
#include <string_view>

#include "cardwright/automation/Text.h"
#include "cardwright/automation/Variant.h"

namespace cardwright {

/// Numbers of the messages. Translated captions of widgets and hosts know them, so they never change, and
/// some have no other use. `…Help` describes a row of the property grid.
namespace messages {
enum Number : int {
  ScriptErrorAt = 98,
  ScriptError = 99,
  Warning = 100,
  AttributeMissing = 101,
  ControlMissing = 102,
  ProgramWithoutMain = 103,
  FormatNotRecognized = 104,
  TextHelp = 1000,
  BackColorHelp = 1001,
  FontHelp = 1002,
  WidthHelp = 1005,
  HeightHelp = 1006,
  ForeColorHelp = 1007,
  AttributeHelp = 1008,
  IsNeededHelp = 1009,
  SelectedHelp = 1010,
  SelectedTextHelp = 1011,
  ComboItemsHelp = 1012,
  LeftHelp = 1013,
  TopHelp = 1014,
  MacroHelp = 1015,
  FormTextHelp = 1016,
  FormBackColorHelp = 1017,
  FormFontHelp = 1018,
  FormWidthHelp = 1019,
  FormHeightHelp = 1020,
  ThemeNameHelp = 1021,
  FormFeatureTypeHelp = 1022,
  ListItemsHelp = 1023,
  ValueHelp = 1024,
  Cut = 1025,
  Copy = 1026,
  Paste = 1027,
  Delete = 1028,
  SendToBack = 1029,
  BringToFront = 1030,
  LockControls = 1031,
  Properties = 1032,
  BeforeAttributesHelp = 1033,
  UnknownFormat = 1034,
  MainMissing = 1035,
  SaveChanges = 1036,
  NoResults = 1037,
  Save = 1038,
  Options = 1039,
  OrvInfo = 1040,
  Undo = 1041,
  Redo = 1042,
  Find = 1043,
  FindNext = 1044,
  Replace = 1045,
  AddOrvCommand = 1046,
  AddOrvRequest = 1047,
  AfterAttributesHelp = 1048,
  LanguageStatus = 1049,
  CaretStatus = 1050,
  Ok = 1051,
  Cancel = 1052,
  MinusSignHelp = 1053,
  BrowseForFolderHelp = 1054,
  FilterHelp = 1055,
  InputTextHelp = 1056,
  ShowSaveHelp = 1057,
  TitleHelp = 1058,
  MultipleFilesHelp = 1059,
  NameHelp = 1060,
  ColorHelp = 1061,
  MaskValueHelp = 1062,
  FontSelectorHelp = 1063,
  ColorMaskParameters = 1064,
  FontMaskParameters = 1065,
  BorderHelp = 1066,
  AutoSizeHelp = 1067,
  ThemeSelectorNameHelp = 1068,
  FeatureTypeHelp = 1069,
  EditableHelp = 1070,
  RegKeyHelp = 1071,
  ConnectionInvalid = 1072,
  FeatureSelectorNameHelp = 1073,
  InputTypeHelp = 1074,
  InitializeHelp = 1075,
  StartModeHelp = 1076,
  ImageHelp = 1077,
  ImageFilter = 1078,
  CreateThemeTextHelp = 1079,
  FontBackColorHelp = 1080,
  InputBackColorHelp = 1081,
  InternalProcedure = 1082,
  StorageStart = 1083,
  StorageEnd = 1084,
};
}  // namespace messages

/// A text of the interface. "##" means a line break, "%%1" and so on for the arguments.
struct Message {
  int id;
  std::u16string_view text;
};

/// All texts that a user reads, by ascending number. A translation replaces this table whole.
std::span<const Message> MessageTable() noexcept;

/// Every "##" as CR LF.
Text ExpandLineBreaks(std::u16string_view text);

/// @name Text of a number with its arguments put in, in order; a place without an argument stays as it is.
/// Error 326 for a number that the table lacks.
/// @{
Text GetMessage(int id, std::span<const Variant> args = {});
Text GetMessage(int id, std::initializer_list<Variant> args);
/// @}

}  // namespace cardwright
