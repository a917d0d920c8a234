' The five selectors are used by mouse and keys: lists that depend on each other, choices in dialogs, a new theme.
Option Explicit
Dim folder, files, hosts, vellum, robot, form, c, i, data
folder = WScript.Arguments(0)
Set files = CreateObject("Scripting.FileSystemObject")
Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
data = hosts.OpenStore(folder & "/wells.gpkg")
vellum.TarvoHandle = data

Sub WriteProject(path)
  Dim text, section, number, kinds: Set text = files.CreateTextFile(path, True)
  text.Write Join(Array("[FORM]", "ScaleMode= 3", "Width= 460", "Height= 340", "ThemeName=wells", "FeatureType= 0", _
    "ControlsNumber= 6", ""), vbCrLf)
  kinds = Array("themeselector;thm;CreateThemeText=New theme...", _
    "ComboBox;cbo;ItemsNumber= 3;Text_Item_1=Points;Text_Item_2=Arcs;Text_Item_3=Polygons", _
    "attributeselector;att;ThemeSelectorName=THM;FeatureSelectorName=cbo;FeatureType= 0", _
    "resourceselector;res;RegKey=Cardwright/Tests/Selectors", "fontselector;fnt;MaskValue=|%N%| %SPX% %stw%", _
    "colorselector;col;Color= 255;MaskValue=%r% %G% %b% %x%")
  For number = 1 To 6
    section = Split(kinds(number - 1), ";")
    text.Write Join(Array("[CONTROLS_" & number & "]", "Type=" & section(0), "Name=object_" & (number + 1), "UserName=" & section(1), _
      "Left= 10", "Top= " & (40 * number - 30), "Width= 300", "Height= 28", ""), vbCrLf)
    For i = 2 To UBound(section): text.Write section(i) & vbCrLf: Next
  Next
  text.Write Join(Array("[SCRIPT]", "VBScript", "Sub thm_OnClick()", "  told = told & "" theme "" & thm.Text & "" "" & att.Object.ListCount", "End Sub", _
    "Sub res_BeforeButtonClick()", "  told = told & "" before""", "End Sub", "Sub res_OnChange()", "  told = told & "" change""", "End Sub", _
    "Sub res_AfterButtonClick()", "  told = told & "" after""", "End Sub", "Sub fnt_OnChange()", "  told = told & "" font""", "End Sub", _
    "Sub col_OnClick()", "  told = told & "" color "" & col.Value", "End Sub", "Dim told", _
    "Sub cbo_OnClick()", "  told = told & "" type "" & att.Object.ListCount", "End Sub", _
    "Sub Form_BeforeOkClick()", "  ORVExecute ""TOLD"" & told", "End Sub", ""), vbCrLf)
  text.Close
End Sub

Function List(control)
  Dim at
  For at = 0 To control.Object.ListCount - 1
    List = List & " " & control.Object.List(at)
  Next
End Function

WriteProject folder & "/selectors.cwf"
robot.Setting("Cardwright", "Tests", "Selectors") = ""
Set form = CreateObject("Cardwright.FormInput")
WScript.Echo form.ProjectRead(folder & "/selectors.cwf")
robot.Show form
Set c = form.Controls

WScript.Echo "themes" & List(c("thm"))
robot.ClickItem c("thm"), 3
WScript.Echo c("thm").Text & ":" & List(c("att"))
robot.ClickItem c("cbo"), 2
WScript.Echo "arcs:" & List(c("att"))
robot.ClickItem c("att"), 1
WScript.Echo "chosen " & c("att").Value

robot.AnswerFile folder & "/wells.gpkg"
robot.Click robot.Child(c("res"), "button")
WScript.Echo c("res").Value = folder & "/wells.gpkg"
robot.Focus c("thm")
WScript.Echo robot.Setting("Cardwright", "Tests", "Selectors") = folder

robot.AnswerFont "DejaVu Sans", 12
robot.Click robot.Child(c("fnt"), "button")
WScript.Echo c("fnt").Value
robot.AnswerColor &H332211
robot.Click robot.Child(c("col"), "button")
WScript.Echo c("col").Value, c("col").Value(Array("%c%"))

hosts.ClearLog data
robot.Click robot.Child(form, "cmdOK")
WScript.Echo Split(hosts.Log(data), vbCrLf)(0)
WScript.Echo Split(hosts.Log(data), vbCrLf)(1)

' expect: True
' expect: themes wells aquifers pipelines symbols
' expect: pipelines:
' expect: arcs: NAME MATERIAL DIAMETER LAID
' expect: chosen NAME
' expect: True
' expect: True
' expect: |DejaVu Sans| 16 240
' expect: 17 34 51 %x% 3351057
' expect: X APPLICATION_FLAGREDRAW OFF
' expect: X TOLD theme pipelines 0 type 4 before change after font color 17 34 51 %x%
