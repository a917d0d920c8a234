' Mouse and keys on a widget of each kind run the procedures of the form's script.
Option Explicit
Dim files, folder, robot, hosts, vellum, form, c, sections, scriptText
Set files = CreateObject("Scripting.FileSystemObject")
folder = WScript.Arguments(0)

Class Host
  Public Function ORVExecute(command)
    If Left(command, 5) = "EVENT" Then WScript.Echo Mid(command, 7)
  End Function
  Public Function ORVRequest(command)
  End Function
End Class

Sub Add(kind, name, left, top, width, height, more)
  sections = sections + 1
  text.WriteLine "[CONTROLS_" & sections & "]"
  text.WriteLine "Type=" & kind
  text.WriteLine "Name=object_" & sections
  text.WriteLine "UserName=" & name
  text.WriteLine "Left= " & left & vbCrLf & "Top= " & top & vbCrLf & "Width= " & width & vbCrLf & "Height= " & height
  If more <> "" Then text.WriteLine more
End Sub

Sub Procedure(name, event_)
  scriptText = scriptText & "Sub " & name & "_" & event_ & "()" & vbCrLf & "  ORVExecute ""EVENT " & name & " " & event_ & """" & _
    vbCrLf & "End Sub" & vbCrLf
End Sub

Dim text: Set text = files.CreateTextFile(folder & "/all.cwf", True)
text.WriteLine "[FORM]" & vbCrLf & "ScaleMode= 3" & vbCrLf & "Width= 400" & vbCrLf & "Height= 300" & vbCrLf & "ControlsNumber= 10"
Dim items: items = "ItemsNumber= 3" & vbCrLf & "Value_Item_1=A" & vbCrLf & "Text_Item_1=alpha" & vbCrLf & "Value_Item_2=B" & vbCrLf & _
  "Text_Item_2=beta" & vbCrLf & "Value_Item_3=C" & vbCrLf & "Text_Item_3=gamma"
Add "Label", "lbl", 10, 10, 80, 20, "Text=a label"
Add "Frame", "fra", 10, 40, 180, 60, "Text=a frame"
Add "CommandButton", "cmd", 10, 110, 80, 24, "Text=press"
Add "CheckBox", "chk", 10, 140, 120, 20, "Text=check"
Add "OptionButton", "opt", 10, 170, 120, 20, "Text=option"
Add "TextBox", "txt", 200, 10, 120, 24, ""
Add "textboxmultiline", "txm", 200, 40, 120, 60, ""
Add "ComboBox", "cbo", 200, 110, 120, 24, "Editable=True" & vbCrLf & items
Add "ComboBox", "fix", 200, 140, 120, 24, "Editable=False" & vbCrLf & items
Add "ListBox", "lst", 200, 170, 120, 80, "MultiSelect=True" & vbCrLf & items
Dim name
For Each name In Array("lbl", "fra", "cmd", "chk", "opt", "txt", "txm", "cbo", "fix", "lst")
  Procedure name, "OnClick"
Next
For Each name In Array("txt", "txm", "cbo", "fix")
  Procedure name, "OnChange"
Next
Procedure "lst", "OnItemCheck"
text.Write "[SCRIPT]" & vbCrLf & "VBScript" & vbCrLf & scriptText
text.Close

Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
vellum.TarvoHandle = hosts.Register(New Host)
Set form = CreateObject("Cardwright.FormInput")
WScript.Echo form.ProjectRead(folder & "/all.cwf"), form.Controls.Count
robot.Show form
Set c = form.Controls

Sub Say(what)
  WScript.Echo "-- " & what
End Sub

Say "clicks"
For Each name In Array("lbl", "fra", "cmd", "chk", "opt", "txt", "txm")
  robot.Click c(name)
Next
WScript.Echo c("chk").Object.Value, c("opt").Object.Value
Say "clicks that are none"
robot.Click c("cmd"), , , 2
c("cmd").Object.Enabled = False
robot.Click c("cmd")
c("cmd").Object.Enabled = True
Say "keys"
robot.Press c("chk"), "Space"
robot.Press c("cmd"), "Space"
Say "typing"
robot.Type c("txt"), "hi"
robot.Type c("txm"), "a" & vbLf & "b"
WScript.Echo Replace(c("txm").Object.Text, vbCrLf, "/")
Say "text of a combo"
robot.Type c("cbo"), "b"
Say "choice of a combo"
robot.ClickItem c("cbo"), 2
WScript.Echo c("cbo").Object.Text, c("cbo").Object.ListIndex
Say "a list that only the mouse changes"
robot.Press c("fix"), "Down"
robot.Press c("fix"), "End"
WScript.Echo "<" & c("fix").Object.Text & ">"
robot.ClickItem c("fix"), 3
WScript.Echo c("fix").Object.Text
Say "list"
robot.ClickItem c("lst"), 2
WScript.Echo c("lst").Object.SelectedItem.Index, c("lst").Object.SelectedItem.Checked
robot.ClickItem c("lst"), 3, "check"
WScript.Echo c("lst").Object.ListItems(3).Checked
Say "double click"
robot.DoubleClick c("lbl")
Say "by the script"
c("txt").Object.Text = "set"
c("chk").Object.Value = 1
c("fix").Object.ListIndex = 0
WScript.Echo "boxes", robot.Messages.Count

' expect: True 11
' expect: -- clicks
' expect: lbl OnClick
' expect: fra OnClick
' expect: cmd OnClick
' expect: chk OnClick
' expect: opt OnClick
' expect: txt OnClick
' expect: txm OnClick
' expect: 1 True
' expect: -- clicks that are none
' expect: -- keys
' expect: chk OnClick
' expect: cmd OnClick
' expect: -- typing
' expect: txt OnChange
' expect: txt OnChange
' expect: txm OnChange
' expect: txm OnChange
' expect: txm OnChange
' expect: a/b
' expect: -- text of a combo
' expect: cbo OnChange
' expect: -- choice of a combo
' expect: cbo OnClick
' expect: beta 1
' expect: -- a list that only the mouse changes
' expect: <>
' expect: fix OnClick
' expect: gamma
' expect: -- list
' expect: lst OnClick
' expect: 2 False
' expect: lst OnItemCheck
' expect: lst OnClick
' expect: True
' expect: -- double click
' expect: lbl OnClick
' expect: -- by the script
' expect: txt OnChange
' expect: chk OnClick
' expect: fix OnClick
' expect: boxes 0
