// SPDX-License-Identifier: MIT
#include "cardwright/shared/Messages.h"

#include <algorithm>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"

namespace cardwright {
namespace {

// clang-format off
constexpr Message kMessages[] = {
    {messages::ScriptErrorAt, u"Error N. %%1 - %%2 ##(Line: %%3    Column:%%4)"},
    {messages::ScriptError, u"Error N. %%1 - %%2"},
    {messages::Warning, u"WARNING!"},
    {messages::AttributeMissing, u"The attribute %%1 must be compiled!"},
    {messages::ControlMissing, u"The %%1 must be compiled!"},
    {messages::ProgramWithoutMain, u"It's impossible to execute the program:##%%1##Main routine not found!!!"},
    {messages::FormatNotRecognized, u"File format not recognized!!!"},
    {messages::TextHelp, u"Set the display text in the control."},
    {messages::BackColorHelp, u"Set the background color in the control."},
    {messages::FontHelp, u"Set the font."},
    {messages::WidthHelp, u"Set the object length."},
    {messages::HeightHelp, u"Set object height."},
    {messages::ForeColorHelp, u"Set text color."},
    {messages::AttributeHelp, u"Select which feature attribute is associated with the object."},
    {messages::IsNeededHelp, u"Specify whether compiling the control is obligatory."},
    {messages::SelectedHelp, u"Set default value."},
    {messages::SelectedTextHelp, u"Set initially selected value."},
    {messages::ComboItemsHelp, u"Set list item values."},
    {messages::LeftHelp,
     u"Set the distance between the left border of the object and the left border of its "
     u"container object."},
    {messages::TopHelp,
     u"Set the distance between the upper border of the object and the upper border of its "
     u"container object."},
    {messages::MacroHelp, u"Set the macro to execute from the command button."},
    {messages::FormTextHelp, u"Set the form's title-bar text."},
    {messages::FormBackColorHelp, u"Set the background color of the form."},
    {messages::FormFontHelp, u"Set the pre-defined font format for all form controls."},
    {messages::FormWidthHelp, u"Set the form length."},
    {messages::FormHeightHelp, u"Set form height."},
    {messages::ThemeNameHelp, u"Display which theme is associated with the form."},
    {messages::FormFeatureTypeHelp, u"Display which type of feature is associated with the form."},
    {messages::ListItemsHelp, u"Set the listbox item values."},
    {messages::ValueHelp, u"Set the value to be inserted in the attribute."},
    {messages::Cut, u"Cut"},
    {messages::Copy, u"Copy"},
    {messages::Paste, u"Paste"},
    {messages::Delete, u"Delete"},
    {messages::SendToBack, u"Send to back"},
    {messages::BringToFront, u"Bring to front"},
    {messages::LockControls, u"Lock/Unlock controls"},
    {messages::Properties, u"Properties"},
    {messages::BeforeAttributesHelp, u"Define the script to be executed before the attributes are set"},
    {messages::UnknownFormat, u"Unknown file format !!!"},
    {messages::MainMissing, u"Unable to execute program:##Sub or function Main missing !!!"},
    {messages::SaveChanges, u"Do you want to save changes ?"},
    {messages::NoResults, u"No results found for \"%%1\""},
    {messages::Save, u"Save"},
    {messages::Options, u"Options..."},
    {messages::OrvInfo, u"ORV info"},
    {messages::Undo, u"Undo"},
    {messages::Redo, u"Redo"},
    {messages::Find, u"Find..."},
    {messages::FindNext, u"Find next"},
    {messages::Replace, u"Replace..."},
    {messages::AddOrvCommand, u"Add ORV command"},
    {messages::AddOrvRequest, u"Add ORV request"},
    {messages::AfterAttributesHelp, u"Define the script to be executed after the attributes have been set"},
    {messages::LanguageStatus, u"Language: %%1"},
    {messages::CaretStatus, u"Line %%1, Col %%2"},
    {messages::Ok, u"Ok"},
    {messages::Cancel, u"Cancel"},
    {messages::MinusSignHelp, u"Allow the user to insert a negative value if the linked attribute is numeric"},
    {messages::BrowseForFolderHelp, u"Set the folder selection. The ShowSave property will be ignored"},
    {messages::FilterHelp,
     u"Set the files selection filter. The format must be "
     u"<Description1>|<extension1>;<extension2>;...<extensionN>|<Description2>|...|<DescriptionN>. "
     u"e.g. \"OV Tarvo Project/Theme (*.ovp;*.tem)|*.ovp;*.tem|All files (*.*)|*.*\""},
    {messages::InputTextHelp, u"Allow the user to insert the path manually."},
    {messages::ShowSaveHelp, u"Set the file selection mode (Open or Save)"},
    {messages::TitleHelp, u"Set the title to be displayed in the file selection window."},
    {messages::MultipleFilesHelp, u"Allow the user to select multiple files from the selection window."},
    {messages::NameHelp, u"Set the unique name which identifies the object in the form."},
    {messages::ColorHelp, u"Set the initial color"},
    {messages::MaskValueHelp, u"Set the template to be used in the Value property.##%%1"},
    {messages::FontSelectorHelp, u"Set the inital Font"},
    {messages::ColorMaskParameters,
     u"The available parameters are: %c% (Color as OLE_COLOR), %r% (Red component), %g% (Green "
     u"component), %b% (Blue component)."},
    {messages::FontMaskParameters,
     u"The available parameters are: %n% (Font name), %s% (Font size in Points), %spx% (Font "
     u"size in pixels), %stw% (Font size in twips), %r% (Red color component), %g% (Green "
     u"color component), %b% (Blue color component), %bold% (Bold), %italic% (Italics), "
     u"%underline% (Underilne), %strikethrough% (Strikethrough)."},
    {messages::BorderHelp, u"Add a border to the control"},
    {messages::AutoSizeHelp, u"Set automatic sizing of the control based on the selected Font"},
    {messages::ThemeSelectorNameHelp, u"Set the ThemeSelector object name to be linked to this control"},
    {messages::FeatureTypeHelp,
     u"Set the type of feature from which to load the attributes list relative to the selected "
     u"Theme in the linked ThemeSelector object"},
    {messages::EditableHelp, u"Allow user to modify the text of the object."},
    {messages::RegKeyHelp,
     u"Set the registry key to store the last selected path from the user. The format of this "
     u"value must be ApplicationName/SectionName/KeyName"},
    {messages::ConnectionInvalid, u"Invalid OV Tarvo connection !##Unable to execute the Script"},
    {messages::FeatureSelectorNameHelp,
     u"Set the ComboBox object name to be linked to this control to set the feature type. The "
     u"Items property in the linked ComboBox object must be set as follows: Points, Arcs, "
     u"Polygons."},
    {messages::InputTypeHelp, u"Set the input type for this control."},
    {messages::InitializeHelp, u"Define the script to to be executed when the form is initialized."},
    {messages::StartModeHelp, u"Set the initialization mode for the Form."},
    {messages::ImageHelp,
     u"Set the project icon.##The size of the image must be 16 x 16 pixesl. The white color "
     u"will be considered transparent"},
    {messages::ImageFilter,
     u"All image files "
     u"(*.emf;*.wmf;*.bmp;*.ico;*.gif;*.jpg)|*.emf;*.wmf;*.bmp;*.ico;*.gif;*.jpg|Windows "
     u"Metafile (*.wmf;*.emf)|*.wmf;*.emf|Bitmap Windows/OS2 (*.bmp)|*.bmp|Icona "
     u"(*.ico)|*.ico|CompuServe Graphic Interchange image (*.gif)|*.gif|JPEG (*.jpg)|*.jpg"},
    {messages::CreateThemeTextHelp,
     u"Allow the user to create a new Theme.##Set an empty value to disable the creation "
     u"option."},
    {messages::FontBackColorHelp, u"Set the background color of the selected Font display area"},
    {messages::InputBackColorHelp, u"Set the background color of the input TextBox."},
    {messages::InternalProcedure, u"INTERNAL PROCEDURE: %%1"},
    {messages::StorageStart, u"DATA STORAGE START"},
    {messages::StorageEnd, u"DATA STORAGE END"},
};
// clang-format on

static_assert(std::ranges::is_sorted(kMessages, std::ranges::less_equal(), &Message::id) &&
              std::ranges::adjacent_find(kMessages, {}, &Message::id) == std::end(kMessages));

constexpr int kResourceNotFound = 326;

// What the platform answers for a number that its string table lacks.
Text LoadResString(int id) {
  const auto found = std::ranges::lower_bound(kMessages, id, {}, &Message::id);
  if (found != std::end(kMessages) && found->id == id) return found->text;
  Raise(kResourceNotFound, Text(u"Resource with identifier '") + ToText(id) + u"' not found");
}

}  // namespace

std::span<const Message> MessageTable() noexcept { return kMessages; }

Text ExpandLineBreaks(std::u16string_view text) { return Replace(text, u"##", u"\r\n"); }

// One argument after the other: a place that an earlier argument brings in is filled by a later one.
Text GetMessage(int id, std::span<const Variant> args) {
  Text text = ExpandLineBreaks(LoadResString(id));
  for (std::size_t i = 0; i < args.size(); ++i) {
    const Text place = Text(u"%%") + ToText(static_cast<std::int32_t>(i + 1));
    text = Replace(text, place, ToText(args[i]));
  }
  return text;
}

Text GetMessage(int id, std::initializer_list<Variant> args) {
  return GetMessage(id, std::span<const Variant>(args.begin(), args.size()));
}

}  // namespace cardwright
