' The example form is drawn with the mouse, bound to its theme, saved, and filled in.
Option Explicit
Const kTwips = 15
Dim folder, files, robot, designer, vellum, plan, keys, number, form
folder = WScript.Arguments(0)
Set files = CreateObject("Scripting.FileSystemObject")
Set robot = CreateObject("Cardwright.Robot")
Set vellum = CreateObject("Cardwright.Vellum")
Set plan = CreateObject("Cardwright.CIni")
plan.FileName = folder & "/well-inspection.cwf"

Function KindOf(word)
  Dim words, i
  words = Split("CheckBox ComboBox CommandButton Frame Label ListBox OptionButton TextBox textboxmultiline")
  For i = 0 To UBound(words)
    If words(i) = word Then KindOf = i + 1
  Next
End Function

Function Pixels(section, key)
  Pixels = CDbl(plan.GetValue(section, key, 0)) / kTwips
End Function

' The press goes to the form, or to the frame that shall contain the control. The click before it removes the handles of the
' previous control, which would be in the way. The mouse draws roughly; the rows then set the exact position.
Sub DrawControl(section)
  Dim ground, left, top
  Set ground = designer
  If plan.GetValue(section, "Container") <> "" Then Set ground = frames(plan.GetValue(section, "Container"))
  left = Pixels(section, "Left")
  top = Pixels(section, "Top") + 2
  robot.Click designer, 3, 3
  designer.ControlTypeToAdd = KindOf(plan.GetValue(section, "Type"))
  robot.Drag ground, left, top, left + Pixels(section, "Width"), top + Pixels(section, "Height")
  If plan.GetValue(section, "Type") = "Frame" Then frames.Add plan.GetValue(section, "Name"), designer.CurrentControl
End Sub

' Row by row, as a property grid would.
Sub SetRows(control, section)
  Dim row, name, i, item
  designer.ChangeControlName control, plan.GetValue(section, "UserName")
  For row = 0 To control.PropertyCount - 1
    name = control.PropertyName(row)
    Select Case name
      Case "Name"
      Case "Font"
        control.PropertyValue(row).Size = CDbl(plan.GetValue(section, "FontSize"))
        control.PropertyValue(row).Bold = plan.GetValue(section, "FontBold") <> 0
      Case "Items"
        For i = 1 To plan.GetValue(section, "ItemsNumber")
          Set item = CreateObject("Cardwright.CItem")
          item.Value = plan.GetValue(section, "Value_Item_" & i)
          item.Text = plan.GetValue(section, "Text_Item_" & i)
          control.PropertyValue(row).Add item
        Next
      Case "Left", "Top", "Width", "Height"
        control.PropertyValue(row) = Pixels(section, name)
      Case "BackColor", "ForeColor"
        control.PropertyValue(row) = CLng(plan.GetValue(section, name))
      Case Else
        control.PropertyValue(row) = plan.GetValue(section, name, "") & ""
    End Select
  Next
End Sub

Dim frames: Set frames = CreateObject("Scripting.Dictionary")
Set designer = CreateObject("Cardwright.FormDesigner")
robot.Show designer, 700, 560
With designer.Controls("Form")
  .PropertyValue("Text") = "Well inspection"
  .PropertyValue("Width") = Pixels("FORM", "Width")
  .PropertyValue("Height") = Pixels("FORM", "Height")
End With
designer.SetThemeName "wells"
designer.SetFeatureType 0
For number = 1 To plan.GetValue("FORM", "ControlsNumber")
  DrawControl "CONTROLS_" & number
  SetRows designer.CurrentControl, "CONTROLS_" & number
Next
vellum.ScriptContent = "VBScript" & vbCrLf & "Sub cmdToday_OnClick()" & vbCrLf & "  txtInspected.Text = ""2026-05-04""" & vbCrLf & "End Sub"
WScript.Echo designer.ProjectSave(folder & "/drawn.cwf"), designer.Controls.Count

' Every key of every control is as in the example, whose sizes are in another unit. A combo box keeps its initial text
' when an empty one is set.
Dim drawn, section, key, told, here
Set drawn = CreateObject("Cardwright.CIni")
drawn.FileName = folder & "/drawn.cwf"
For number = 1 To plan.GetValue("FORM", "ControlsNumber")
  section = "CONTROLS_" & number
  For Each key In plan.Keys(section)
    told = plan.GetValue(section, key) & ""
    here = drawn.GetValue(section, key) & ""
    If InStr(" Left Top Width Height ", " " & key & " ") > 0 Then
      If CDbl(told) <> CDbl(here) * kTwips Then WScript.Echo section, key, told, here
    ElseIf told <> here And key <> "FontName" Then
      WScript.Echo section, key, told, here
    End If
  Next
Next

' The form is filled in for a well.
Dim hosts, data, c
Set hosts = CreateObject("Cardwright.Hosts")
data = hosts.OpenStore(folder & "/wells.gpkg")
vellum.TarvoHandle = data
Set form = CreateObject("Cardwright.FormInput")
WScript.ConnectObject form, "form_"
WScript.Echo form.ProjectRead(folder & "/drawn.cwf")
form.FeatureID = "5"
robot.Show form
Set c = form.Controls
robot.Click c("txtName")
robot.Press c("txtName"), "Ctrl+A"
robot.Type c("txtName"), "Drawn spring"
robot.ClickItem c("lstAquifer"), 2
robot.Click c("optIndustrial")
robot.ClickItem c("cboStatus"), 3
robot.Click c("cmdToday")
robot.Click robot.Child(form, "cmdOK")

Sub form_OkClick()
  WScript.Echo "OkClick, boxes:", robot.Messages.Count
End Sub

Sub Ask(attribute)
  Dim lines: lines = Split(hosts.Log(data), vbCrLf)
  Dim line
  For Each line In lines
    If InStr(line, "SET_ATTRIBUTE |wells| |POINT| |" & attribute & "|") > 0 Then WScript.Echo line
  Next
End Sub
Dim attribute
For Each attribute In Split("NAME AQUIFER USE_CODE STATUS INSPECTED")
  Ask attribute
Next

' expect: True 27
' expect: CONTROLS_20 Text  ComboBox20
' expect: True
' expect: OkClick, boxes: 0
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |NAME| |Drawn spring|
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |AQUIFER| |Sandstone|
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |USE_CODE| |IND|
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |STATUS| |DRY|
' expect: X THEME_SET_ATTRIBUTE |wells| |POINT| |INSPECTED| |2026-05-04|
