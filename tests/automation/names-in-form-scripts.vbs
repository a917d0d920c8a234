' The names in a form's script, used from VBScript with and without the object that they belong to: first in a normal run,
' then in a debugging run.
Option Explicit
Dim files, folder, robot, hosts, vellum, form, output, handle
Set files = CreateObject("Scripting.FileSystemObject")
folder = WScript.Arguments(0)

Class Host
  Public Function ORVExecute(command)
    ORVExecute = "done"
    WScript.Echo "X", command
  End Function
  Public Function ORVRequest(command)
    ORVRequest = LCase(command)
    WScript.Echo "R", command
  End Function
End Class

Class Pane
  Public Property Let SelText(text)
    WScript.Echo "<" & Replace(Replace(text, vbCrLf, "/"), String(100, "-"), "-----") & ">"
  End Property
End Class

Sub WriteProject(path)
  Dim text, i, script: Set text = files.CreateTextFile(path, True)
  text.Write Join(Array("[FORM]", "ScaleMode= 3", "Width= 300", "Height= 200", "ControlsNumber= 7", ""), vbCrLf)
  For i = 1 To 7
    text.Write Join(Array("[CONTROLS_" & i & "]", "Type=CommandButton", "Name=object_" & i, "UserName=cmd" & i, "Left= 10", _
      "Top= " & (26 * i - 20), "Width= 100", "Height= 24", ""), vbCrLf)
  Next
  text.Write "[SCRIPT]" & vbCrLf & "VBScript" & vbCrLf
  text.Write Join(Array( _
    "Option Explicit", "Sub Say(text)", "  ORVExecute text", "End Sub", _
    "Sub Form_Initialize()", "  Say TypeName(OrvExecutor) & "" "" & TypeName(OrvDebugger) & "" "" & TypeName(FrmCtrls)", "End Sub", _
    "Sub cmd1_OnClick()", "  Dim reply", "  reply = ORVExecute(""A"") & OrvExecutor.ORVExecute(""B"") & ORVREQUEST(""C"")", _
    "  Say reply & orvexecutor.orvrequest(""D"")", "End Sub", _
    "Sub cmd2_OnClick()", "  Show 12.5", "  OrvDebugger.Show ""line""", "  WriteOut ""a""", "  OrvDebugger.WriteOut ""b""", "End Sub", _
    "Sub cmd3_OnClick()", "  Dim one, names", "  For Each one In Controls", "    names = names & one.UserName & "" """, "  Next", _
    "  Say names & Controls.Count & "" "" & FrmCtrls.Controls.Count", _
    "  Say Controls(1).UserName & "" "" & Controls(""CMD3"").Text & "" "" & FrmCtrls.Controls(""cmd2"").UserName & "" "" & (Controls(4) Is cmd3)", _
    "  On Error Resume Next", "  Set one = Controls(""cmd9"")", "  Say Err.Number & "" "" & Err.Description", "  Err.Clear", _
    "  Set one = Controls(99)", "  Say Err.Number", "End Sub", _
    "Sub cmd4_OnClick()", "  Say Hex(CreateColor(1, 2, 3)) & "" "" & FrmCtrls.CreateColor(300, -1, 0)", _
    "  On Error Resume Next", "  Say CreateColor(1, 2)", "  Say Err.Number", "  Err.Clear", "  Say CreateColor(""a"", 2, 3)", _
    "  Say Err.Number", "End Sub", _
    "Sub cmd5_OnClick()", "  Say Response & FrmCtrls.Response", "  Ok", "  Response = False", "  FrmCtrls.Ok", "End Sub", _
    "Sub cmd6_OnClick()", "  Cancel", "  FrmCtrls.Cancel", "End Sub", _
    "Sub cmd7_OnClick()", "  UserCloseForm", "  FrmCtrls.UserCloseForm", "End Sub", _
    "Dim times", "Sub Form_BeforeOkClick()", "  times = times + 1", "  Say ""ok "" & Response", _
    "  FrmCtrls.Response = times <> 2", "End Sub", _
    "Sub Form_BeforeCancelClick()", "  times = times + 1", "  Say ""cancel "" & times", "  Response = times > 3", "End Sub", ""), vbCrLf)
  text.Close
End Sub

Sub Run(title)
  Dim i
  WScript.Echo "-- " & title
  Set form = WScript.CreateObject("Cardwright.FormInput", "form_")
  form.DebugMode = title = "debugging"
  WScript.Echo form.ProjectRead(folder & "/names.cwf")
  robot.Show form
  For i = 1 To 7
    WScript.Echo i
    robot.Click form.Controls("cmd" & i)
  Next
  WScript.DisconnectObject form
End Sub

Sub form_OkClick()
  WScript.Echo "OkClick"
End Sub
Sub form_CancelClick()
  WScript.Echo "CancelClick"
End Sub

WriteProject folder & "/names.cwf"
Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
handle = hosts.Register(New Host)
vellum.TarvoHandle = handle
Run "as users have it"
Set vellum.DebugOutputObject = New Pane
Run "debugging"
WScript.Echo "boxes", robot.Messages.Count

' expect: -- as users have it
' expect: X HostExecutor ScriptDebugger FormControls
' expect: True
' expect: 1
' expect: X A
' expect: X B
' expect: R C
' expect: R D
' expect: X donedonecd
' expect: 2
' expect: 3
' expect: X Form cmd1 cmd2 cmd3 cmd4 cmd5 cmd6 cmd7 8 8
' expect: X Form  cmd2 True
' expect: X 5 Invalid procedure call or argument
' expect: X 9
' expect: 4
' expect: X 30201 255
' expect: X 450
' expect: X 13
' expect: 5
' expect: X TrueTrue
' expect: X APPLICATION_FLAGREDRAW OFF
' expect: X ok True
' expect: X THEME_SELECTION_NONE || ||
' expect: X APPLICATION_FLAGREDRAW ON
' expect: X APPLICATION_REDRAW
' expect: OkClick
' expect: X APPLICATION_FLAGREDRAW OFF
' expect: X ok True
' expect: X APPLICATION_FLAGREDRAW ON
' expect: X APPLICATION_REDRAW
' expect: 6
' expect: X APPLICATION_FLAGREDRAW OFF
' expect: X cancel 3
' expect: X APPLICATION_FLAGREDRAW ON
' expect: X APPLICATION_REDRAW
' expect: X APPLICATION_FLAGREDRAW OFF
' expect: X cancel 4
' expect: X APPLICATION_FLAGREDRAW ON
' expect: X APPLICATION_REDRAW
' expect: CancelClick
' expect: 7
' expect: CancelClick
' expect: CancelClick
' expect: -- debugging
' expect: R THEME_ATTRIBUTE_NUMBER || ||
' expect: <HostExecutor ScriptDebugger FormControls/>
' expect: True
' expect: 1
' expect: <A/>
' expect: <B/>
' expect: <C/>
' expect: R C
' expect: <D/>
' expect: R D
' expect: <cd/>
' expect: 2
' expect: <12.5/>
' expect: <line/>
' expect: <a>
' expect: <b>
' expect: 3
' expect: <Form cmd1 cmd2 cmd3 cmd4 cmd5 cmd6 cmd7 8 8/>
' expect: <Form  cmd2 True/>
' expect: <5 Invalid procedure call or argument/>
' expect: <9/>
' expect: 4
' expect: <30201 255/>
' expect: <450/>
' expect: <13/>
' expect: 5
' expect: <TrueTrue/>
' expect: <ok True/>
' expect: <//-----/>
' expect: <INTERNAL PROCEDURE: DATA STORAGE START/>
' expect: <-----/>
' expect: R THEME_ATTRIBUTE_NUMBER || ||
' expect: <-----/>
' expect: <INTERNAL PROCEDURE: DATA STORAGE END/>
' expect: <-----///>
' expect: OkClick
' expect: <ok True/>
' expect: 6
' expect: <cancel 3/>
' expect: <cancel 4/>
' expect: CancelClick
' expect: 7
' expect: CancelClick
' expect: CancelClick
' expect: boxes 0
