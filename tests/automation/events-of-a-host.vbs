' Every event of the form reaches the script that connected to it, and the window takes the size that the form asks for.
Dim folder, form, robot, vellum, hosts
folder = WScript.Arguments(0)
Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
vellum.TarvoHandle = hosts.OpenStore(folder & "/wells.gpkg")
Set form = WScript.CreateObject("Cardwright.FormInput", "form_")
robot.Show form, 300, 200
WScript.Echo form.Parent.Width >= 300 * 15, form.Parent.Height >= 200 * 15, form.Parent.Visible, TypeName(form.Parent)
form.ProjectRead folder & "/well-inspection.cwf"
WScript.Echo form.Parent.Caption, form.Parent.Width >= 552 * 15, form.Parent.Height > 520 * 15
form.Controls("Form").PropertyValue("Text") = "Wells of the north"
WScript.Echo form.Parent.Caption
form.ChangeControlName form.Controls("txtOwner"), "txtHolder"
robot.Press form, "Esc"
WScript.DisconnectObject form
robot.Press form, "Esc"
WScript.Echo form.DebugMode, form.NewFeature, form.SetAttributesEnabled, robot.DesignMode(form)

Sub form_NeedResize(width, height)
  WScript.Echo "NeedResize", width = form.Parent.Width, height = form.Parent.Height
End Sub
Sub form_SetParentCaption(caption)
  WScript.Echo "SetParentCaption", caption
End Sub
Sub form_ControlNameChanged(oldName, control)
  WScript.Echo "ControlNameChanged", oldName, control.UserName
End Sub
Sub form_CancelClick()
  WScript.Echo "CancelClick"
End Sub

' expect: True True True Form
' expect: NeedResize True True
' expect: Well inspection True True
' expect: SetParentCaption Wells of the north
' expect: Wells of the north
' expect: ControlNameChanged txtOwner txtHolder
' expect: CancelClick
' expect: False False True False
