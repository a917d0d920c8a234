' An error in a form's script is shown in one message box, with its number and its position in the author's source, and the
' form continues. Three names are declared before the author's source here: "Form", "txtDepth" and the button's.
Option Explicit
Dim files, folder, robot, hosts, vellum, form, told, button, handle
Set files = CreateObject("Scripting.FileSystemObject")
folder = WScript.Arguments(0)

' Changes a field, and so runs the script's procedure for that, during a command of the script.
Class Host
  Public Function ORVExecute(command)
    If command = "CHANGE" Then form.Controls("txtDepth").PropertyValue("Text") = "changed"
    If command = "FAIL" Then Err.Raise 1234, "host", "the host has no such command"
  End Function
  Public Function ORVRequest(command)
  End Function
End Class

Sub WriteProject(path, language, script)
  Dim text: Set text = files.CreateTextFile(path, True)
  text.Write Join(Array("[FORM]", "ScaleMode= 3", "Width= 300", "Height= 60", "ControlsNumber= 2", _
    "[CONTROLS_1]", "Type=TextBox", "Name=object_1", "UserName=txtDepth", "Left= 10", "Top= 10", "Width= 100", "Height= 24", _
    "[CONTROLS_2]", "Type=CommandButton", "Name=object_2", "UserName=" & button, "Left= 120", "Top= 10", "Width= 90", "Height= 24", _
    "[SCRIPT]", language, Join(script, vbCrLf), ""), vbCrLf)
  text.Close
End Sub

Sub Tell(title)
  Dim i
  If robot.Messages.Count = told Then WScript.Echo title & ": nothing"
  For i = told + 1 To robot.Messages.Count
    WScript.Echo title & ": " & Replace(robot.Messages(i).Text, vbCrLf, " // ")
    If robot.Messages(i).Style <> vbExclamation Then WScript.Echo "style", robot.Messages(i).Style
  Next
  told = robot.Messages.Count
End Sub

Sub Open(title, language, script)
  WriteProject folder & "/failing.cwf", language, script
  Set form = WScript.CreateObject("Cardwright.FormInput", "form_")
  If Not form.ProjectRead(folder & "/failing.cwf") Then WScript.Echo "not read"
  Tell title
  robot.Show form
End Sub

Sub Press(title)
  robot.Click form.Controls(button)
  Tell title
  If form.Controls("txtDepth").Text <> "" Then WScript.Echo "  " & form.Controls("txtDepth").Text
End Sub

Sub form_OkClick()
  WScript.Echo "  OkClick"
End Sub
Sub form_CancelClick()
  WScript.Echo "  CancelClick"
End Sub

Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
handle = hosts.Register(New Host)
vellum.TarvoHandle = handle
button = "cmdGo"

WScript.Echo "-- VBScript"
Open "syntax", "VBScript", Array("", "Sub cmdGo_OnClick()", "  x = (1 + ", "End Sub")
Press "its procedure is not there"
Open "load", "VBScript", Array("Dim a(2)", "a(1) = 2", "a(3) = 4")
Open "load of a field", "VBScript", Array("txtDepth.Text = 1")
Open "option first", "vbscript", Array("Option Explicit", "Sub Form_Initialize()", "  y = 1", "End Sub")
Open "option later", "VBScript", Array("' depth", "Option Explicit")
Open "initialize", "VBSCRIPT", Array("Sub Form_Initialize()", "  Err.Raise 777, , ""no depth""", "End Sub")
Open "read", "VBScript", Array("Sub cmdGo_OnClick()", "  txtDepth.Text = ""1""", "  Deeper 2", "End Sub", "", "Sub Deeper(n)", _
  "  txtDepth.Text = ""2"": Controls(""txtDepht"").Text = n", "End Sub")
Press "click"
Press "again"
Open "read", "VBScript", Array("Sub cmdGo_OnClick()", "  ORVExecute ""CHANGE""", "  txtDepth.Text = ""done""", "End Sub", _
  "Sub txtDepth_OnChange()", "  If txtDepth.Text = ""changed"" Then x = 1 / 0", "End Sub")
Press "inside a command"
Open "read", "VBScript", Array("Sub cmdGo_OnClick()", "  ORVExecute ""FAIL""", "  txtDepth.Text = ""done""", "End Sub")
Press "of the host"
Open "read", "VBScript", Array("Sub cmdGo_OnClick()", "On Error Resume Next", "  ORVExecute ""FAIL""", _
  "  txtDepth.Text = Err.Number & "" "" & Err.Description", "End Sub")
Press "of the host, caught"
Open "read", "VBScript", Array("Sub cmdGo_OnClick()", "  Err.Raise 380", "End Sub")
Press "of the number of a wrong window"
Open "read", "VBScript", Array("Sub Form_BeforeOkClick()", "  Response = False", "  Set x = 1", "End Sub", _
  "Sub Form_AfterOkClick()", "  Execute ""x =""", "End Sub", "Sub Form_BeforeCancelClick()", "  Response = False", _
  "  Forms.Close", "End Sub")
robot.Click robot.Child(form, "cmdOK"): Tell "ok"
robot.Click robot.Child(form, "cmdCancel"): Tell "cancel"

WScript.Echo "-- JScript"
Open "syntax", "JScript", Array("", "function cmdGo_OnClick() {", "  var x = (1 + ;", "}")
Press "its procedure is not there"
Open "load", "JScript", Array("var a = null;", "", "  a.depth = 4;")
Open "load of a field", "JScript", Array("txtDepth.Text = 1;")
Open "initialize", "JSCRIPT", Array("function Form_Initialize() {", "  throw new Error(777, 'no depth');", "}")
Open "initialize", "jscript", Array("function Form_Initialize() {", "  throw 'no depth';", "}")
Open "read", "JScript", Array("function cmdGo_OnClick() {", "  txtDepth.Text = '1';", "  deeper(2);", "}", "", _
  "function deeper(n) {", "  txtDepth.Text = '2'; Controls('txtDepht').Text = n;", "}")
Press "click"
Press "again"
Open "read", "JScript", Array("function cmdGo_OnClick() {", "  ORVExecute('CHANGE');", "  txtDepth.Text = 'done';", "}", _
  "function txtDepth_OnChange() {", "  if (txtDepth.Text == 'changed') x = depth / 0;", "}")
Press "inside a command"
Open "read", "JScript", Array("function cmdGo_OnClick() {", "  ORVExecute('FAIL');", "  txtDepth.Text = 'done';", "}")
Press "of the host"
Open "read", "JScript", Array("function cmdGo_OnClick() {", "  try { ORVExecute('FAIL'); } catch (e) {", _
  "  txtDepth.Text = e.number + ' ' + e.description; }", "}")
Press "of the host, caught"
Open "read", "JScript", Array("function cmdgo_onclick() {", "  txtDepth.Text = 'done';", "}")
Press "in another case"
Open "read", "JScript", Array("function Form_BeforeOkClick() {", "  Response = false;", "  x.y = 1;", "}", _
  "function Form_AfterOkClick() {", "  eval('x =');", "}", "function Form_BeforeCancelClick() {", "  Response = false;", _
  "  undefined();", "}")
robot.Click robot.Child(form, "cmdOK"): Tell "ok"
robot.Click robot.Child(form, "cmdCancel"): Tell "cancel"

WScript.Echo "-- any language"
Open "no language", "", Array("x = 1")
Open "another language", "Fortran", Array("x = 1")
button = "cmd Go"
Open "a name that is none", "VBScript", Array("x = 1")
Open "a name that is none", "JScript", Array("x = 1")
button = "for"
Open "a name that is a word of the language", "VBScript", Array("x = 1")
Open "a name that is a word of the language", "JScript", Array("x = 1")
button = "cmdGo"
hosts.Close handle
Open "a connection that has ended", "VBScript", Array("Sub cmdGo_OnClick()", "  x = 1 / 0", "End Sub")
Open "a connection that has ended", "JScript", Array("x = 1 / 0")
Press "its events"
vellum.TarvoHandle = 0
Open "no connection", "VBScript", Array("x =")
Press "its events"
robot.Click robot.Child(form, "cmdOK"): Tell "its OK"

' expect: -- VBScript
' expect: syntax: Error N. 1002 - Syntax error  // (Line: 3    Column:11)
' expect: its procedure is not there: Error N. 5 - Invalid procedure call or argument
' expect: load: Error N. 9 - Subscript out of range  // (Line: 3    Column:0)
' expect: load of a field: Error N. 424 - Object required: 'txtDepth'  // (Line: 1    Column:0)
' expect: option first: Error N. 500 - Variable is undefined: 'y'  // (Line: 3    Column:2)
' expect: option later: Error N. 1024 - Expected statement  // (Line: 2    Column:0)
' expect: initialize: Error N. 777 - no depth  // (Line: 2    Column:2)
' expect: read: nothing
' expect: click: Error N. 5 - Invalid procedure call or argument  // (Line: 7    Column:23)
' expect:   2
' expect: again: Error N. 5 - Invalid procedure call or argument  // (Line: 7    Column:23)
' expect:   2
' expect: read: nothing
' expect: inside a command: Error N. 11 - Division by zero  // (Line: 6    Column:36)
' expect:   done
' expect: read: nothing
' expect: of the host: Error N. 1234 - the host has no such command  // (Line: 2    Column:2)
' expect: read: nothing
' expect: of the host, caught: nothing
' expect:   1234 the host has no such command
' expect: read: nothing
' expect: of the number of a wrong window: Error N. 380 - Invalid property value  // (Line: 2    Column:2)
' expect: read: nothing
' expect:   OkClick
' expect: ok: Error N. 424 - Object required  // (Line: 3    Column:2)
' expect: ok: Error N. 1002 - Syntax error  // (Line: 6    Column:2)
' expect:   CancelClick
' expect: cancel: Error N. 424 - Object required: 'Forms'  // (Line: 10    Column:2)
' expect: -- JScript
' expect: syntax: Error N. 1002 - Syntax error  // (Line: 3    Column:15)
' expect: its procedure is not there: Error N. 5 - Invalid procedure call or argument
' expect: load: Error N. 5007 - 'a' is null or not an object  // (Line: 3    Column:2)
' expect: load of a field: Error N. 5007 - 'txtDepth' is null or not an object  // (Line: 1    Column:0)
' expect: initialize: Error N. 777 - no depth  // (Line: 2    Column:8)
' expect: initialize: Error N. 5022 - Exception thrown and not caught  // (Line: 2    Column:2)
' expect: read: nothing
' expect: click: Error N. 5 - Invalid procedure call or argument  // (Line: 7    Column:31)
' expect:   2
' expect: again: Error N. 5 - Invalid procedure call or argument  // (Line: 7    Column:31)
' expect:   2
' expect: read: nothing
' expect: inside a command: Error N. 5009 - 'depth' is undefined  // (Line: 6    Column:34)
' expect:   done
' expect: read: nothing
' expect: of the host: Error N. 1234 - the host has no such command  // (Line: 2    Column:12)
' expect: read: nothing
' expect: of the host, caught: nothing
' expect:   -2146827054 the host has no such command
' expect: read: nothing
' expect: in another case: Error N. 5 - Invalid procedure call or argument
' expect: read: nothing
' expect:   OkClick
' expect: ok: Error N. 5009 - 'x' is undefined  // (Line: 3    Column:2)
' expect: ok: Error N. 1002 - Syntax error  // (Line: 6    Column:2)
' expect:   CancelClick
' expect: cancel: Error N. 5007 - Object expected  // (Line: 10    Column:2)
' expect: -- any language
' expect: no language: nothing
' expect: another language: Unable to execute program: // Sub or function Main missing !!!
' expect: a name that is none: Error N. 1025 - Expected end of statement  // (Line: 0    Column:8)
' expect: a name that is none: Error N. 1004 - Expected ';'  // (Line: 0    Column:8)
' expect: a name that is a word of the language: Error N. 1010 - Expected identifier  // (Line: 0    Column:4)
' expect: a name that is a word of the language: Error N. 1010 - Expected identifier  // (Line: 0    Column:4)
' expect: a connection that has ended: Invalid OV Tarvo connection ! // Unable to execute the Script
' expect: a connection that has ended: Invalid OV Tarvo connection ! // Unable to execute the Script
' expect: its events: nothing
' expect: no connection: nothing
' expect: its events: nothing
' expect: its OK: nothing
