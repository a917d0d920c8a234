' All kinds of controls are drawn, on the form and in a frame. The saved project can be opened, and saves to the same bytes.
Option Explicit
Dim folder, files, robot, designer, kind, index, count, control, frame, first, form
folder = WScript.Arguments(0)
Set files = CreateObject("Scripting.FileSystemObject")
Set robot = CreateObject("Cardwright.Robot")

Function Bytes(path)
  Dim stream: Set stream = files.OpenTextFile(path)
  Bytes = stream.ReadAll
  stream.Close
End Function

Sub DrawAll(target, left, top)
  For kind = 1 To 14
    designer.ControlTypeToAdd = kind
    index = kind - 1
    robot.Drag target, left + (index Mod 3) * 100, top + (index \ 3) * 40, left + (index Mod 3) * 100 + 90, top + (index \ 3) * 40 + 30
    If kind > 1 Then
      If designer.CurrentControl Is control Then WScript.Echo "nothing drawn:", kind
    End If
    Set control = designer.CurrentControl
  Next
End Sub

' Reads every row of the selected control, as a property grid does.
Sub ReadRows(shown)
  Dim row, value
  For row = 0 To shown.PropertyCount - 1
    If Not IsObject(shown.PropertyValue(row)) Then value = shown.PropertyValue(row)
  Next
End Sub

' Each save adds an empty line to the script.
Function Saved(name)
  If Not designer.ProjectSave(folder & "/" & name) Then WScript.Echo "not saved:", name
  Saved = Bytes(folder & "/" & name)
  Do While Right(Saved, 2) = vbCrLf
    Saved = Left(Saved, Len(Saved) - 2)
  Loop
End Function

Set designer = CreateObject("Cardwright.FormDesigner")
robot.Show designer, 720, 520
DrawAll designer, 10, 10
designer.ControlTypeToAdd = 4
robot.Drag designer, 350, 10, 700, 300
Set frame = designer.CurrentControl
designer.ChangeControlName frame, "fraWell"
DrawAll frame, 12, 24
For Each control In designer.Controls
  If TypeName(control) <> "CForm" Then
    ReadRows control
    If Not control.Object.Container Is Nothing Then count = count + 1
    If TypeName(control) = "CComboBox" Then control.PropertyValue("Editable") = True
  End If
Next
WScript.Echo designer.Controls.Count, TypeName(frame), frame.Name, frame.Width & "x" & frame.Height, "in it:", count

' A frame in the frame, names, the z-order, and the form's own rows.
designer.ControlTypeToAdd = 4
robot.Drag frame, 20, 230, 160, 284
designer.ChangeControlName designer.CurrentControl, "fraInner"
designer.ControlTypeToAdd = 8
robot.Drag designer.Controls("fraInner"), 10, 18, 100, 42
designer.ChangeControlName designer.CurrentControl, "txtDepth"
designer.Controls("txtDepth").PropertyValue("InputType") = "Float"
designer.Controls("txtDepth").PropertyValue("Text") = ""
designer.SetCtrl frame
designer.SetBackground
designer.SetCtrl designer.Controls("Form")
designer.SetThemeName "wells"
designer.SetFeatureType 0
designer.Controls("Form").PropertyValue("Text") = "Drawn by hand"
WScript.Echo designer.Parent.Caption, designer.GetThemeName, designer.GetFeatureType, designer.Controls("Form").Width

first = Saved("first.cwf")
Set designer = CreateObject("Cardwright.FormDesigner")
WScript.Echo designer.ProjectRead(folder & "/first.cwf"), designer.Controls.Count, Len(first) > 5000
WScript.Echo "before it is shown:", Saved("second.cwf") = first
robot.Show designer
WScript.Echo "the same:", Saved("third.cwf") = first, designer.Controls("Form").Width
WScript.Echo designer.Controls("txtDepth").Object.Container.Name = designer.Controls("fraInner").Name
WScript.Echo designer.Controls("fraInner").Object.Container.Name = designer.Controls("fraWell").Name

' Another control in the form that was read: the numbers of widget names continue.
designer.ControlTypeToAdd = 5
robot.Drag designer, 20, 320, 120, 340
WScript.Echo designer.CurrentControl.Name, designer.CurrentControl.Text
designer.Delete
WScript.Echo "without it:", Saved("fourth.cwf") = first

' The form can be filled in.
Set form = CreateObject("Cardwright.FormInput")
WScript.Echo form.ProjectRead(folder & "/first.cwf"), form.Controls.Count
robot.Show form
robot.Type form.Controls("txtDepth"), "x12.5y"
WScript.Echo form.Controls("txtDepth").Text, form.Parent.Caption

' expect: 30 CFrame object_15 350x290 in it: 14
' expect: Drawn by hand wells 0 724
' expect: True 32 True
' expect: before it is shown: True
' expect: the same: True 724
' expect: True
' expect: True
' expect: object_32 Label32
' expect: without it: True
' expect: True 32
' expect: 12.5 Drawn by hand
