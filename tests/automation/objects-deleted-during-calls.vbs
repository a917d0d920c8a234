' A command of the form's script deletes an object that the script, the form or the running call needs. What follows fails
' as for any deleted object.
Option Explicit
Dim files, folder, robot, hosts, vellum, form, handle, log
Set files = CreateObject("Scripting.FileSystemObject")
folder = WScript.Arguments(0)

Class Host
  Public Function ORVExecute(command)
    log = log & " " & command
    Select Case command
      Case "CLOSE-WINDOW": form.Parent.Close
      Case "DROP-FORM": Set form = Nothing
      Case "CLOSE-HOST": hosts.Close handle
      Case "NO-HANDLE": vellum.TarvoHandle = 0
      Case "DROP-VELLUM": Set vellum = Nothing
      Case "DISCONNECT": WScript.DisconnectObject form
      Case "PRESS": robot.Click form.Controls("cmdOther")
      Case "READ": form.ProjectRead folder & "/ground.cwf"
      Case "OTHER-FORM": Open
      Case "QUIT": WScript.Quit
      Case "PUMP": robot.Pump 5
      Case "FAIL": form.Controls("none").Text = 1
    End Select
  End Function
  Public Function ORVRequest(command)
    ORVRequest = "reply"
  End Function
End Class

Sub WriteProject(path)
  Dim text: Set text = files.CreateTextFile(path, True)
  text.Write Join(Array("[FORM]", "ScaleMode= 3", "Width= 300", "Height= 60", "ControlsNumber= 3", _
    "[CONTROLS_1]", "Type=TextBox", "Name=object_1", "UserName=txtCommand", "Left= 10", "Top= 10", "Width= 100", "Height= 24", _
    "[CONTROLS_2]", "Type=CommandButton", "Name=object_2", "UserName=cmdGo", "Left= 120", "Top= 10", "Width= 80", "Height= 24", _
    "[CONTROLS_3]", "Type=CommandButton", "Name=object_3", "UserName=cmdOther", "Left= 210", "Top= 10", "Width= 80", "Height= 24", _
    "[SCRIPT]", "VBScript", _
    "Sub cmdGo_OnClick()", "  Dim command", "  command = txtCommand.Object.Text", "  ORVExecute command", _
    "  ORVExecute ""go:"" & Controls.Count & ORVRequest(""?"")", "  txtCommand.Object.Text = ""done""", "End Sub", _
    "Sub cmdOther_OnClick()", "  ORVExecute ""other""", "End Sub", _
    "Sub Form_BeforeOkClick()", "  ORVExecute txtCommand.Object.Text", "  ORVExecute ""before""", "End Sub", _
    "Sub Form_AfterOkClick()", "  ORVExecute ""after""", "End Sub", ""), vbCrLf)
  text.Close
End Sub

Sub Open
  Set form = WScript.CreateObject("Cardwright.FormInput", "form_")
  form.ProjectRead folder & "/ground.cwf"
  robot.Show form
End Sub

Sub Start(command)
  Set vellum = CreateObject("Cardwright.Vellum")
  handle = hosts.Register(New Host)
  vellum.TarvoHandle = handle
  Open
  form.Controls("txtCommand").PropertyValue("Text") = command
  log = ""
End Sub

Sub Tell(command, pressed)
  Dim i, text
  text = command & " by " & pressed & ":" & log
  For i = 1 To robot.Messages.Count
    text = text & " [" & Replace(robot.Messages(i).Text, vbCrLf, "") & "]"
    robot.Messages.Remove 1
  Next
  WScript.Echo text
End Sub

Sub form_OkClick()
  log = log & " OkClick"
End Sub

Dim command
WriteProject folder & "/ground.cwf"
Set hosts = CreateObject("Cardwright.Hosts")
Set robot = CreateObject("Cardwright.Robot")
For Each command In Array("CLOSE-WINDOW", "DROP-FORM", "CLOSE-HOST", "NO-HANDLE", "DROP-VELLUM", "DISCONNECT", "PRESS", "READ", _
    "OTHER-FORM", "PUMP", "FAIL")
  Start command
  robot.Click form.Controls("cmdGo")
  Tell command, "a button"
  Start command
  robot.Click robot.Child(form, "cmdOK")
  Tell command, "OK"
Next
Start "QUIT"
robot.Click form.Controls("cmdGo")
WScript.Echo "the run has not ended"

' expect: CLOSE-WINDOW by a button: CLOSE-WINDOW go:4reply
' expect: CLOSE-WINDOW by OK: APPLICATION_FLAGREDRAW OFF CLOSE-WINDOW before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
' expect: DROP-FORM by a button: DROP-FORM go:4reply
' expect: DROP-FORM by OK: APPLICATION_FLAGREDRAW OFF DROP-FORM before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
' expect: CLOSE-HOST by a button: CLOSE-HOST
' expect: CLOSE-HOST by OK: APPLICATION_FLAGREDRAW OFF CLOSE-HOST OkClick
' expect: NO-HANDLE by a button: NO-HANDLE go:4reply
' expect: NO-HANDLE by OK: APPLICATION_FLAGREDRAW OFF NO-HANDLE before
' expect: DROP-VELLUM by a button: DROP-VELLUM go:4reply
' expect: DROP-VELLUM by OK: APPLICATION_FLAGREDRAW OFF DROP-VELLUM before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
' expect: DISCONNECT by a button: DISCONNECT go:4reply
' expect: DISCONNECT by OK: APPLICATION_FLAGREDRAW OFF DISCONNECT before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW
' expect: PRESS by a button: PRESS other go:4reply
' expect: PRESS by OK: APPLICATION_FLAGREDRAW OFF PRESS other before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
' expect: READ by a button: READ go:4reply
' expect: READ by OK: APPLICATION_FLAGREDRAW OFF READ before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
' expect: OTHER-FORM by a button: OTHER-FORM go:4reply
' expect: OTHER-FORM by OK: APPLICATION_FLAGREDRAW OFF OTHER-FORM before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
' expect: PUMP by a button: PUMP go:4reply
' expect: PUMP by OK: APPLICATION_FLAGREDRAW OFF PUMP before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
' expect: FAIL by a button: FAIL [Error N. 5 - Invalid procedure call or argument (Line: 4    Column:2)]
' expect: FAIL by OK: APPLICATION_FLAGREDRAW OFF FAIL THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick [Error N. 5 - Invalid procedure call or argument (Line: 12    Column:2)]
