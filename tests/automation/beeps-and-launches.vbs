' A key that a field rejects beeps. A program that the library would start is only recorded.
Option Explicit
Dim folder, robot, form, vellum, hosts, item
folder = WScript.Arguments(0)
Set hosts = CreateObject("Cardwright.Hosts")
Set vellum = CreateObject("Cardwright.Vellum")
Set robot = CreateObject("Cardwright.Robot")
vellum.TarvoHandle = hosts.OpenStore(folder & "/wells.gpkg")
robot.Setting("Cardwright", "ScreenKeyboard", "Command") = "keyboard --large"
Set form = CreateObject("Cardwright.FormInput")
form.ProjectRead folder & "/well-inspection.cwf"
form.FeatureID = 2
robot.Show form
robot.Press form.Controls("txtDiameter"), "End"
robot.Type form.Controls("txtDiameter"), "1a-2"
WScript.Echo robot.Beeps, robot.Launches.Count
vellum.EnableScreenKeyboard = True
robot.Focus form.Controls("txtOwner")
robot.Click form.Controls("chkMonitored")
robot.Click form.Controls("txtNotes")
For Each item In robot.Launches
  WScript.Echo item
Next

' expect: 2 0
' expect: keyboard --large
' expect: keyboard --large
