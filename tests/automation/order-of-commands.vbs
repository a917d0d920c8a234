' A host that is an object of the script receives every command of a form, in order. The script writes the form itself.
Option Explicit
Dim files, folder, robot, hosts, vellum, form, handle
Set files = CreateObject("Scripting.FileSystemObject")
folder = WScript.Arguments(0)

Class ScriptedHost
  Public Function ORVExecute(command)
    WScript.Echo "X", command
  End Function
  Public Function ORVRequest(command)
    Select Case Split(command, " ")(0)
      Case "THEME_NUMBER", "THEME_SELECTED_NUMBER", "THEME_CURRENT_ISVALID": ORVRequest = 1
      Case "THEME_ATTRIBUTE_NUMBER": ORVRequest = 1
      Case "THEME_ATTRIBUTE": ORVRequest = "NAME,0,10,0"
      Case "THEME_GET_ATTRIBUTE": ORVRequest = "spring"
    End Select
    WScript.Echo "R", command, "->", ORVRequest
  End Function
End Class

Sub WriteProject(path)
  Dim text: Set text = files.CreateTextFile(path, True)
  text.Write Join(Array("[FORM]", "ScaleMode= 3", "Text=Wells", "Width= 300", "Height= 80", "ThemeName=wells", "FeatureType= 0", _
    "ControlsNumber= 1", "[CONTROLS_1]", "Type=TextBox", "Name=object_1", "UserName=txtName", "Left= 10", "Top= 10", "Width= 200", _
    "Height= 24", "Attribute=NAME", "IsNeeded=True", "InputType=Text", "[ZORDER]", "Form= 0", "txtName= 0", "[SCRIPT]", "VBScript", _
    "Dim clicks", "Sub Form_BeforeOkClick()", "  clicks = clicks + 1", "  ORVExecute ""NOTE before "" & clicks", _
    "  If clicks = 1 Then Response = (MsgBox(""Store it?"", vbYesNo + vbQuestion, ""Wells"") = vbYes)", "End Sub", _
    "Sub Form_AfterSetAttributes()", "  ORVExecute ""NOTE stored""", "End Sub", _
    "Sub Form_BeforeCancelClick()", "  ORVExecute ""NOTE cancel""", "End Sub", ""), vbCrLf)
  text.Close
End Sub

WriteProject folder & "/small.cwf"
Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
handle = hosts.Register(New ScriptedHost)
vellum.TarvoHandle = handle
Set form = WScript.CreateObject("Cardwright.FormInput", "form_")
WScript.Echo "-- read"
WScript.Echo form.ProjectRead(folder & "/small.cwf")
WScript.Echo "-- feature"
form.FeatureID = 7
robot.Show form

WScript.Echo "-- needed"
robot.Press form.Controls("txtName"), "Shift+End"
robot.Press form.Controls("txtName"), "Delete"
robot.Click robot.Child(form, "cmdOK")
WScript.Echo robot.FocusName, robot.Messages(1).Text, robot.Messages(1).Style

WScript.Echo "-- refused"
robot.Type form.Controls("txtName"), "deep well!!"
robot.Answer vbNo
robot.Click robot.Child(form, "cmdOK")
WScript.Echo robot.Messages(2), robot.Messages(2).Title, robot.Messages(2).Style

WScript.Echo "-- ok"
hosts.ClearLog handle
robot.Press form.Controls("txtName"), "Enter"
WScript.Echo "-- log"
WScript.Echo Replace(hosts.Log(handle), vbCrLf, "|")

WScript.Echo "-- cancel"
robot.Click robot.Child(form, "cmdCancel")

Sub form_OkClick()
  WScript.Echo "OkClick"
End Sub
Sub form_CancelClick()
  WScript.Echo "CancelClick"
End Sub

' expect: -- read
' expect: R THEME_NUMBER |wells| -> 1
' expect: True
' expect: -- feature
' expect: X APPLICATION_FLAGREDRAW OFF
' expect: X THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 7 NEW
' expect: R THEME_SELECTED_NUMBER |wells| |POINT| -> 1
' expect: X THEME_MOVEFIRST |wells| |POINT|
' expect: R THEME_CURRENT_ISVALID |wells| |POINT| -> 1
' expect: R THEME_ATTRIBUTE_NUMBER |wells| |POINT| -> 1
' expect: R THEME_ATTRIBUTE |wells| |POINT| 1 -> NAME,0,10,0
' expect: R THEME_GET_ATTRIBUTE |wells| |POINT| |NAME| -> spring
' expect: X THEME_SELECTION_NONE |wells| |POINT|
' expect: X APPLICATION_FLAGREDRAW ON
' expect: -- needed
' expect: object_1 The attribute NAME must be compiled! 48
' expect: -- refused
' expect: X APPLICATION_FLAGREDRAW OFF
' expect: X NOTE before 1
' expect: X APPLICATION_FLAGREDRAW ON
' expect: X APPLICATION_REDRAW
' expect: Store it? Wells 36
' expect: -- ok
' expect: X APPLICATION_FLAGREDRAW OFF
' expect: X NOTE before 2
' expect: X THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 7 NEW
' expect: R THEME_SELECTED_NUMBER |wells| |POINT| -> 1
' expect: X THEME_MOVEFIRST |wells| |POINT|
' expect: R THEME_ATTRIBUTE_NUMBER |wells| |POINT| -> 1
' expect: R THEME_ATTRIBUTE |wells| |POINT| 1 -> NAME,0,10,0
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |NAME| |deep well!|
' expect: X NOTE stored
' expect: X THEME_SELECTION_NONE |wells| |POINT|
' expect: X APPLICATION_FLAGREDRAW ON
' expect: X APPLICATION_REDRAW
' expect: OkClick
' expect: -- log
' expect: X APPLICATION_FLAGREDRAW OFF|X NOTE before 2|X THEME_SELECTION_BYVALUE |wells| |POINT| OVTARVOUNIQUEID = 7 NEW|R THEME_SELECTED_NUMBER |wells| |POINT| -> 1|X THEME_MOVEFIRST |wells| |POINT||R THEME_ATTRIBUTE_NUMBER |wells| |POINT| -> 1|R THEME_ATTRIBUTE |wells| |POINT| 1 -> NAME,0,10,0|X THEME_SET_ATTRIBUTE |wells| |POINT| |NAME| |deep well!||X NOTE stored|X THEME_SELECTION_NONE |wells| |POINT||X APPLICATION_FLAGREDRAW ON|X APPLICATION_REDRAW|
' expect: -- cancel
' expect: X APPLICATION_FLAGREDRAW OFF
' expect: X NOTE cancel
' expect: X APPLICATION_FLAGREDRAW ON
' expect: X APPLICATION_REDRAW
' expect: CancelClick
