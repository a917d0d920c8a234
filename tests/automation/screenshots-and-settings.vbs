' Screenshots and colours of pixels, persistent properties, and the user's settings.
Option Explicit
Dim folder, files, robot, form, bag, box
folder = WScript.Arguments(0)
Set files = CreateObject("Scripting.FileSystemObject")
Set robot = CreateObject("Cardwright.Robot")
Set form = CreateObject("Cardwright.FormInput")
form.ProjectRead folder & "/well-inspection.cwf"
robot.Show form
Set box = form.Controls("txtName").Object
box.BackColor = RGB(1, 2, 3)
robot.Pump 20
WScript.Echo robot.PixelColor(box, 10, 8) = RGB(1, 2, 3), robot.PixelColor(form, 500, 500) >= 0, robot.MousePointer(form)
robot.Screenshot form, folder & "/picture.png"
WScript.Echo files.GetFile(folder & "/picture.png").Size > 1000

WScript.Echo robot.Bag(form)("SetAttributesEnabled")
Set bag = CreateObject("Scripting.Dictionary")
bag.Add "SetAttributesEnabled", False
Set robot.Bag(form) = bag
WScript.Echo form.SetAttributesEnabled, robot.Bag(form).Count
Set robot.Bag(form) = CreateObject("Scripting.Dictionary")
WScript.Echo form.SetAttributesEnabled

WScript.Echo "<" & robot.Setting("App", "Section", "Key") & ">"
robot.Setting("App", "Section", "Key") = "kept"
WScript.Echo robot.Setting("app", "SECTION", "key")

' In design mode the buttons are in the corner.
robot.DesignMode(form) = True
robot.Show form, 700, 600
WScript.Echo robot.DesignMode(form), robot.Child(form, "CMDCANCEL").Left > 600, robot.Child(form, "nobody") Is Nothing

Sub Tell(what)
  WScript.Echo what, Err.Number, Err.Description
  Err.Clear
End Sub
On Error Resume Next
box.Visible = False
robot.Click box: Tell "hidden"
robot.Type box, "x": Tell "no focus"
box.Visible = True
robot.Click box, 5000, 5: Tell "outside"
robot.Press box, "Hyper+X": Tell "key"
robot.Press box, "Entre": Tell "key"
robot.Click Nothing: Tell "nothing"
robot.Click files: Tell "another object"
robot.Click 7: Tell "no object"
WScript.Echo robot.Child(box, "edit") Is Nothing, robot.Child(form, "cmdOK", 1) Is Nothing
robot.Child files, "edit": Tell "child"
robot.ClickItem box, 1: Tell "no list"
robot.ClickItem form.Controls("lstAquifer"), 4: Tell "no row"
robot.ClickItem form.Controls("cboStatus"), 0: Tell "no row"
robot.ClickItem form.Controls("lstAquifer"), 1, "check": Tell "no box"
robot.Screenshot form, folder & "/none/picture.png": Tell "no folder"
robot.PixelColor form, -1, 0: Tell "no pixel"
robot.Setting("", "", "") = "x": Tell "no name"

' expect: True True 0
' expect: True
' expect: True
' expect: False 1
' expect: True
' expect: <>
' expect: kept
' expect: True True True
' expect: hidden 5 object_4: the widget is not on the screen
' expect: no focus 5 object_4: the widget cannot take the focus
' expect: outside 5 object_4: the point lies outside the window
' expect: key 5 There is no key "Hyper+X"
' expect: key 5 There is no key "Entre"
' expect: nothing 91 Object variable not set
' expect: another object 13 Type mismatch
' expect: no object 424 Object required
' expect: True True
' expect: child 13 Type mismatch
' expect: no list 438 Object doesn't support this property or method
' expect: no row 9 Subscript out of range
' expect: no row 9 Subscript out of range
' expect: no box 438 Object doesn't support this property or method
' expect: no folder 75 Path/File access error
' expect: no pixel 5 Invalid procedure call or argument
' expect: no name 5 Invalid procedure call or argument
