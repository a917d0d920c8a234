#include "cardwright/shared/Messages.h"

#include <algorithm>

#include "cardwright/automation/Conversions.h"
#include "cardwright/automation/Errors.h"

namespace cardwright {
namespace {

// clang-format off
constexpr Message kMessages[] = {
    {98, u"Error N. %%1 - %%2 ##(Line: %%3    Column:%%4)"},
    {99, u"Error N. %%1 - %%2"},
    {100, u"WARNING!"},
    {101, u"The attribute %%1 must be compiled!"},
    {102, u"The %%1 must be compiled!"},
    {103, u"It's impossible to execute the program:##%%1##Main routine not found!!!"},
    {104, u"File format not recognized!!!"},
    {1000, u"Set the display text in the control."},
    {1001, u"Set the background color in the control."},
    {1002, u"Set the font."},
    {1005, u"Set the object length."},
    {1006, u"Set object height."},
    {1007, u"Set text color."},
    {1008, u"Select which feature attribute is associated with the object."},
    {1009, u"Specify whether compiling the control is obligatory."},
    {1010, u"Set default value."},
    {1011, u"Set initially selected value."},
    {1012, u"Set list item values."},
    {1013,
     u"Set the distance between the left border of the object and the left border of its "
     u"container object."},
    {1014,
     u"Set the distance between the upper border of the object and the upper border of its "
     u"container object."},
    {1015, u"Set the macro to execute from the command button."},
    {1016, u"Set the form's title-bar text."},
    {1017, u"Set the background color of the form."},
    {1018, u"Set the pre-defined font format for all form controls."},
    {1019, u"Set the form length."},
    {1020, u"Set form height."},
    {1021, u"Display which theme is associated with the form."},
    {1022, u"Display which type of feature is associated with the form."},
    {1023, u"Set the listbox item values."},
    {1024, u"Set the value to be inserted in the attribute."},
    {1025, u"Cut"},
    {1026, u"Copy"},
    {1027, u"Paste"},
    {1028, u"Delete"},
    {1029, u"Send to back"},
    {1030, u"Bring to front"},
    {1031, u"Lock/Unlock controls"},
    {1032, u"Properties"},
    {1033, u"Define the script to be executed before the attributes are set"},
    {1034, u"Unknown file format !!!"},
    {1035, u"Unable to execute program:##Sub or function Main missing !!!"},
    {1036, u"Do you want to save changes ?"},
    {1037, u"No results found for \"%%1\""},
    {1038, u"Save"},
    {1039, u"Options..."},
    {1040, u"ORV info"},
    {1041, u"Undo"},
    {1042, u"Redo"},
    {1043, u"Find..."},
    {1044, u"Find next"},
    {1045, u"Replace..."},
    {1046, u"Add ORV command"},
    {1047, u"Add ORV request"},
    {1048, u"Define the script to be executed after the attributes have been set"},
    {1049, u"Language: %%1"},
    {1050, u"Line %%1, Col %%2"},
    {1051, u"Ok"},
    {1052, u"Cancel"},
    {1053, u"Allow the user to insert a negative value if the linked attribute is numeric"},
    {1054, u"Set the folder selection. The ShowSave property will be ignored"},
    {1055,
     u"Set the files selection filter. The format must be "
     u"<Description1>|<extension1>;<extension2>;...<extensionN>|<Description2>|...|<DescriptionN>. "
     u"e.g. \"OV Tarvo Project/Theme (*.ovp;*.tem)|*.ovp;*.tem|All files (*.*)|*.*\""},
    {1056, u"Allow the user to insert the path manually."},
    {1057, u"Set the file selection mode (Open or Save)"},
    {1058, u"Set the title to be displayed in the file selection window."},
    {1059, u"Allow the user to select multiple files from the selection window."},
    {1060, u"Set the unique name which identifies the object in the form."},
    {1061, u"Set the initial color"},
    {1062, u"Set the template to be used in the Value property.##%%1"},
    {1063, u"Set the inital Font"},
    {1064,
     u"The available parameters are: %c% (Color as OLE_COLOR), %r% (Red component), %g% (Green "
     u"component), %b% (Blue component)."},
    {1065,
     u"The available parameters are: %n% (Font name), %s% (Font size in Points), %spx% (Font "
     u"size in pixels), %stw% (Font size in twips), %r% (Red color component), %g% (Green "
     u"color component), %b% (Blue color component), %bold% (Bold), %italic% (Italics), "
     u"%underline% (Underilne), %strikethrough% (Strikethrough)."},
    {1066, u"Add a border to the control"},
    {1067, u"Set automatic sizing of the control based on the selected Font"},
    {1068, u"Set the ThemeSelector object name to be linked to this control"},
    {1069,
     u"Set the type of feature from which to load the attributes list relative to the selected "
     u"Theme in the linked ThemeSelector object"},
    {1070, u"Allow user to modify the text of the object."},
    {1071,
     u"Set the registry key to store the last selected path from the user. The format of this "
     u"value must be ApplicationName/SectionName/KeyName"},
    {1072, u"Invalid OV Tarvo connection !##Unable to execute the Script"},
    {1073,
     u"Set the ComboBox object name to be linked to this control to set the feature type. The "
     u"Items property in the linked ComboBox object must be set as follows: Points, Arcs, "
     u"Polygons."},
    {1074, u"Set the input type for this control."},
    {1075, u"Define the script to to be executed when the form is initialized."},
    {1076, u"Set the initialization mode for the Form."},
    {1077,
     u"Set the project icon.##The size of the image must be 16 x 16 pixesl. The white color "
     u"will be considered transparent"},
    {1078,
     u"All image files "
     u"(*.emf;*.wmf;*.bmp;*.ico;*.gif;*.jpg)|*.emf;*.wmf;*.bmp;*.ico;*.gif;*.jpg|Windows "
     u"Metafile (*.wmf;*.emf)|*.wmf;*.emf|Bitmap Windows/OS2 (*.bmp)|*.bmp|Icona "
     u"(*.ico)|*.ico|CompuServe Graphic Interchange image (*.gif)|*.gif|JPEG (*.jpg)|*.jpg"},
    {1079,
     u"Allow the user to create a new Theme.##Set an empty value to disable the creation "
     u"option."},
    {1080, u"Set the background color of the selected Font display area"},
    {1081, u"Set the background color of the input TextBox."},
    {1082, u"INTERNAL PROCEDURE: %%1"},
    {1083, u"DATA STORAGE START"},
    {1084, u"DATA STORAGE END"},
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
