' The members of each kind of widget, found in any case; any other name is error 438.
Option Explicit
Dim folder, form, names, kind, name, has, widget, files, text, count
folder = WScript.Arguments(0)
Set files = CreateObject("Scripting.FileSystemObject")
Set text = files.CreateTextFile(folder & "/kinds.cwf", True)
text.WriteLine "[FORM]" & vbCrLf & "ScaleMode= 3" & vbCrLf & "Width= 400" & vbCrLf & "Height= 300" & vbCrLf & "ControlsNumber= 9"
For Each kind In Array("Label", "Frame", "CommandButton", "CheckBox", "OptionButton", "TextBox", "textboxmultiline", "ComboBox", "ListBox")
  count = count + 1
  text.WriteLine "[CONTROLS_" & count & "]" & vbCrLf & "Type=" & kind & vbCrLf & "Name=object_" & count & vbCrLf & "UserName=c" & count & _
    vbCrLf & "Left= 10" & vbCrLf & "Top= 10" & vbCrLf & "Width= 100" & vbCrLf & "Height= 50" & vbCrLf & "ItemsNumber= 1" & vbCrLf & _
    "Value_Item_1=a" & vbCrLf & "Text_Item_1=a"
Next
text.Close
Set form = CreateObject("Cardwright.FormInput")
form.ProjectRead folder & "/kinds.cwf"

names = Array("Name", "left", "TOP", "Width", "Height", "Visible", "Enabled", "BackColor", "ForeColor", "Font", "Tag", "Container", "Parent")
Dim special: special = Array("Caption", "Text", "Value", "Locked", "MaxLength", "SelStart", "SelLength", "SelText", "ListCount", _
  "ListIndex", "ListItems", "SelectedItem", "Checkboxes", "ColumnHeaders", "Buttons")

Function Number(widget, name)
  Dim got
  On Error Resume Next
  Execute "got = TypeName(widget." & name & ")"
  Number = Err.Number
End Function

For count = 2 To form.Controls.Count
  Set widget = form.Controls(count).Object
  has = ""
  For Each name In names
    If Number(widget, name) <> 0 Then has = has & " LACKS " & name
  Next
  For Each name In special
    Select Case Number(widget, name)
      Case 0: has = has & " " & name
      Case 438
      Case Else: has = has & " " & name & Number(widget, name)
    End Select
  Next
  WScript.Echo TypeName(widget) & ":" & has
Next

Sub Tell(what)
  WScript.Echo what, Err.Number
  Err.Clear
End Sub

Dim box: Set box = form.Controls("c6").Object
Dim combo: Set combo = form.Controls("c8").Object
Dim list: Set list = form.Controls("c9").Object
box.mOvE 20, 30, 110, 40
WScript.Echo box.Left, box.Top, box.Width, box.Height, TypeName(box.Container), TypeName(box.Parent)
box.font.bold = True
WScript.Echo box.Font.Bold, box.Font.Italic, box.Font.Underline, box.Font.Strikethrough
box.Text = "spring"
box.SelStart = 2
box.SelLength = 3
WScript.Echo box.SelText
box.SelText = "-"
WScript.Echo box, box.MaxLength
combo.AddItem "b"
combo.AddItem "0", 0
combo.ListIndex = 2
WScript.Echo combo.ListCount, combo.List(0), combo.List(1), combo.Text, combo.ItemData(1)
WScript.Echo list.ListItems.Count, list.ListItems.Item(1).Text, list.ListItems(1).Checked, list.ListItems(1).Index, list.SelectedItem Is Nothing
list.ListItems(1).Selected = True
WScript.Echo list.SelectedItem.Text, list.ColumnHeaders.Count
On Error Resume Next
box.SetFocus: Tell "SetFocus"
box.Refresh: Tell "Refresh"
box.ZOrder 1: Tell "ZOrder"
box.ZOrder 2: Tell "ZOrder 2"
box.Name = "x": Tell "Name"
box.Font = "DejaVu Serif": Tell "Font"
box.MaxLength = -1: Tell "MaxLength"
box.Width = "wide": Tell "Width"
box.Move: Tell "Move"
box.Nonsense = 1: Tell "Nonsense"
box.Clear: Tell "Clear"
combo.ListIndex = 9: Tell "ListIndex"
name = combo.List(9): Tell "List"
combo.Clear: Tell "Clear"
list.ListItems(2).Text = "x": Tell "ListItems"
form.Controls("c4").Object.Value = 3: Tell "Value"

' expect: Label: Caption
' expect: Frame: Caption
' expect: CommandButton: Caption
' expect: CheckBox: Caption Value
' expect: OptionButton: Caption Value
' expect: TextBox: Text Locked MaxLength SelStart SelLength SelText
' expect: MultilineTextBox: Text Locked MaxLength SelStart SelLength SelText
' expect: ComboBox: Text Locked MaxLength SelStart5 SelLength5 SelText5 ListCount ListIndex
' expect: ListView: ListItems SelectedItem Checkboxes ColumnHeaders
' expect: 20 30 110 40 Nothing FormInput
' expect: True False False False
' expect: rin
' expect: sp-g 0
' expect: 3 0 a b 0
' expect: 1 a False 1 True
' expect: a 1
' expect: SetFocus 0
' expect: Refresh 0
' expect: ZOrder 0
' expect: ZOrder 2 380
' expect: Name 438
' expect: Font 0
' expect: MaxLength 380
' expect: Width 13
' expect: Move 450
' expect: Nonsense 438
' expect: Clear 438
' expect: ListIndex 380
' expect: List 5
' expect: Clear 0
' expect: ListItems 9
' expect: Value 380
