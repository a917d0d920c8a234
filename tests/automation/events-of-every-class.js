// Every event of every control class is caused by mouse and keys and runs its procedure, here in JScript.
var files = new ActiveXObject("Scripting.FileSystemObject");
var folder = WScript.Arguments(0);
var events = "";

// A form with a control of each class, and for each event a procedure that sends its name to the host.
function writeProject(path) {
  var kinds = ["Label", "Frame", "CommandButton", "CheckBox", "OptionButton", "TextBox", "textboxmultiline", "ComboBox", "ListBox"];
  var lines = ["[FORM]", "ScaleMode= 3", "Width= 300", "Height= 300", "ThemeName=wells", "FeatureType= 0",
               "ControlsNumber= " + kinds.length];
  for (var i = 0; i < kinds.length; ++i)
    lines.push("[CONTROLS_" + (i + 1) + "]", "Type=" + kinds[i], "Name=object_" + (i + 2), "UserName=c" + (i + 1), "Left= 10",
               "Top= " + (10 + 30 * i), "Width= 120", "Height= 28", "Editable=True", "MultiSelect=True", "ItemsNumber= 2",
               "Value_Item_1=A", "Text_Item_1=alpha", "Value_Item_2=B", "Text_Item_2=beta");
  lines.push("[SCRIPT]", "JScript");
  addProcedures(lines, "Form", ["AfterOkClick", "BeforeCancelClick", "BeforeOkClick", "Initialize", "AfterSetAttributes"]);
  for (i = 1; i <= kinds.length; ++i) addProcedures(lines, "c" + i, ["OnClick", "OnChange", "OnItemCheck"]);
  var text = files.CreateTextFile(path, true);
  text.Write(lines.join("\r\n") + "\r\n");
  text.Close();
}

function addProcedures(lines, owner, names) {
  for (var i = 0; i < names.length; ++i)
    lines.push("function " + owner + "_" + names[i] + "() {", "  ORVExecute('EVENT " + owner + "_" + names[i] + "');", "}");
}

function setOff(kind, control, name) {
  switch (kind + "." + name) {
    case "CForm.BeforeOkClick": case "CForm.AfterSetAttributes": case "CForm.AfterOkClick":
      return robot.Click(robot.Child(form, "cmdOK"));
    case "CForm.BeforeCancelClick":
      return robot.Press(form, "Esc");
    case "CTextBox.OnChange": case "CTextBoxMultiline.OnChange": case "CComboBox.OnChange":
      return robot.Type(control, "b");
    case "CComboBox.OnClick":
      return robot.ClickItem(control, 2);
    case "CListBox.OnClick":
      return robot.ClickItem(control, 1);
    case "CListBox.OnItemCheck":
      return robot.ClickItem(control, 2, "check");
    case "CLabel.OnClick": case "CFrame.OnClick": case "CCommandButton.OnClick": case "CCheckBox.OnClick":
    case "COptionButton.OnClick": case "CTextBox.OnClick": case "CTextBoxMultiline.OnClick":
      return robot.Click(control);
  }
  events = " nobody knows how";
}

writeProject(folder + "/events.cwf");
var hosts = new ActiveXObject("Cardwright.Hosts");
var vellum = new ActiveXObject("Cardwright.Vellum");
var robot = new ActiveXObject("Cardwright.Robot");
vellum.TarvoHandle = hosts.Register({
  ORVExecute: function (command) {
    if (command.substr(0, 6) == "EVENT ") events += command.substr(5);
  },
  ORVRequest: function (command) {
    return /^THEME_(NUMBER|SELECTED_NUMBER|CURRENT_ISVALID) /.test(command) ? "1" : "";
  }
});
var form = new ActiveXObject("Cardwright.FormInput");
form.ProjectRead(folder + "/events.cwf");
WScript.Echo("Reading:" + events);
form.FeatureID = 1;
robot.Show(form);
var kinds = ["CForm", "CLabel", "CFrame", "CCommandButton", "CCheckBox", "COptionButton", "CTextBox", "CTextBoxMultiline",
             "CComboBox", "CListBox"];
var number = 0;
for (var e = new Enumerator(form.Controls); !e.atEnd(); e.moveNext(), ++number) {
  var names = new VBArray(e.item().Events).toArray();
  for (var i = 0; i < names.length; ++i) {
    events = "";
    if (names[i] == "Initialize") continue;
    setOff(kinds[number], e.item(), names[i]);
    WScript.Echo(kinds[number] + "." + names[i] + ":" + events);
  }
}
WScript.Echo("boxes", robot.Messages.Count);

// expect: Reading: Form_Initialize
// expect: CForm.AfterOkClick: Form_BeforeOkClick Form_AfterSetAttributes Form_AfterOkClick
// expect: CForm.BeforeCancelClick: Form_BeforeCancelClick
// expect: CForm.BeforeOkClick: Form_BeforeOkClick Form_AfterSetAttributes Form_AfterOkClick
// expect: CForm.AfterSetAttributes: Form_BeforeOkClick Form_AfterSetAttributes Form_AfterOkClick
// expect: CLabel.OnClick: c1_OnClick
// expect: CFrame.OnClick: c2_OnClick
// expect: CCommandButton.OnClick: c3_OnClick
// expect: CCheckBox.OnClick: c4_OnClick
// expect: COptionButton.OnClick: c5_OnClick
// expect: CTextBox.OnChange: c6_OnChange
// expect: CTextBox.OnClick: c6_OnClick
// expect: CTextBoxMultiline.OnChange: c7_OnChange
// expect: CTextBoxMultiline.OnClick: c7_OnClick
// expect: CComboBox.OnChange: c8_OnChange
// expect: CComboBox.OnClick: c8_OnClick
// expect: CListBox.OnClick: c9_OnClick
// expect: CListBox.OnItemCheck: c9_OnItemCheck c9_OnClick
// expect: boxes 0
