' The designer's popup menu with its commands, the lock, and the clipboard, which each designer has for itself.
Option Explicit
Dim robot, designer, label, frame, box, last
Set robot = CreateObject("Cardwright.Robot")
Set designer = WScript.CreateObject("Cardwright.FormDesigner", "designer_")
robot.Show designer, 600, 400

Sub designer_MenuStateChanged(menuName, state)
  last = last & " " & menuName & "=" & state
End Sub
Sub designer_ObjectRemoved(name)
  last = last & " removed " & name
End Sub
Sub designer_ControlsLocked(locked)
  last = last & " locked=" & locked
End Sub
Sub designer_PropertyMenuClick
  last = last & " properties"
End Sub
Sub designer_RefreshPropertyList
  last = last & " refresh"
End Sub

Sub Choose(name, widget, x, y)
  robot.ChooseMenu name
  last = ""
  robot.Click widget, x, y, 2
  WScript.Echo name & ":" & last
End Sub

Function Draw(kind, left, top, right, bottom)
  designer.ControlTypeToAdd = kind
  robot.Drag designer, left, top, right, bottom
  Set Draw = designer.CurrentControl
End Function

Function NamesInStack
  Dim control
  For Each control In designer.Controls
    NamesInStack = NamesInStack & " " & control.UserName & "=" & control.ZOrder
  Next
End Function

Set label = Draw(5, 20, 20, 120, 50)
Set frame = Draw(4, 200, 100, 400, 250)
designer.ControlTypeToAdd = 8
robot.Drag frame, 20, 30, 120, 60
Set box = designer.CurrentControl
WScript.Echo label.Name, frame.Name, box.Name, box.Left & "," & box.Top

' On a control, and on the background.
Choose "", box, 5, 5
WScript.Echo robot.LastMenu
WScript.Echo designer.CurrentControl Is box, robot.Child(designer, "picResize", 0).Visible
Choose "", designer, 500, 350
WScript.Echo robot.LastMenu
WScript.Echo designer.CurrentControl Is box, robot.Child(designer, "picResize", 0).Visible
robot.Click label, , , 2, 1
WScript.Echo designer.CurrentControl Is box

Choose "mnuProps", label, 5, 5
WScript.Echo TypeName(designer.CurrentControl)
Choose "mnuCopy", label, 5, 5
Choose "mnuPaste", frame, 150, 130
WScript.Echo designer.CurrentControl.Name, designer.CurrentControl.Text, designer.CurrentControl.Object.Container.Name
Choose "mnuPaste", designer, 500, 350
Choose "mnuForeground", label, 5, 5
Choose "mnuBackground", frame, 150, 130
WScript.Echo NamesInStack

' Locked controls can be selected, but not moved or restacked.
Choose "mnuLock", designer, 500, 350
robot.Click box
robot.Drag robot.Child(designer, "picResize", 0), 3, 3, 40, 40
WScript.Echo designer.CurrentControl Is box, box.Left & "," & box.Top, robot.MousePointer(designer)
Choose "mnuForeground", label, 5, 5
WScript.Echo robot.LastMenu
Choose "mnuLock", box, 5, 5
robot.Click box
robot.Drag robot.Child(designer, "picResize", 0), 3, 3, 23, 23
WScript.Echo box.Left & "," & box.Top

Choose "mnuCut", frame, 150, 130
WScript.Echo designer.Controls.Count, TypeName(designer.CurrentControl)
Choose "mnuDelete", label, 5, 5
WScript.Echo designer.Controls.Count

' After the cut only the frame is pasted; a deleted source changes nothing.
designer.Paste
WScript.Echo designer.CurrentControl.Name, TypeName(designer.CurrentControl), designer.CurrentControl.Left, designer.CurrentControl.Width, designer.Controls.Count
robot.Press designer, "Delete"
designer.EnableKeyDelete = False
designer.Paste
robot.Press designer, "Delete"
WScript.Echo designer.Controls.Count
designer.EnableKeyDelete = True
robot.Press designer, "Delete"
WScript.Echo designer.Controls.Count

' In another designer nothing was copied.
Dim other: Set other = CreateObject("Cardwright.FormDesigner")
robot.Show other
other.Paste
WScript.Echo other.Controls.Count

' expect: object_1 object_2 object_3 20,30
' expect: :
' expect: mnuCut=Cut;mnuCopy=Copy;mnuPaste=Paste;-;mnuDelete=Delete;-;mnuForeground=Send to back;mnuBackground=Bring to front;-;mnuLock=Lock/Unlock controls;-;mnuProps=Properties
' expect: True True
' expect: : mnuCopy=False mnuCut=False mnuCopy=True mnuCut=True
' expect: !mnuCut=Cut;!mnuCopy=Copy;mnuPaste=Paste;-;mnuLock=Lock/Unlock controls;-;mnuProps=Properties
' expect: True False
' expect: True
' expect: mnuProps: properties
' expect: CLabel
' expect: mnuCopy: mnuPaste=True
' expect: mnuPaste:
' expect: object_4 Label1 object_2
' expect: mnuPaste: mnuCopy=False mnuCut=False mnuCopy=True mnuCut=True
' expect: mnuForeground:
' expect: mnuBackground:
' expect:  Form=0 object_1=0 object_2=1 object_3=0 object_4=0 object_5=0
' expect: mnuLock: mnuCopy=False mnuCut=False mnuForeground=False mnuBackground=False locked=True mnuCopy=True mnuCut=True
' expect: True 20,30 1
' expect: mnuForeground: mnuForeground=False mnuBackground=False mnuForeground=True mnuBackground=True
' expect: mnuCut=Cut;mnuCopy=Copy;mnuPaste=Paste;-;mnuDelete=Delete;-;!mnuForeground=Send to back;!mnuBackground=Bring to front;-;mnuLock=Lock/Unlock controls;-;mnuProps=Properties
' expect: mnuLock: mnuForeground=False mnuBackground=False mnuForeground=True mnuBackground=True locked=False mnuForeground=True mnuBackground=True
' expect: 40,50
' expect: mnuCut: mnuPaste=True removed object_2 refresh
' expect: 3 CForm
' expect: mnuDelete: removed object_5 refresh
' expect: 2
' expect: object_6 CFrame 0 200 3
' expect: 3
' expect: 2
' expect: 1
