' The script editor by real keys and clicks: typing, the pop-up, the combos, its dialogs and its toolbar.
Option Explicit
Dim robot, vellum, editor, pad, list, popup, tip
Set robot = CreateObject("Cardwright.Robot")
Set vellum = CreateObject("Cardwright.Vellum")
vellum.SettingsAppName = "Editor test"
vellum.SettingsSectionEditor = "Editor"
Set editor = WScript.CreateObject("Cardwright.OrvEditor", "editor_")
robot.Show editor, 900, 500
Set pad = robot.Child(editor, "tecEditor")
Set list = robot.Child(editor, "lvwElenco")
Set popup = robot.Child(editor, "picPropMethod")
Set tip = robot.Child(editor, "lblTooltip")

Dim changes, asked
Sub editor_Change
  changes = changes + 1
End Sub
Sub editor_UserSaveChange(modified)
  asked = asked + 1
  modified = False
End Sub

Sub ShowText(title)
  WScript.Echo title & ": " & Replace(pad.Text, vbCrLf, "|")
End Sub

Sub ShowPlace(title)
  WScript.Echo title & ": " & pad.SelStart & "+" & pad.SelLength & ", " & robot.Child(editor, "lblLineCol").Caption
End Sub

' expect: VBScript VBScript|Option Explicit| False
WScript.Echo editor.Language, Replace(editor.FileContent, vbCrLf, "|"), editor.FileModified
' expect: at the start: 17+0, Line 2, Col 1
ShowPlace "at the start"
' expect: Language: VBScript
WScript.Echo robot.Child(editor, "lblLang").Caption

' Typing: words take the case of the lists, new lines the blanks above. A name that is learned joins the last
' constant of the form, so uses typed later keep their own case.
robot.Type pad, "dim Total"
robot.Press pad, "Enter"
robot.Type pad, "  TOTAL=msgbox(1,2)"
robot.Press pad, "Enter"
robot.Type pad, "x"
' expect: typed: Option Explicit|Dim Total|  TOTAL = MsgBox(1, 2)|  x
ShowText "typed"
' expect: True True
WScript.Echo editor.FileModified, changes > 10
robot.ToolButton editor, "undo"
robot.ToolButton editor, "redo"
' expect: undone and redone: Option Explicit|Dim Total|  TOTAL = MsgBox(1, 2)|  x
ShowText "undone and redone"

' The tip of a procedure.
editor.FileContent = "VBScript" & vbCrLf & "Sub Foo(a,b)" & vbCrLf & "End Sub" & vbCrLf
pad.SelStart = Len(pad.Text)
robot.Type pad, "Foo("
' expect: True False Foo(a, b)
WScript.Echo popup.Visible, list.Visible, tip.Caption
robot.Press pad, "Esc"
' expect: False
WScript.Echo popup.Visible
robot.Type pad, "1)"
robot.Press pad, "Left"
robot.Press pad, "Ctrl+I"
' expect: True Foo(a, b)
WScript.Echo popup.Visible, tip.Caption
robot.Press pad, "Up"
' expect: False
WScript.Echo popup.Visible

' Without a catalogue a command opens nothing, and the toolbar writes its call all the same.
pad.SelStart = Len(pad.Text)
robot.Press pad, "Enter"
robot.ToolButton editor, "method"
' expect: call written: Sub Foo(a,b)|End Sub|Foo(1)|ORVExecute("")
ShowText "call written"
' expect: False 4 13
WScript.Echo popup.Visible, editor.CurrentLine, editor.CurrentCol

' The combos: an event of a control of the form gets its procedure.
Dim combo, events, designer
Set designer = CreateObject("Cardwright.FormDesigner")
robot.Show designer, 300, 200
designer.ControlTypeToAdd = 3
robot.Drag designer, 40, 40, 140, 80
designer.CurrentControl.Name = "Press"
robot.Focus pad
editor.ReadControls designer.Controls
Set combo = robot.Child(editor, "cboCtrls")
Set events = robot.Child(editor, "cboEvents")
Dim i
For i = 0 To combo.ListCount - 1
  If combo.List(i) = "Press" Then combo.ListIndex = i
Next
' expect: Press OnClick
WScript.Echo combo.List(combo.ListIndex), events.List(events.ListIndex)

' Find, and find next.
Sub OnFind(dialog)
  robot.Child(dialog, "cmbCerca").Text = "option"
  robot.Click robot.Child(dialog, "cmdOK")
End Sub
editor.FileContent = "VBScript" & vbCrLf & "option a" & vbCrLf & "OPTION b" & vbCrLf
robot.WhenDialog "frmTrova", GetRef("OnFind")
robot.ToolButton editor, "find"
' expect: found: 0+6, Line 1, Col 7
ShowPlace "found"
robot.Press pad, "F3"
' expect: found next: 10+6, Line 2, Col 7
ShowPlace "found next"
robot.ToolButton editor, "findnext"
' expect: from the top: 0+6, Line 1, Col 7
ShowPlace "from the top"
robot.Press pad, "Shift+F3"
' expect: stays: 0+6, Line 1, Col 7
ShowPlace "stays"
Sub OnFindNothing(dialog)
  robot.Child(dialog, "cmbCerca").Text = "nowhere"
  robot.Click robot.Child(dialog, "cmdOK")
End Sub
robot.WhenDialog "frmTrova", GetRef("OnFindNothing")
editor.DoFind
' expect: No results found for "nowhere"
WScript.Echo robot.Messages(robot.Messages.Count).Text

' The options: nothing is stored without a change, all of it with one.
Sub OnCancel(dialog)
  robot.Click robot.Child(dialog, "chkFontBold")
  robot.Click robot.Child(dialog, "cmdCancel")
End Sub
Sub OnOk(dialog)
  robot.Click robot.Child(dialog, "cmdOK")
End Sub
Sub OnKeywordsBold(dialog)
  robot.ClickItem robot.Child(dialog, "lstElements"), 2
  robot.Click robot.Child(dialog, "chkFontBold")
  robot.Click robot.Child(dialog, "cmdOK")
End Sub
Sub ShowOptions(handler)
  robot.WhenDialog "frmProps", GetRef(handler)
  robot.ToolButton editor, "props"
  WScript.Echo handler & ": " & pad.keywordsbold & " [" & robot.Setting("Editor test", "Editor", "KeywordsBold") & _
    "] [" & robot.Setting("Editor test", "Editor", "KeywordsColor") & "]"
End Sub
' expect: OnCancel: False [] []
ShowOptions "OnCancel"
' expect: OnOk: False [] []
ShowOptions "OnOk"
' expect: OnKeywordsBold: True [1] [255]
ShowOptions "OnKeywordsBold"

' The description of commands, and what a host is asked at the end.
robot.ToolButton editor, "help"
' expect: 1 Descrizione ORV
WScript.Echo editor.HelpButtonValue, robot.Child(editor, "frmOrvDesc").Caption
robot.ToolButton editor, "help"
' expect: 0
WScript.Echo editor.HelpButtonValue
editor.SaveButtonVisible = False
robot.Type pad, "y"
robot.Answer vbCancel
' expect: False True
WScript.Echo editor.TerminateRequested, editor.FileModified
robot.Answer vbYes
' expect: True False 1
WScript.Echo editor.TerminateRequested, editor.FileModified, asked
