' Every event of every control class is caused by mouse and keys and runs its procedure, here in VBScript.
Option Explicit
Dim files, folder, robot, hosts, vellum, form, control, name, events
Set files = CreateObject("Scripting.FileSystemObject")
folder = WScript.Arguments(0)

Class Host
  Public Function ORVExecute(command)
    If Left(command, 6) = "EVENT " Then events = events & " " & Mid(command, 7)
  End Function
  Public Function ORVRequest(command)
    Select Case Split(command, " ")(0)
      Case "THEME_NUMBER", "THEME_SELECTED_NUMBER", "THEME_CURRENT_ISVALID": ORVRequest = "1"
    End Select
  End Function
End Class

' A form with a control of each class, and for each event a procedure that sends its name to the host.
Sub WriteProject(path)
  Dim text, i, kinds: Set text = files.CreateTextFile(path, True)
  kinds = Array("Label", "Frame", "CommandButton", "CheckBox", "OptionButton", "TextBox", "textboxmultiline", "ComboBox", "ListBox")
  text.Write Join(Array("[FORM]", "ScaleMode= 3", "Width= 300", "Height= 300", "ThemeName=wells", "FeatureType= 0", _
    "ControlsNumber= " & (UBound(kinds) + 1), ""), vbCrLf)
  For i = 0 To UBound(kinds)
    text.Write Join(Array("[CONTROLS_" & (i + 1) & "]", "Type=" & kinds(i), "Name=object_" & (i + 2), "UserName=c" & (i + 1), _
      "Left= 10", "Top= " & (10 + 30 * i), "Width= 120", "Height= 28", "Editable=True", "MultiSelect=True", "ItemsNumber= 2", _
      "Value_Item_1=A", "Text_Item_1=alpha", "Value_Item_2=B", "Text_Item_2=beta", ""), vbCrLf)
  Next
  text.Write "[SCRIPT]" & vbCrLf & "VBScript" & vbCrLf
  Procedures text, "Form", Array("AfterOkClick", "BeforeCancelClick", "BeforeOkClick", "Initialize", "AfterSetAttributes")
  For i = 0 To UBound(kinds)
    Procedures text, "c" & (i + 1), Array("OnClick", "OnChange", "OnItemCheck")
  Next
  text.Close
End Sub

Sub Procedures(text, owner, names)
  Dim one
  For Each one In names
    text.Write "Sub " & owner & "_" & one & "()" & vbCrLf & "  ORVExecute ""EVENT " & owner & "_" & one & """" & vbCrLf & _
      "End Sub" & vbCrLf
  Next
End Sub

Sub SetOff(control, name)
  Select Case TypeName(control) & "." & name
    Case "CForm.Initialize": form.ProjectRead folder & "/events.cwf"
    Case "CForm.BeforeOkClick", "CForm.AfterSetAttributes", "CForm.AfterOkClick": robot.Click robot.Child(form, "cmdOK")
    Case "CForm.BeforeCancelClick": robot.Press form, "Esc"
    Case "CTextBox.OnChange", "CTextBoxMultiline.OnChange", "CComboBox.OnChange": robot.Type control, "b"
    Case "CComboBox.OnClick": robot.ClickItem control, 2
    Case "CListBox.OnClick": robot.ClickItem control, 1
    Case "CListBox.OnItemCheck": robot.ClickItem control, 2, "check"
    Case "CLabel.OnClick", "CFrame.OnClick", "CCommandButton.OnClick", "CCheckBox.OnClick", "COptionButton.OnClick", _
         "CTextBox.OnClick", "CTextBoxMultiline.OnClick": robot.Click control
    Case Else: events = " nobody knows how"
  End Select
End Sub

WriteProject folder & "/events.cwf"
Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
vellum.TarvoHandle = hosts.Register(New Host)
Set form = CreateObject("Cardwright.FormInput")
SetOff form.Controls(1), "Initialize"
WScript.Echo "Reading:" & events
form.FeatureID = 1
robot.Show form
For Each control In form.Controls
  For Each name In control.Events
    events = ""
    If name <> "Initialize" Then SetOff control, name: WScript.Echo TypeName(control) & "." & name & ":" & events
  Next
Next
WScript.Echo "boxes", robot.Messages.Count

' expect: Reading: Form_Initialize
' expect: CForm.AfterOkClick: Form_BeforeOkClick Form_AfterSetAttributes Form_AfterOkClick
' expect: CForm.BeforeCancelClick: Form_BeforeCancelClick
' expect: CForm.BeforeOkClick: Form_BeforeOkClick Form_AfterSetAttributes Form_AfterOkClick
' expect: CForm.AfterSetAttributes: Form_BeforeOkClick Form_AfterSetAttributes Form_AfterOkClick
' expect: CLabel.OnClick: c1_OnClick
' expect: CFrame.OnClick: c2_OnClick
' expect: CCommandButton.OnClick: c3_OnClick
' expect: CCheckBox.OnClick: c4_OnClick
' expect: COptionButton.OnClick: c5_OnClick
' expect: CTextBox.OnChange: c6_OnChange
' expect: CTextBox.OnClick: c6_OnClick
' expect: CTextBoxMultiline.OnChange: c7_OnChange
' expect: CTextBoxMultiline.OnClick: c7_OnClick
' expect: CComboBox.OnChange: c8_OnChange
' expect: CComboBox.OnClick: c8_OnClick
' expect: CListBox.OnClick: c9_OnClick
' expect: CListBox.OnItemCheck: c9_OnItemCheck c9_OnClick
' expect: boxes 0
