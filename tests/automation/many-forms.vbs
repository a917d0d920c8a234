' Many forms: windows of forms that the script has released are closed, the others stay.
Option Explicit
Dim folder, kept, i, form, robot, hosts, vellum, closed
folder = WScript.Arguments(0)
Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
vellum.TarvoHandle = hosts.OpenStore(folder & "/wells.gpkg")
Set kept = CreateObject("Cardwright.FormInput")
kept.ProjectRead folder & "/well-inspection.cwf"
For i = 1 To 5
  Set form = WScript.CreateObject("Cardwright.FormInput", "form_")
  form.ProjectRead folder & "/well-inspection.cwf"
  form.FeatureID = i
  robot.Show form
  robot.Click robot.Child(form, "cmdOK")
  WScript.DisconnectObject form
Next
robot.Pump 10
WScript.Echo closed, form.Parent.Visible, kept.Controls.Count, kept.Parent.Visible
robot.Show kept
robot.Type kept.Controls("txtOwner"), "me"
WScript.Echo kept.Controls("txtOwner").Text

Sub form_OkClick()
  closed = closed + 1
  form.Parent.Close
End Sub

' expect: 5 False 27 False
' expect: me
