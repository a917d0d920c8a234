' Dialogs and menus are answered from the queues or by procedures, and what they showed is recorded.
Option Explicit
Dim folder, files, text, robot, hosts, vellum, form, box
folder = WScript.Arguments(0)
Set files = CreateObject("Scripting.FileSystemObject")
Set text = files.CreateTextFile(folder & "/ask.cwf", True)
text.Write Join(Array("[FORM]", "ScaleMode= 3", "Width= 300", "Height= 100", "ControlsNumber= 2", _
  "[CONTROLS_1]", "Type=CommandButton", "Name=object_1", "UserName=cmdAsk", "Text=Ask", "Left= 10", "Top= 10", "Width= 80", "Height= 24", _
  "[CONTROLS_2]", "Type=TextBox", "Name=object_2", "UserName=txtAnswer", "Left= 10", "Top= 40", "Width= 200", "Height= 24", _
  "[SCRIPT]", "VBScript", "Sub cmdAsk_OnClick()", _
  "  txtAnswer.PropertyValue(""Text"") = MsgBox(""One?"") & MsgBox(""Two?"", vbYesNoCancel + vbDefaultButton2, ""Three"") & _", _
  "    InputBox(""Name?"", ""Who"", ""Ann"") & IsEmpty(InputBox(""Again?""))", "End Sub", ""), vbCrLf)
text.Close

Class Host
  Public Function ORVExecute(command)
  End Function
  Public Function ORVRequest(command)
  End Function
End Class

Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
vellum.TarvoHandle = hosts.Register(New Host)
Set form = CreateObject("Cardwright.FormInput")
form.ProjectRead folder & "/ask.cwf"
robot.Show form

Sub Ask
  robot.Click form.Controls("cmdAsk")
  WScript.Echo form.Controls("txtAnswer").Text
End Sub

Ask
robot.Answer vbOK: robot.Answer vbYes: robot.Answer vbCancel: robot.Answer vbCancel
Ask
robot.Answer vbYes
Ask
For Each box In robot.Messages
  WScript.Echo box.Text, "(" & box.Title & ")", box.Style
Next

' The context menu of a text box is the toolkit's.
Dim target: Set target = form.Controls("txtAnswer")
robot.Click target, , , 2
WScript.Echo InStr(robot.LastMenu, "!=&Undo;!=&Redo;-;") = 1, Right(robot.LastMenu, 11)
robot.ChooseMenu "Select All"
robot.Click target, , , 2
WScript.Echo target.Object.SelLength = Len(target.Text)
robot.ChooseMenu "delete"
robot.Click target, , , 2
WScript.Echo "<" & target.Text & ">"
robot.ChooseMenu "undo!"
robot.Click target, , , 2
robot.ChooseMenu ""
robot.Click target, , , 2
WScript.Echo robot.Beeps, robot.Launches.Count, robot.Messages.Count

' expect: 17AnnFalse
' expect: 16True
' expect: 17AnnFalse
' expect: One? (VBScript) 0
' expect: Two? (Three) 259
' expect: Name? (Who) 1
' expect: Again? (VBScript) 1
' expect: One? (VBScript) 0
' expect: Two? (Three) 259
' expect: Name? (Who) 1
' expect: Again? (VBScript) 1
' expect: One? (VBScript) 0
' expect: Two? (Three) 259
' expect: Name? (Who) 1
' expect: Again? (VBScript) 1
' expect: True =Select All
' expect: True
' expect: <>
' expect: 0 0 12
