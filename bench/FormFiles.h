// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

/// One form in two languages: a form project and the toolkit's own XML, with the same widgets in the same
/// places.
namespace bench {

enum class Kind {
  Frame,
  Label,
  TextBox,
  CheckBox,
  OptionButton,
  ComboBox,
  CommandButton,
  Multiline,
  ListBox
};

struct Element {
  Kind kind;
  int number;     // from 1
  int frame = 0;  // number of the frame that contains it; 0 for the form itself
  int left;       // pixels
  int top;
  int width;
  int height;
};

/// `frames` frames with 19 controls of all kinds in each.
inline std::vector<Element> MixedForm(int frames) {
  constexpr Kind kinds[] = {Kind::Label,     Kind::TextBox, Kind::CheckBox,      Kind::OptionButton,
                            Kind::ComboBox,  Kind::TextBox, Kind::CommandButton, Kind::Label,
                            Kind::Multiline, Kind::ListBox};
  std::vector<Element> form;
  for (int i = 0; i < frames; ++i) {
    const int frame = static_cast<int>(form.size()) + 1;
    form.push_back({Kind::Frame, frame, 0, 8 + 200 * (i % 5), 8 + 500 * (i / 5), 192, 490});
    for (int k = 0; k < 19; ++k)
      form.push_back({kinds[k % 10], frame + k + 1, frame, 8, 20 + 24 * k, 170, 21});
  }
  return form;
}

inline std::string ProjectFont() {
  return "FontName=DejaVu Sans\r\nFontSize= 8\r\nFontBold= 0\r\nFontItalic= 0\r\nFontUnderline= 0\r\n"
         "FontStrikethrough= 0\r\n";
}

inline std::string ProjectItems() {
  std::ostringstream out;
  for (int i = 1; i <= 5; ++i)
    out << "Value_Item_" << i << "=V" << i << "\r\nText_Item_" << i << "=Item " << i << "\r\n";
  return out.str();
}

/// The section of one control, its keys in writing order. `attribute` may be empty.
inline std::string ProjectSection(const Element& element, const std::string& attribute = {}) {
  static const char* const types[] = {"Frame",        "Label",    "TextBox",       "CheckBox",
                                      "OptionButton", "ComboBox", "CommandButton", "textboxmultiline",
                                      "ListBox"};
  const Kind kind = element.kind;
  const bool isEdit =
      kind == Kind::TextBox || kind == Kind::ComboBox || kind == Kind::Multiline || kind == Kind::ListBox;
  const bool hasColors = kind != Kind::CommandButton;
  const std::string name = std::to_string(element.number);
  const std::string bound = "Attribute=" + attribute + "\r\n";
  std::ostringstream out;
  out << "[CONTROLS_" << name << "]\r\nType=" << types[static_cast<int>(kind)] << "\r\nName=object_" << name
      << "\r\nUserName=control" << name << "\r\nText=" << (isEdit ? "" : "Text " + name) << "\r\n";
  if (hasColors) out << "BackColor=" << (isEdit ? -2147483643 : -2147483633) << "\r\n";
  out << ProjectFont() << "Left= " << element.left << "\r\nTop= " << element.top
      << "\r\nWidth= " << element.width << "\r\n";
  if (kind != Kind::ComboBox) out << "Height= " << element.height << "\r\n";
  if (hasColors) out << "ForeColor=" << (isEdit ? -2147483640 : -2147483630) << "\r\n";
  if (kind == Kind::CheckBox) out << bound << "IsNeeded=False\r\nSelected=False\r\n";
  if (kind == Kind::OptionButton) out << bound << "Selected=False\r\nValue=V" << name << "\r\n";
  if (kind == Kind::TextBox) out << bound << "IsNeeded=False\r\nMinusSignEnabled=True\r\nInputType=Text\r\n";
  if (kind == Kind::Multiline) out << bound << "IsNeeded=False\r\nMinusSignEnabled=True\r\n";
  if (kind == Kind::ComboBox)
    out << "Editable=False\r\n"
        << bound << "ItemsNumber= 5\r\nIsNeeded=False\r\nMinusSignEnabled=True\r\n"
        << ProjectItems();
  if (kind == Kind::ListBox)
    out << bound << "ItemsNumber= 5\r\nIsNeeded=False\r\nMultiSelect=False\r\n" << ProjectItems();
  out << "Container=" << (element.frame ? "object_" + std::to_string(element.frame) : "") << "\r\n";
  return out.str();
}

/// The head of a form project in pixels.
inline std::string ProjectHead(std::size_t controls, const std::string& theme) {
  std::ostringstream out;
  out << "[FORM]\r\nScaleMode= 3\r\nBackColor=-2147483633\r\n"
      << ProjectFont() << "Text=Benchmark\r\nWidth= 1020\r\nHeight= 2520\r\nThemeName=" << theme
      << "\r\nFeatureType= 0\r\nStartMode=Always\r\nShowMenu= 0\r\nControlsNumber= " << controls << "\r\n";
  return out.str();
}

inline void WriteProject(const std::string& path, const std::vector<Element>& form) {
  std::ofstream out(path, std::ios::binary);
  out << ProjectHead(form.size(), "");
  for (const Element& element : form) out << ProjectSection(element);
  out << "[ZORDER]\r\nForm= 0\r\n";
  for (const Element& element : form) out << "control" << element.number << "= 0\r\n";
  out << "[SCRIPT]\r\nVBScript\r\n";
}

inline std::string UiColor(const char* role, int red, int green, int blue) {
  std::ostringstream out;
  out << "<colorrole role=\"" << role << "\"><brush brushstyle=\"SolidPattern\"><color><red>" << red
      << "</red><green>" << green << "</green><blue>" << blue << "</blue></color></brush></colorrole>";
  return out.str();
}

inline std::string UiPalette(bool isEdit) {
  const std::string colors = isEdit ? UiColor("Base", 255, 255, 255) + UiColor("Text", 0, 0, 0)
                                    : UiColor("Window", 240, 240, 240) + UiColor("WindowText", 0, 0, 0);
  return "<property name=\"palette\"><palette><active>" + colors + "</active><inactive>" + colors +
         "</inactive><disabled>" + colors + "</disabled></palette></property>";
}

inline std::string UiOpen(const Element& element) {
  static const char* const classes[] = {"QGroupBox",   "QLabel",         "QLineEdit",
                                        "QCheckBox",   "QRadioButton",   "QComboBox",
                                        "QPushButton", "QPlainTextEdit", "QListWidget"};
  const Kind kind = element.kind;
  const bool isEdit =
      kind == Kind::TextBox || kind == Kind::ComboBox || kind == Kind::Multiline || kind == Kind::ListBox;
  std::ostringstream out;
  out << "<widget class=\"" << classes[static_cast<int>(kind)] << "\" name=\"object_" << element.number
      << "\"><property name=\"geometry\"><rect><x>" << element.left << "</x><y>" << element.top
      << "</y><width>" << element.width << "</width><height>" << element.height
      << "</height></rect></property>";
  if (kind != Kind::CommandButton) out << UiPalette(isEdit);
  out << "<property name=\"font\"><font><family>DejaVu "
         "Sans</family><pointsize>8</pointsize></font></property>";
  if (kind == Kind::Frame)
    out << "<property name=\"title\"><string>Text " << element.number << "</string></property>";
  if (!isEdit && kind != Kind::Frame)
    out << "<property name=\"text\"><string>Text " << element.number << "</string></property>";
  if (kind == Kind::ComboBox || kind == Kind::ListBox)
    for (int i = 1; i <= 5; ++i)
      out << "<item><property name=\"text\"><string>Item " << i << "</string></property></item>";
  return out.str();
}

/// The same form for QUiLoader.
inline std::string UiXml(const std::vector<Element>& form) {
  std::ostringstream out;
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?><ui version=\"4.0\"><class>Form</class><widget "
         "class=\"QWidget\" "
         "name=\"Form\"><property "
         "name=\"geometry\"><rect><x>0</x><y>0</y><width>1020</width><height>2520</height>"
         "</rect></property>";
  bool isFrameOpen = false;
  for (const Element& element : form) {
    if (element.kind == Kind::Frame) {
      if (isFrameOpen) out << "</widget>";
      isFrameOpen = true;
      out << UiOpen(element);
    } else {
      out << UiOpen(element) << "</widget>";
    }
  }
  out << "</widget></widget></ui>";
  return out.str();
}

}  // namespace bench
