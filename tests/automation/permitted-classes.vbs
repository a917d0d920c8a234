' A form's script can use files only if the user permits it. A robot answers that question; without one it is not asked.
Option Explicit
Dim folder, files, robot, hosts, vellum, form, box
Set files = CreateObject("Scripting.FileSystemObject")
folder = files.GetAbsolutePathName(WScript.Arguments(0))

Sub WriteProject(name, progid)
  Dim text: Set text = files.CreateTextFile(folder & "/" & name, True)
  text.Write Join(Array("[FORM]", "ScaleMode= 3", "Width= 300", "Height= 100", "ControlsNumber= 1", _
    "[CONTROLS_1]", "Type=TextBox", "Name=object_1", "UserName=txtAnswer", "Left= 10", "Top= 40", "Width= 200", "Height= 24", _
    "[SCRIPT]", "VBScript", "Sub Form_Initialize()", "  On Error Resume Next", "  Dim made", _
    "  Set made = CreateObject(""" & progid & """)", "  txtAnswer.PropertyValue(""Text"") = Err.Number & "" "" & TypeName(made)", _
    "End Sub", ""), vbCrLf)
  text.Close
End Sub

Class Host
  Public Function ORVExecute(command)
  End Function
  Public Function ORVRequest(command)
  End Function
End Class

Sub Read(name)
  Set form = CreateObject("Cardwright.FormInput")
  form.ProjectRead folder & "/" & name
  WScript.Echo form.Controls("txtAnswer").Text
End Sub

WriteProject "files.cwf", "Scripting.FileSystemObject"
WriteProject "items.cwf", "Cardwright.CItems"
WriteProject "robot.cwf", "Cardwright.Robot"
Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
vellum.TarvoHandle = hosts.Register(New Host)

Read "files.cwf"
Set robot = CreateObject("Cardwright.Robot")
Read "files.cwf"
robot.Answer vbYes
Read "files.cwf"
Read "files.cwf"
robot.Answer vbNo: robot.Answer vbYes
Read "items.cwf"
Read "items.cwf"
Read "robot.cwf"
robot.Setting("Cardwright", "FormScripts", folder & "/files.cwf scripting.filesystemobject") = ""
Read "files.cwf"
For Each box In robot.Messages
  WScript.Echo Split(Replace(box.Text, vbCr, ""), vbLf)(0), box.Style, InStr(box.Text, vbLf & folder & "/") > 0
Next

' expect: 429 Empty
' expect: 429 Empty
' expect: 0 FileSystemObject
' expect: 0 FileSystemObject
' expect: 429 Empty
' expect: 0 CItems
' expect: 429 Empty
' expect: 429 Empty
' expect: The script of this form wants to use the class Scripting.FileSystemObject, with which it may reach more than the form, such as your files. 308 True
' expect: The script of this form wants to use the class Scripting.FileSystemObject, with which it may reach more than the form, such as your files. 308 True
' expect: The script of this form wants to use the class Cardwright.CItems, with which it may reach more than the form, such as your files. 308 True
' expect: The script of this form wants to use the class Cardwright.CItems, with which it may reach more than the form, such as your files. 308 True
' expect: The script of this form wants to use the class Scripting.FileSystemObject, with which it may reach more than the form, such as your files. 308 True
