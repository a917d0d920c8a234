' Every kind of control is drawn with the mouse, moved by its centre and resized by each handle, with snap to grid.
Option Explicit
Dim robot, designer, kind, control, handle, form
Set robot = CreateObject("Cardwright.Robot")
Set designer = CreateObject("Cardwright.FormDesigner")
robot.Show designer, 640, 480
designer.GridAlignment = True

Function Place
  Place = control.Left & "," & control.Top & " " & control.Width & "x" & HeightOf
End Function

' The height of some kinds follows from their font.
Function HeightOf
  HeightOf = control.Height
  If control.Height <> 80 And control.Height Mod 8 <> 0 Then HeightOf = "own"
End Function

Sub Pull(index, dx, dy)
  Set handle = robot.Child(designer, "picResize", index)
  robot.Drag handle, 3, 3, 3 + dx, 3 + dy, , 16
  If HeightOf = "own" Then WScript.Echo "  " & index & ": " & Place Else WScript.Echo "  " & index & ": " & Place & " <" & robot.Tooltip & ">"
End Sub

For kind = 1 To 14
  designer.ControlTypeToAdd = kind
  robot.Drag designer, 200, 160, 360, 240
  Set control = designer.CurrentControl
  WScript.Echo kind, TypeName(control), control.Name, Place, designer.ControlTypeToAdd
  ' Sixteen steps of one or two pixels, so that every point of the grid is hit.
  Pull 0, 16, 16
  Pull 1, 16, 16
  Pull 2, -16, -16
  Pull 3, 0, 16
  Pull 4, -16, -16
  Pull 5, 16, 16
  Pull 6, 16, 16
  Pull 7, -16, -16
  Pull 8, 16, 16
  robot.Click designer, 620, 460
  form = TypeName(designer.CurrentControl)
  robot.Click control, 4, 4
  WScript.Echo "  selected:", form, designer.CurrentControl Is control
  designer.Copy
  designer.SetCtrl designer.Controls("Form")
  designer.Paste
  WScript.Echo "  pasted:", TypeName(designer.CurrentControl), designer.CurrentControl.Left & "," & designer.CurrentControl.Top, designer.CurrentControl.Width
  robot.Press designer, "Delete"
  robot.Click control, 4, 4
  robot.Press designer, "Delete"
  WScript.Echo "  left:", designer.Controls.Count, TypeName(designer.CurrentControl), robot.Child(designer, "picResize", 0).Visible
Next

' expect: 1 CCheckBox object_1 200,160 160x80 0
' expect:   0: 216,176 160x80 < 216, 176 >
' expect:   1: 216,176 176x96 < 176 x 96 >
' expect:   2: 200,160 192x112 < 192 x 112 >
' expect:   3: 200,176 192x96 < 192 x 96 >
' expect:   4: 200,160 176x112 < 176 x 112 >
' expect:   5: 216,160 160x112 < 160 x 112 >
' expect:   6: 216,160 176x112 < 176 x 112 >
' expect:   7: 200,160 192x96 < 192 x 96 >
' expect:   8: 200,160 192x112 < 192 x 112 >
' expect:   selected: CForm True
' expect:   pasted: CCheckBox 0,0 192
' expect:   left: 1 CForm False
' expect: 2 CComboBox object_3 200,160 160xown 0
' expect:   0: 216,176 160xown
' expect:   1: 216,176 176xown
' expect:   2: 200,160 192xown
' expect:   3: 200,160 192xown
' expect:   4: 200,144 176xown
' expect:   5: 216,144 160xown
' expect:   6: 216,144 176xown
' expect:   7: 200,144 192xown
' expect:   8: 200,144 192xown
' expect:   selected: CForm True
' expect:   pasted: CComboBox 0,0 192
' expect:   left: 1 CForm False
' expect: 3 CCommandButton object_5 200,160 160x80 0
' expect:   0: 216,176 160x80 < 216, 176 >
' expect:   1: 216,176 176x96 < 176 x 96 >
' expect:   2: 200,160 192x112 < 192 x 112 >
' expect:   3: 200,176 192x96 < 192 x 96 >
' expect:   4: 200,160 176x112 < 176 x 112 >
' expect:   5: 216,160 160x112 < 160 x 112 >
' expect:   6: 216,160 176x112 < 176 x 112 >
' expect:   7: 200,160 192x96 < 192 x 96 >
' expect:   8: 200,160 192x112 < 192 x 112 >
' expect:   selected: CForm True
' expect:   pasted: CCommandButton 0,0 192
' expect:   left: 1 CForm False
' expect: 4 CFrame object_7 200,160 160x80 0
' expect:   0: 216,176 160x80 < 216, 176 >
' expect:   1: 216,176 176x96 < 176 x 96 >
' expect:   2: 200,160 192x112 < 192 x 112 >
' expect:   3: 200,176 192x96 < 192 x 96 >
' expect:   4: 200,160 176x112 < 176 x 112 >
' expect:   5: 216,160 160x112 < 160 x 112 >
' expect:   6: 216,160 176x112 < 176 x 112 >
' expect:   7: 200,160 192x96 < 192 x 96 >
' expect:   8: 200,160 192x112 < 192 x 112 >
' expect:   selected: CForm True
' expect:   pasted: CFrame 0,0 192
' expect:   left: 1 CForm False
' expect: 5 CLabel object_9 200,160 160x80 0
' expect:   0: 216,176 160x80 < 216, 176 >
' expect:   1: 216,176 176x96 < 176 x 96 >
' expect:   2: 200,160 192x112 < 192 x 112 >
' expect:   3: 200,176 192x96 < 192 x 96 >
' expect:   4: 200,160 176x112 < 176 x 112 >
' expect:   5: 216,160 160x112 < 160 x 112 >
' expect:   6: 216,160 176x112 < 176 x 112 >
' expect:   7: 200,160 192x96 < 192 x 96 >
' expect:   8: 200,160 192x112 < 192 x 112 >
' expect:   selected: CForm True
' expect:   pasted: CLabel 0,0 192
' expect:   left: 1 CForm False
' expect: 6 CListBox object_11 200,160 160x80 0
' expect:   0: 216,176 160x80 < 216, 176 >
' expect:   1: 216,176 176x96 < 176 x 96 >
' expect:   2: 200,160 192x112 < 192 x 112 >
' expect:   3: 200,176 192x96 < 192 x 96 >
' expect:   4: 200,160 176x112 < 176 x 112 >
' expect:   5: 216,160 160x112 < 160 x 112 >
' expect:   6: 216,160 176x112 < 176 x 112 >
' expect:   7: 200,160 192x96 < 192 x 96 >
' expect:   8: 200,160 192x112 < 192 x 112 >
' expect:   selected: CForm True
' expect:   pasted: CListBox 0,0 192
' expect:   left: 1 CForm False
' expect: 7 COptionButton object_13 200,160 160x80 0
' expect:   0: 216,176 160x80 < 216, 176 >
' expect:   1: 216,176 176x96 < 176 x 96 >
' expect:   2: 200,160 192x112 < 192 x 112 >
' expect:   3: 200,176 192x96 < 192 x 96 >
' expect:   4: 200,160 176x112 < 176 x 112 >
' expect:   5: 216,160 160x112 < 160 x 112 >
' expect:   6: 216,160 176x112 < 176 x 112 >
' expect:   7: 200,160 192x96 < 192 x 96 >
' expect:   8: 200,160 192x112 < 192 x 112 >
' expect:   selected: CForm True
' expect:   pasted: COptionButton 0,0 192
' expect:   left: 1 CForm False
' expect: 8 CTextBox object_15 200,160 160x80 0
' expect:   0: 216,176 160x80 < 216, 176 >
' expect:   1: 216,176 176x96 < 176 x 96 >
' expect:   2: 200,160 192x112 < 192 x 112 >
' expect:   3: 200,176 192x96 < 192 x 96 >
' expect:   4: 200,160 176x112 < 176 x 112 >
' expect:   5: 216,160 160x112 < 160 x 112 >
' expect:   6: 216,160 176x112 < 176 x 112 >
' expect:   7: 200,160 192x96 < 192 x 96 >
' expect:   8: 200,160 192x112 < 192 x 112 >
' expect:   selected: CForm True
' expect:   pasted: CTextBox 0,0 192
' expect:   left: 1 CForm False
' expect: 9 CTextBoxMultiline object_17 200,160 160x80 0
' expect:   0: 216,176 160x80 < 216, 176 >
' expect:   1: 216,176 176x96 < 176 x 96 >
' expect:   2: 200,160 192x112 < 192 x 112 >
' expect:   3: 200,176 192x96 < 192 x 96 >
' expect:   4: 200,160 176x112 < 176 x 112 >
' expect:   5: 216,160 160x112 < 160 x 112 >
' expect:   6: 216,160 176x112 < 176 x 112 >
' expect:   7: 200,160 192x96 < 192 x 96 >
' expect:   8: 200,160 192x112 < 192 x 112 >
' expect:   selected: CForm True
' expect:   pasted: CTextBoxMultiline 0,0 192
' expect:   left: 1 CForm False
' expect: 10 CResourceSelector object_19 200,160 160x80 0
' expect:   0: 216,176 160x80 < 216, 176 >
' expect:   1: 216,176 176x96 < 176 x 96 >
' expect:   2: 200,160 192x112 < 192 x 112 >
' expect:   3: 200,176 192x96 < 192 x 96 >
' expect:   4: 200,160 176x112 < 176 x 112 >
' expect:   5: 216,160 160x112 < 160 x 112 >
' expect:   6: 216,160 176x112 < 176 x 112 >
' expect:   7: 200,160 192x96 < 192 x 96 >
' expect:   8: 200,160 192x112 < 192 x 112 >
' expect:   selected: CForm True
' expect:   pasted: CResourceSelector 0,0 192
' expect:   left: 1 CForm False
' expect: 11 CThemeSelector object_21 200,160 160xown 0
' expect:   0: 216,176 160xown
' expect:   1: 216,176 176xown
' expect:   2: 200,160 192xown
' expect:   3: 200,160 192xown
' expect:   4: 200,144 176xown
' expect:   5: 216,144 160xown
' expect:   6: 216,144 176xown
' expect:   7: 200,144 192xown
' expect:   8: 200,144 192xown
' expect:   selected: CForm True
' expect:   pasted: CThemeSelector 0,0 192
' expect:   left: 1 CForm False
' expect: 12 CFontSelector object_23 200,160 160x80 0
' expect:   0: 216,176 160x80 < 216, 176 >
' expect:   1: 216,176 176x96 < 176 x 96 >
' expect:   2: 200,160 192x112 < 192 x 112 >
' expect:   3: 200,176 192x96 < 192 x 96 >
' expect:   4: 200,160 176x112 < 176 x 112 >
' expect:   5: 216,160 160x112 < 160 x 112 >
' expect:   6: 216,160 176x112 < 176 x 112 >
' expect:   7: 200,160 192x96 < 192 x 96 >
' expect:   8: 200,160 192x112 < 192 x 112 >
' expect:   selected: CForm True
' expect:   pasted: CFontSelector 0,0 192
' expect:   left: 1 CForm False
' expect: 13 CColorSelector object_25 200,160 160x80 0
' expect:   0: 216,176 160x80 < 216, 176 >
' expect:   1: 216,176 176x96 < 176 x 96 >
' expect:   2: 200,160 192x112 < 192 x 112 >
' expect:   3: 200,176 192x96 < 192 x 96 >
' expect:   4: 200,160 176x112 < 176 x 112 >
' expect:   5: 216,160 160x112 < 160 x 112 >
' expect:   6: 216,160 176x112 < 176 x 112 >
' expect:   7: 200,160 192x96 < 192 x 96 >
' expect:   8: 200,160 192x112 < 192 x 112 >
' expect:   selected: CForm True
' expect:   pasted: CColorSelector 0,0 192
' expect:   left: 1 CForm False
' expect: 14 CAttributeSelector object_27 200,160 160xown 0
' expect:   0: 216,176 160xown
' expect:   1: 216,176 176xown
' expect:   2: 200,160 192xown
' expect:   3: 200,160 192xown
' expect:   4: 200,144 176xown
' expect:   5: 216,144 160xown
' expect:   6: 216,144 176xown
' expect:   7: 200,144 192xown
' expect:   8: 200,144 192xown
' expect:   selected: CForm True
' expect:   pasted: CAttributeSelector 0,0 192
' expect:   left: 1 CForm False
