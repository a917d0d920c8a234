' A project may ask for any size. Its window stays within what the machine can handle, and closes like any other.
Option Explicit
Dim folder, files, robot, kind, size, control
folder = WScript.Arguments(0)
Set files = CreateObject("Scripting.FileSystemObject")
Set robot = CreateObject("Cardwright.Robot")

Function Project(size)
  Project = folder & "/size.cwf"
  With files.CreateTextFile(Project, True)
    .Write Join(Array("[FORM]", "ScaleMode= 3", "Width= " & size, "Height= " & size, "ControlsNumber= 1", "[CONTROLS_1]", "Type=Label", _
        "Name=object_1", "UserName=lblOne", "Text=one", "Left= 10", "Top= 10", "Width= 50", "Height= 20", "Container=", ""), vbCrLf)
    .Close
  End With
End Function

For Each kind In Split("FormInput FormDesigner")
  For Each size In Array("99999999999", "1e300", "-50", "0")
    Set control = CreateObject("Cardwright." & kind)
    robot.Show control, 300, 200
    control.ProjectRead Project(size)
    robot.Pump
    WScript.Echo kind, size, control.Controls.Count, control.Parent.Width < 9000 * 15, control.Controls(1).Width >= 0
    control.Parent.Width = 3E+38
    robot.Pump
    control.Parent.Close
  Next
Next

' expect: FormInput 99999999999 2 True True
' expect: FormInput 1e300 2 True True
' expect: FormInput -50 2 True True
' expect: FormInput 0 2 True True
' expect: FormDesigner 99999999999 2 True True
' expect: FormDesigner 1e300 2 True True
' expect: FormDesigner -50 2 True True
' expect: FormDesigner 0 2 True True
