// SPDX-License-Identifier: MIT
#include "model/ProjectTexts.h"

namespace cardwright {
namespace {

constexpr std::string_view kPlainFont = R"(FontName=MS Sans Serif
FontSize= 8.25
FontBold= 0
FontItalic= 0
FontUnderline= 0
FontStrikethrough= 0
)";

constexpr std::string_view kExample = R"([FORM]
ScaleMode= 1
BackColor=-2147483633
@Font
Text=Well inspection
Width= 4800
Height= 2700
ThemeName=wells
FeatureType= 0
StartMode=Always
ShowMenu= 1
ControlsNumber= 2
[CONTROLS_1]
Type=Label
Name=object_1
UserName=lblDepth
Text=Depth
BackColor=-2147483633
@Font
Left= 240
Top= 240
Width= 1200
Height= 285
ForeColor=-2147483630
Container=
[CONTROLS_2]
Type=TextBox
Name=object_2
UserName=txtDepth
Text=
BackColor=-2147483643
@Font
Left= 1560
Top= 240
Width= 2400
Height= 285
ForeColor=-2147483640
Attribute=DEPTH
IsNeeded=True
MinusSignEnabled=False
InputType=Float
Container=
[ZORDER]
Form= 0
lblDepth= 0
txtDepth= 1
[SCRIPT]
VBScript
Sub Form_Initialize()
End Sub
)";

constexpr std::string_view kEveryClass = R"([FORM]
ScaleMode= @Scale
BackColor= 15794175
FontName=Arial
FontSize= 9.75
FontBold= 1
FontItalic= 0
FontUnderline= 1
FontStrikethrough= 0
Text=Every class
Width= 600
Height= 450
ThemeName=
FeatureType=-1
StartMode=OnNew
ShowMenu= 0
ControlsNumber= 14
[CONTROLS_1]
Type=Frame
Name=object_3
UserName=fra
Text=Kind
BackColor=-2147483633
@Font
Left= 5
Top= 10.5
Width= 300
Height= 120
ForeColor= 255
Container=
[CONTROLS_2]
Type=Label
Name=object_1
UserName=lbl
Text=A && B
BackColor= 16777215
@Font
Left=-10
Top= .25
Width= 100.5
Height= 20
ForeColor= 0
Container=
[CONTROLS_3]
Type=CheckBox
Name=object_2
UserName=chk
Text=Dry
BackColor=-2147483633
@Font
Left= 10
Top= 150
Width= 100
Height= 20
ForeColor=-2147483630
Attribute=DRY
IsNeeded=True
Selected=True
Container=object_3
[CONTROLS_4]
Type=OptionButton
Name=object_4
UserName=opt
Text=Wet
BackColor=-2147483633
FontName=Arial
FontSize= 12.5
FontBold= 1
FontItalic= 0
FontUnderline= 0
FontStrikethrough= 1
Left= 10
Top= 20
Width= 100
Height= 20
ForeColor=-2147483630
Attribute=KIND
Selected=False
Value=W
Container=object_3
[CONTROLS_5]
Type=TextBox
Name=object_5
UserName=txt
Text=12 m
BackColor=-2147483643
@Font
Left= 10
Top= 180
Width= 100
Height= 25
ForeColor=-2147483640
Attribute=
IsNeeded=False
MinusSignEnabled=True
InputType=Text
Container=
[CONTROLS_6]
Type=textboxmultiline
Name=object_6
UserName=mul
Text=many
BackColor=-2147483643
@Font
Left= 10
Top= 210
Width= 100
Height= 60
ForeColor=-2147483640
Attribute=NOTE
IsNeeded=perhaps
MinusSignEnabled=True
Container=
[CONTROLS_7]
Type=ComboBox
Name=object_7
UserName=cbo
Text=Two
BackColor=-2147483643
@Font
Left= 10
Top= 280
Width= 100
ForeColor=-2147483640
Editable=True
Attribute=A
ItemsNumber= 2
IsNeeded=False
MinusSignEnabled=False
Value_Item_1=1
Text_Item_1=One
Value_Item_2=2
Text_Item_2=Two
Container=
[CONTROLS_8]
Type=ListBox
Name=object_8
UserName=lst
Text=none
BackColor=-2147483643
@Font
Left= 10
Top= 310
Width= 100
Height= 80
ForeColor=-2147483640
Attribute=B
ItemsNumber= 1
IsNeeded=True
MultiSelect=True
Value_Item_1=
Text_Item_1=Only
Container=
[CONTROLS_9]
Type=CommandButton
Name=object_9
UserName=cmd
Text=&Go
@Font
Left= 10
Top= 400
Width= 90
Height= 30
Container=
[CONTROLS_10]
Type=resourceselector
Name=object_10
UserName=res
Path=/data/photo.png
RegKey=Cardwright/Tests/LastPhoto
BackColor=-2147483643
BackColorBkg=-2147483633
@Font
Left= 320
Top= 10
Width= 200
Height= 25
ForeColor=-2147483640
Attribute=PHOTO
IsNeeded=False
BrowseForFolder=False
Filter=Pictures (*.png)|*.png|All files (*.*)|*.*
InputTextEnabled=True
ShowSave=False
Title=Choose a photo
MultiSelect=True
Container=
[CONTROLS_11]
Type=themeselector
Name=object_11
UserName=thm
Text=
BackColor=-2147483643
@Font
Left= 320
Top= 50
Width= 200
ForeColor=-2147483640
CreateThemeText=New theme...
Attribute=THEME
IsNeeded=True
Container=
[CONTROLS_12]
Type=attributeselector
Name=object_12
UserName=att
Text=
BackColor=-2147483643
@Font
Left= 320
Top= 90
Width= 200
ForeColor=-2147483640
ThemeSelectorName=thm
FeatureType= 2
FeatureSelectorName=cbo
Attribute=FIELD
IsNeeded=False
Container=
[CONTROLS_13]
Type=fontselector
Name=object_13
UserName=fnt
BackColor= 16777215
BackColorBkg=-2147483633
FontName=Arial
FontSize= 12.5
FontBold= 1
FontItalic= 0
FontUnderline= 0
FontStrikethrough= 1
Left= 320
Top= 130
Width= 200
Height= 40
ForeColor= 255
Attribute=FONT
IsNeeded=False
Border=True
AutoSize=False
Title=Choose a font
MaskValue=|%n%| %spx%
Container=
[CONTROLS_14]
Type=colorselector
Name=object_14
UserName=col
Color=-2147483635
Left= 320
Top= 180
Width= 60
Height= 25
Attribute=COLOR
IsNeeded=True
Border=False
Title=Choose a colour
MaskValue=%r% %g% %b%
Container=object_3
[ZORDER]
Form= 0
cmd= 1
lbl= 0
[SCRIPT]
JScript
)";

}  // namespace

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

std::string Crlf(std::string_view text) { return Replaced(std::string(text), "\n", "\r\n"); }

std::string Example() { return Crlf(Replaced(std::string(kExample), "@Font\n", kPlainFont)); }

std::string EveryClass(int scaleMode) {
  const std::string text = Replaced(std::string(kEveryClass), "@Font\n", kPlainFont);
  return Crlf(Replaced(text, "@Scale", std::to_string(scaleMode)));
}

}  // namespace cardwright
