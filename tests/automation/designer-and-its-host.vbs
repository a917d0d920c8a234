' The events, persistent properties and painting of a designer, as its host sees them.
Option Explicit
Dim folder, files, robot, designer, box, label, told, bag
folder = WScript.Arguments(0)
Set files = CreateObject("Scripting.FileSystemObject")
Set robot = CreateObject("Cardwright.Robot")
Set designer = WScript.CreateObject("Cardwright.FormDesigner", "designer_")

Sub designer_Resize
  told = told & " resize"
End Sub
Sub designer_NeedResize(width, height)
  told = told & " need " & width & "x" & height
End Sub
Sub designer_StateChanged(state)
  told = told & " state " & state
End Sub
Sub designer_CurrObjectChanged(control)
  told = told & " current " & control.UserName
End Sub
Sub designer_PropertyChanged(index, value)
  told = told & " " & designer.CurrentControl.PropertyName(index) & "=" & value
End Sub
Sub designer_ControlNameChanged(oldName, control)
  told = told & " " & oldName & " is " & control.UserName
End Sub
Sub Tell(what)
  WScript.Echo what & ":" & told
  told = ""
End Sub

robot.Show designer, 500, 400
Tell "shown"
designer.Parent.Width = designer.Parent.Width + 150
robot.Pump
Tell "wider by ten pixels"
WScript.Echo designer.Controls("Form").Width, designer.Controls("Form").Height
designer.Controls("Form").Width = 520
robot.Pump
Tell "wider by its property"
WScript.Echo designer.Parent.Width / 15

designer.ControlTypeToAdd = 8
Tell "to be drawn"
robot.Drag designer, 40, 48, 140, 72
Set box = designer.CurrentControl
Tell "drawn"
robot.Drag robot.Child(designer, "picResize", 0), 3, 3, 11, 19
Tell "moved"
WScript.Echo "<" & robot.Tooltip & ">"
robot.Drag robot.Child(designer, "picResize", 1), 3, 3, 27, 11
Tell "sized"
WScript.Echo "<" & robot.Tooltip & ">"
designer.ChangeControlName box, "txtName"
Tell "renamed"
designer.ChangeControlName box, "   "
designer.ChangeControlName box, "FORM"
Tell "not renamed"
robot.Click designer, 400, 300
Tell "form selected"
robot.Click box
Tell "box selected"
robot.Click box
Tell "again"
WScript.Echo robot.FocusName, "<" & robot.Child(designer, "picInvisible").Name & ">", robot.Child(designer, "picInvisible").Left < 0
robot.Type robot.Child(designer, "picInvisible"), "abc"
WScript.Echo box.Text

' The mouse pointers by their numbers, also over the handles.
Dim index, pointers
For index = 0 To 8
  robot.Drag robot.Child(designer, "picResize", index), 3, 3, 4, 3, 2, 1
  pointers = pointers & " " & robot.MousePointer(designer)
Next
WScript.Echo "pointers:" & pointers
designer.ControlTypeToAdd = 5
robot.Drag designer, 300, 300, 301, 300, 4, 1
WScript.Echo robot.MousePointer(designer)
designer.ControlTypeToAdd = 0

' A click without a drag draws a control of the minimum size.
designer.ControlTypeToAdd = 5
robot.Click designer, 200, 200
Set label = designer.CurrentControl
WScript.Echo label.Left, label.Top, label.Width, label.Height
designer.ControlTypeToAdd = 4
robot.Click designer, 300, 200
WScript.Echo designer.CurrentControl.Width, designer.CurrentControl.Height
designer.Delete
told = ""

' The grid as it is painted.
designer.GridStep = 10
designer.SetGrid -1, True
robot.Pump
WScript.Echo robot.PixelColor(designer, 10, 20), robot.PixelColor(designer, 10, 20) = robot.PixelColor(designer, 11, 20)
designer.SetGrid 0
WScript.Echo robot.PixelColor(designer, 10, 20) = robot.PixelColor(designer, 11, 20)
designer.SetGrid 10
WScript.Echo robot.PixelColor(designer, 10, 20)
WScript.Echo designer.GridStep
robot.Screenshot designer, folder & "/designer.png"
WScript.Echo files.GetFile(folder & "/designer.png").Size > 1000

' The persistent properties.
Set bag = robot.Bag(designer)
WScript.Echo Join(bag.Keys, ","), bag("EnableKeyDelete"), TypeName(bag("EnableKeyDelete"))
designer.EnableKeyDelete = False
WScript.Echo robot.Bag(designer)("EnableKeyDelete")
Set robot.Bag(designer) = bag
WScript.Echo designer.EnableKeyDelete
bag("EnableKeyDelete") = 0
Set robot.Bag(designer) = bag
WScript.Echo designer.EnableKeyDelete
Set robot.Bag(designer) = CreateObject("Scripting.Dictionary")
WScript.Echo designer.EnableKeyDelete
robot.DesignMode(designer) = True
WScript.Echo robot.DesignMode(designer)

' Child finds widgets, or Nothing.
WScript.Echo robot.Child(designer, "PICRESIZE", 8).Width, robot.Child(designer, "object_1").Name
WScript.Echo robot.Child(designer, "picResize") Is Nothing, robot.Child(designer, "picResize", 9) Is Nothing, robot.Child(designer, "picInvisible", 0) Is Nothing, robot.Child(designer, "cmdOK") Is Nothing

' A drag that leaves the window.
designer.GridAlignment = False
robot.Click box
robot.Drag robot.Child(designer, "picResize", 0), 3, 3, 3000, 3, , 200
WScript.Echo box.Left + box.Width > 480, box.Left + box.Width <= 520
designer.Parent.Close
WScript.Echo designer.Parent.Visible, designer.Controls.Count

' expect: shown: Width=504 Height=404 resize need 7560x6060
' expect: wider by ten pixels: Width=514 Height=404 resize need 7710x6060
' expect: 514 404
' expect: wider by its property: Width=520 Height=404 resize need 7800x6060 Width=520
' expect: 520
' expect: to be drawn:
' expect: drawn: current object_1 state Default
' expect: moved: Left=48 Top=64 Width=100 Height=24
' expect: < 48, 64 >
' expect: sized: Left=48 Top=64 Width=124 Height=32
' expect: < 124 x 32 >
' expect: renamed: object_1 is txtName
' expect: not renamed:
' expect: form selected: current Form
' expect: box selected: current txtName
' expect: again: Left=48 Top=64 Width=124 Height=32
' expect: picInvisible <picInvisible> True
' expect: Text1
' expect: pointers: 5 8 8 7 6 9 9 6 7
' expect: 1
' expect: 200 200 7 19
' expect: 7 0
' expect: 0 False
' expect: True
' expect: 0
' expect: 10
' expect: True
' expect: EnableKeyDelete 1 Long
' expect: 0
' expect: True
' expect: False
' expect: True
' expect: True
' expect: 7 object_1
' expect: True True True True
' expect: True True
' expect: False 3
