' Without a display and without a robot, a form's message boxes print their text to the script's output and return at once.
Option Explicit
Dim files, text, hosts, vellum, form, file, robot
file = WScript.Arguments(0) & "/boxes.cwf"
Set files = CreateObject("Scripting.FileSystemObject")
Set text = files.CreateTextFile(file, True)
text.Write Join(Array("[FORM]", "ScaleMode= 3", "Width= 300", "Height= 200", "ControlsNumber= 0", "[SCRIPT]", "VBScript", _
  "Sub Form_Initialize()", "  ORVExecute MsgBox(""Deep enough?"", vbYesNo + vbDefaultButton2)", _
  "  ORVExecute InputBox(""How deep?"", ""Depth"", ""12"")", "  x = 1 / 0", "End Sub", ""), vbCrLf)
text.Close

Class Host
  Public Function ORVExecute(command)
    WScript.Echo "host:", command
  End Function
  Public Function ORVRequest(command)
  End Function
End Class

Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
vellum.TarvoHandle = hosts.Register(New Host)
Set form = CreateObject("Cardwright.FormInput")
WScript.Echo form.ProjectRead(file)

Set robot = CreateObject("Cardwright.Robot")
robot.Answer vbYes
form.ProjectRead file
WScript.Echo robot.Messages.Count

' After the robot was released, message boxes print their text again.
Set robot = Nothing
WScript.Echo form.ProjectRead(file)

' expect: Deep enough?
' expect: host: 7
' expect: How deep?
' expect: host: 12
' expect: Error N. 11 - Division by zero 
' expect: (Line: 4    Column:2)
' expect: True
' expect: host: 6
' expect: host: 12
' expect: 3
' expect: Deep enough?
' expect: host: 7
' expect: How deep?
' expect: host: 12
' expect: Error N. 11 - Division by zero 
' expect: (Line: 4    Column:2)
' expect: True
