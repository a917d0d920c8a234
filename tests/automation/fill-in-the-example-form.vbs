' The example form is filled in by mouse and keys. OK stores the values, and the data source returns them.
Option Explicit
Const kId = "5"
Dim folder, hosts, vellum, robot, form, c, data
folder = WScript.Arguments(0)
Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
data = hosts.OpenStore(folder & "/wells.gpkg")
vellum.TarvoHandle = data

Set form = CreateObject("Cardwright.FormInput")
WScript.ConnectObject form, "form_"
WScript.Echo form.ProjectRead(folder & "/well-inspection.cwf")
form.FeatureID = kId
robot.Show form
Set c = form.Controls

Sub Retype(name, text)
  robot.Click c(name)
  robot.Press c(name), "Home"
  robot.Press c(name), "Shift+End"
  robot.Type c(name), text
End Sub

Retype "txtName", "North spring"
robot.Press c("txtName"), "Tab"
WScript.Echo robot.FocusName = c("chkMonitored").Name
Retype "txtOwner", "Cooperativa Agr" & ChrW(237) & "cola"
Retype "txtDepth", "1x2y.5"
Retype "txtDiameter", "-31.0"
robot.ClickItem c("lstAquifer"), 3
robot.Click c("optAgricultural")
robot.ClickItem c("cboStatus"), 2
robot.Click c("cmdToday")
robot.Click c("txtNotes")
robot.Press c("txtNotes"), "Ctrl+A"
robot.Type c("txtNotes"), "Locked gate" & vbCrLf & "key at the farm"

hosts.ClearLog data
robot.Click robot.Child(form, "cmdOK")
WScript.Echo "boxes", robot.Messages.Count

Dim line
For Each line In Split(hosts.Log(data), vbCrLf)
  If InStr(line, "SET_ATTRIBUTE") > 0 And InStr(line, "INSPECTED") + InStr(line, "MONITORED") + InStr(line, "NOTES") = 0 Then WScript.Echo line
Next

' Requests over another connection read the values back.
vellum.TarvoHandle = 0
hosts.Close data
Dim again
again = hosts.OpenStore(folder & "/wells.gpkg")
vellum.TarvoHandle = again
form.FeatureID = kId
WScript.Echo c("txtName").Text, c("txtOwner").Text, c("txtDepth").Text, c("cboStatus").Value, c("txtInspected").Text = IsoDate(Date)
WScript.Echo Replace(c("txtNotes").Text, vbCrLf, "/")

Function IsoDate(moment)
  IsoDate = Year(moment) & "-" & Right("0" & Month(moment), 2) & "-" & Right("0" & Day(moment), 2)
End Function

Sub form_OkClick()
  WScript.Echo "OkClick"
  form.Parent.Close
  WScript.Echo form.Parent.Visible
End Sub

' expect: True
' expect: True
' expect: OkClick
' expect: False
' expect: boxes 0
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |NAME| |North spring|
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |OWNER| |Cooperativa Agrícola|
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |DEPTH| 12.5
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |DIAMETER| 310
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |AQUIFER| |Limestone|
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |USE_CODE| |AGR|
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |STATUS| |CLOSED|
' expect: North spring Cooperativa Agrícola 12.5 CLOSED True
' expect: Locked gate/key at the farm
