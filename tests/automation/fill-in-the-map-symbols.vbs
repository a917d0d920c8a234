' The example's form of map symbols is filled in with all five selectors by mouse and keys. OK stores the choices, and the
' form shows them again. Links between the selectors survive renaming.
Option Explicit
Dim folder, files, hosts, vellum, robot, form, c, data, line, text
folder = WScript.Arguments(0)
Set files = CreateObject("Scripting.FileSystemObject")
Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
data = hosts.OpenStore(folder & "/wells.gpkg")
vellum.TarvoHandle = data
files.CreateFolder folder & "/pictures"
Set text = files.CreateTextFile(folder & "/pictures/well.png", True)
text.Close

Function Listed(control)
  Dim at
  For at = 0 To control.Object.ListCount - 1: Listed = Listed & " " & control.Object.List(at): Next
End Function

Sub Tell()
  WScript.Echo c("txtName").Text & ": " & c("selTheme").Text & "." & c("selLabel").Text & ", " & c("selColor").Value & ", " & c("selFont").Value
End Sub

Set form = CreateObject("Cardwright.FormInput")
WScript.Echo form.ProjectRead(folder & "/map-symbol.cwf")
Set c = form.Controls
form.FeatureID = "2"
robot.Show form
Tell
WScript.Echo c("lblSample").Text, c("lblSample").Object.Font.Name, c("lblSample").Object.Font.Italic
WScript.Echo "themes" & Listed(c("selTheme"))

' Another theme has other attributes, as its feature type has.
robot.ClickItem c("selTheme"), 1
WScript.Echo "areas of wells:" & Listed(c("selLabel"))
robot.ClickItem c("cboKind"), 1
WScript.Echo "points of wells:" & Listed(c("selLabel"))
robot.ClickItem c("selLabel"), 6
WScript.Echo c("lblSample").Text

robot.AnswerColor RGB(10, 20, 30)
robot.Click robot.Child(c("selColor"), "button")
robot.AnswerFont "DejaVu Sans", 10
robot.Press c("selFont"), "F4"
robot.AnswerFile folder & "/pictures/well.png"
robot.Click robot.Child(c("selPicture"), "button")
WScript.Echo robot.Child(c("selPicture"), "edit").Text = folder & "/pictures/well.png"

' All controls under new names.
Dim name
For Each name In Array("selTheme", "cboKind", "selLabel")
  c(name).PropertyValue("Name") = name & "Renamed"
Next
WScript.Echo c("selLabelRenamed").PropertyValue("ThemeSelectorName"), c("selLabelRenamed").PropertyValue("FeatureSelectorName")
robot.ClickItem c("selThemeRenamed"), 2
robot.ClickItem c("cboKindRenamed"), 3
WScript.Echo "areas of aquifers:" & Listed(c("selLabelRenamed"))
robot.ClickItem c("selLabelRenamed"), 2

hosts.ClearLog data
robot.Click robot.Child(form, "cmdOK")
WScript.Echo "boxes", robot.Messages.Count
For Each line In Split(hosts.Log(data), vbCrLf)
  If InStr(line, "SET_ATTRIBUTE") > 0 Then WScript.Echo Replace(line, folder, "FOLDER")
Next
WScript.Echo robot.Setting("Cardwright Examples", "Map symbols", "Pictures") = folder & "/pictures"

' The form, opened again, has the values from the data source only.
vellum.TarvoHandle = 0
hosts.Close data
data = hosts.OpenStore(folder & "/wells.gpkg")
vellum.TarvoHandle = data
Dim again
Set again = CreateObject("Cardwright.FormInput")
WScript.Echo again.ProjectRead(folder & "/map-symbol.cwf")
Set c = again.Controls
again.FeatureID = "2"
WScript.Echo c("selTheme").Text, c("selLabel").Text, c("selPicture").Value = folder & "/pictures/well.png"
robot.Show again
robot.ClickItem c("cboKind"), 2
WScript.Echo "lines of aquifers:" & Listed(c("selLabel"))

' A new theme, created in the selector.
Sub MakeSprings(dialog)
  WScript.Echo dialog.Name, dialog.Text
  robot.Type robot.Child(dialog, "txtName"), "springs"
  robot.ClickItem robot.Child(dialog, "cboKind"), 2
  robot.Click robot.Child(dialog, "cmdOK")
End Sub
robot.WhenDialog "frmNewTheme", GetRef("MakeSprings")
robot.ClickItem c("selTheme"), 5
WScript.Echo c("selTheme").Text & " of" & Listed(c("selTheme")), c("selTheme").Object.ItemData(4)
robot.WhenDialog "frmNewTheme", Nothing
robot.ClickItem c("selTheme"), 6
WScript.Echo c("selTheme").Text
WScript.Echo robot.Child(c("txtName"), "edit") Is Nothing, robot.Child(c("selColor"), "edit") Is Nothing

' expect: True
' expect: Protected aquifers: aquifers.CLASS, 90 140 60, DejaVu Serif;12;False;True
' expect: aquifers.CLASS DejaVu Serif True
' expect: themes wells aquifers pipelines symbols
' expect: areas of wells:
' expect: points of wells: NAME OWNER DEPTH DIAMETER STATUS AQUIFER USE_CODE INSPECTED MONITORED NOTES
' expect: wells.AQUIFER
' expect: True
' expect: selThemeRenamed cboKindRenamed
' expect: areas of aquifers: NAME AREA_KM2 CLASS
' expect: boxes 0
' expect: X THEME_SET_ATTRIBUTE |symbols| || |NAME| |Protected aquifers|
' expect: X THEME_SET_ATTRIBUTE |symbols| || |COLOR| |90 140 60|
' expect: X THEME_SET_ATTRIBUTE |symbols| || |FONT| |DejaVu Serif;12;False;True|
' expect: X THEME_SET_ATTRIBUTE |symbols| || |COLOR| |10 20 30|
' expect: X THEME_SET_ATTRIBUTE |symbols| || |FONT| |DejaVu Sans;10;False;True|
' expect: X THEME_SET_ATTRIBUTE |symbols| || |PICTURE| |FOLDER/pictures/well.png|
' expect: X THEME_SET_ATTRIBUTE |symbols| || |THEME| |aquifers|
' expect: X THEME_SET_ATTRIBUTE |symbols| || |KIND| |POLYGON|
' expect: X THEME_SET_ATTRIBUTE |symbols| || |LABEL| |AREA_KM2|
' expect: True
' expect: True
' expect: aquifers AREA_KM2 True
' expect: lines of aquifers:
' expect: frmNewTheme New theme
' expect: springs of wells aquifers pipelines symbols springs 1
' expect: springs
' expect: True True
