// A whole fill-in as one list: the commands sent to the host, the procedures of the form's script, the message boxes and the
// events of the form, in their order.
var files = new ActiveXObject("Scripting.FileSystemObject");
var folder = WScript.Arguments(0);
var kPlace = /^(\w+)( \|wells\| \|POINT\|)/;
var boxes = 0;

function tell(line) {
  for (; boxes < robot.Messages.Count; ++boxes)
    WScript.Echo("box  " + robot.Messages(boxes + 1).Title + ": " + robot.Messages(boxes + 1).Text);
  WScript.Echo(line);
}

function writeProject(path) {
  var lines = ["[FORM]", "ScaleMode= 3", "Text=Wells", "Width= 300", "Height= 120", "ThemeName=wells", "FeatureType= 0",
               "ControlsNumber= 4"];
  function add(number, type, name, attribute, more) {
    lines.push("[CONTROLS_" + number + "]", "Type=" + type, "Name=object_" + (number + 1), "UserName=" + name, "Left= 10",
               "Top= " + (26 * number - 20), "Width= 200", "Height= 24", "Attribute=" + attribute, more);
  }
  add(1, "TextBox", "txtName", "NAME", "IsNeeded=True");
  add(2, "TextBox", "txtDepth", "DEPTH", "IsNeeded=False");
  add(3, "CheckBox", "chkDry", "DRY", "IsNeeded=False");
  add(4, "OptionButton", "optUse", "USE", "Value=farm");
  lines.push("[SCRIPT]", "JScript",
    "function note(text) { ORVExecute('NOTE ' + text); }",
    "function Form_Initialize() { note('initialize <' + txtName.Text + '>'); }",
    "function txtName_OnChange() { note('name <' + txtName.Text + '>'); }",
    "function chkDry_OnClick() { note('dry ' + chkDry.Value); }",
    "function Form_BeforeOkClick() { note('before'); Response = txtName.Text != 'refused'; }",
    "function Form_AfterSetAttributes() { note('stored'); Response = false; }",
    "function Form_AfterOkClick() { note('after'); Response = txtName.Text != 'stay'; }",
    "function Form_BeforeCancelClick() { note('cancel'); Response = txtName.Text != 'stay'; }", "");
  var text = files.CreateTextFile(path, true);
  text.Write(lines.join("\r\n"));
  text.Close();
}

function reply(command) {
  switch (command.split(" ")[0]) {
    case "THEME_NUMBER": case "THEME_SELECTED_NUMBER": case "THEME_CURRENT_ISVALID": return "1";
    case "THEME_ATTRIBUTE_NUMBER": return "4";
    case "THEME_ATTRIBUTE": return ["", "NAME,0,10,0", "DEPTH,1,8,2", "DRY,1,1,0", "USE,0,8,0"][command.match(/\d$/)[0]];
    case "THEME_GET_ATTRIBUTE": return { NAME: "spring", DEPTH: "12.5", DRY: "1", USE: "farm" }[command.match(/\|(\w+)\|$/)[1]];
  }
  return "";
}

function retype(text) {
  robot.Press(form.Controls("txtName"), "Ctrl+A");
  robot.Press(form.Controls("txtName"), "Delete");
  robot.Type(form.Controls("txtName"), text);
}
function section(title) { tell("-- " + title); }
function pressOk() { robot.Click(robot.Child(form, "cmdOK")); }

writeProject(folder + "/order.cwf");
var hosts = new ActiveXObject("Cardwright.Hosts");
var vellum = new ActiveXObject("Cardwright.Vellum");
var robot = new ActiveXObject("Cardwright.Robot");
vellum.TarvoHandle = hosts.Register({
  ORVExecute: function (command) { tell("X    " + command.replace(kPlace, "$1")); },
  ORVRequest: function (command) {
    tell("R    " + command.replace(kPlace, "$1") + " -> " + reply(command));
    return reply(command);
  }
});
var form = WScript.CreateObject("Cardwright.FormInput", "form_");
function form_NeedResize(width, height) { tell("form NeedResize " + (width > 0 && height > 0)); }
function form_SetParentCaption(caption) { tell("form SetParentCaption " + caption); }
function form_OkClick() { tell("form OkClick"); }
function form_CancelClick() { tell("form CancelClick"); }

section("read");
form.ProjectRead(folder + "/order.cwf");
section("feature");
form.FeatureID = 7;
robot.Show(form);
section("a needed field is empty");
robot.Press(form.Controls("txtName"), "Ctrl+A");
robot.Press(form.Controls("txtName"), "Delete");
pressOk();
section("refused before");
retype("refused");
pressOk();
section("refused after");
retype("stay");
pressOk();
section("cancel refused");
robot.Press(form, "Esc");
section("ok");
retype("well");
robot.Click(form.Controls("chkDry"));
pressOk();
section("cancel");
robot.Press(form, "Esc");
section("without attributes");
form.SetAttributesEnabled = false;
pressOk();
form.SetAttributesEnabled = true;
section("a new feature");
form.NewFeature = true;
form.FeatureID = 8;
section("debugging");
vellum.DebugOutputObject = { set SelText(text) { tell("out  " + text.replace(/\r\n/g, "/").replace(/-{100}/g, "-----")); } };
form = WScript.CreateObject("Cardwright.FormInput", "form_");
form.DebugMode = true;
form.ProjectRead(folder + "/order.cwf");
robot.Show(form);
retype("dry");
section("debugging, ok");
pressOk();
section("debugging, nothing to write to");
vellum.DebugOutputObject = null;
pressOk();
robot.Press(form, "Esc");
section("boxes " + robot.Messages.Count);

// expect: -- read
// expect: R    THEME_NUMBER |wells| -> 1
// expect: form NeedResize true
// expect: X    NOTE initialize <>
// expect: -- feature
// expect: X    APPLICATION_FLAGREDRAW OFF
// expect: X    THEME_SELECTION_BYVALUE OVTARVOUNIQUEID = 7 NEW
// expect: R    THEME_SELECTED_NUMBER -> 1
// expect: X    THEME_MOVEFIRST
// expect: R    THEME_CURRENT_ISVALID -> 1
// expect: R    THEME_ATTRIBUTE_NUMBER -> 4
// expect: R    THEME_ATTRIBUTE 1 -> NAME,0,10,0
// expect: R    THEME_ATTRIBUTE 2 -> DEPTH,1,8,2
// expect: R    THEME_ATTRIBUTE 3 -> DRY,1,1,0
// expect: R    THEME_ATTRIBUTE 4 -> USE,0,8,0
// expect: R    THEME_GET_ATTRIBUTE |NAME| -> spring
// expect: X    NOTE name <spring>
// expect: R    THEME_GET_ATTRIBUTE |DEPTH| -> 12.5
// expect: R    THEME_GET_ATTRIBUTE |DRY| -> 1
// expect: X    NOTE dry 1
// expect: R    THEME_GET_ATTRIBUTE |USE| -> farm
// expect: X    THEME_SELECTION_NONE
// expect: X    APPLICATION_FLAGREDRAW ON
// expect: -- a needed field is empty
// expect: X    NOTE name <>
// expect: box  WARNING!: The attribute NAME must be compiled!
// expect: -- refused before
// expect: X    NOTE name <r>
// expect: X    NOTE name <re>
// expect: X    NOTE name <ref>
// expect: X    NOTE name <refu>
// expect: X    NOTE name <refus>
// expect: X    NOTE name <refuse>
// expect: X    NOTE name <refused>
// expect: X    APPLICATION_FLAGREDRAW OFF
// expect: X    NOTE before
// expect: X    APPLICATION_FLAGREDRAW ON
// expect: X    APPLICATION_REDRAW
// expect: -- refused after
// expect: X    NOTE name <>
// expect: X    NOTE name <s>
// expect: X    NOTE name <st>
// expect: X    NOTE name <sta>
// expect: X    NOTE name <stay>
// expect: X    APPLICATION_FLAGREDRAW OFF
// expect: X    NOTE before
// expect: X    THEME_SELECTION_BYVALUE OVTARVOUNIQUEID = 7 NEW
// expect: R    THEME_SELECTED_NUMBER -> 1
// expect: X    THEME_MOVEFIRST
// expect: R    THEME_ATTRIBUTE_NUMBER -> 4
// expect: R    THEME_ATTRIBUTE 1 -> NAME,0,10,0
// expect: R    THEME_ATTRIBUTE 2 -> DEPTH,1,8,2
// expect: R    THEME_ATTRIBUTE 3 -> DRY,1,1,0
// expect: R    THEME_ATTRIBUTE 4 -> USE,0,8,0
// expect: X    THEME_SET_ATTRIBUTE |NAME| |stay|
// expect: X    THEME_SET_ATTRIBUTE |DEPTH| 12.5
// expect: X    THEME_SET_ATTRIBUTE |DRY| 1
// expect: X    THEME_SET_ATTRIBUTE |USE| |farm|
// expect: X    NOTE stored
// expect: X    THEME_SELECTION_NONE
// expect: X    NOTE after
// expect: X    APPLICATION_FLAGREDRAW ON
// expect: X    APPLICATION_REDRAW
// expect: -- cancel refused
// expect: X    APPLICATION_FLAGREDRAW OFF
// expect: X    NOTE cancel
// expect: X    APPLICATION_FLAGREDRAW ON
// expect: X    APPLICATION_REDRAW
// expect: -- ok
// expect: X    NOTE name <>
// expect: X    NOTE name <w>
// expect: X    NOTE name <we>
// expect: X    NOTE name <wel>
// expect: X    NOTE name <well>
// expect: X    NOTE dry 0
// expect: X    APPLICATION_FLAGREDRAW OFF
// expect: X    NOTE before
// expect: X    THEME_SELECTION_BYVALUE OVTARVOUNIQUEID = 7 NEW
// expect: R    THEME_SELECTED_NUMBER -> 1
// expect: X    THEME_MOVEFIRST
// expect: R    THEME_ATTRIBUTE_NUMBER -> 4
// expect: R    THEME_ATTRIBUTE 1 -> NAME,0,10,0
// expect: R    THEME_ATTRIBUTE 2 -> DEPTH,1,8,2
// expect: R    THEME_ATTRIBUTE 3 -> DRY,1,1,0
// expect: R    THEME_ATTRIBUTE 4 -> USE,0,8,0
// expect: X    THEME_SET_ATTRIBUTE |NAME| |well|
// expect: X    THEME_SET_ATTRIBUTE |DEPTH| 12.5
// expect: X    THEME_SET_ATTRIBUTE |DRY| 0
// expect: X    THEME_SET_ATTRIBUTE |USE| |farm|
// expect: X    NOTE stored
// expect: X    THEME_SELECTION_NONE
// expect: X    NOTE after
// expect: X    APPLICATION_FLAGREDRAW ON
// expect: X    APPLICATION_REDRAW
// expect: form OkClick
// expect: -- cancel
// expect: X    APPLICATION_FLAGREDRAW OFF
// expect: X    NOTE cancel
// expect: X    APPLICATION_FLAGREDRAW ON
// expect: X    APPLICATION_REDRAW
// expect: form CancelClick
// expect: -- without attributes
// expect: X    NOTE before
// expect: X    NOTE after
// expect: form OkClick
// expect: -- a new feature
// expect: X    APPLICATION_FLAGREDRAW OFF
// expect: X    THEME_SELECTION_BYVALUE OVTARVOUNIQUEID = 8 NEW
// expect: R    THEME_SELECTED_NUMBER -> 1
// expect: X    THEME_MOVEFIRST
// expect: R    THEME_CURRENT_ISVALID -> 1
// expect: R    THEME_ATTRIBUTE_NUMBER -> 4
// expect: R    THEME_ATTRIBUTE 1 -> NAME,0,10,0
// expect: R    THEME_ATTRIBUTE 2 -> DEPTH,1,8,2
// expect: R    THEME_ATTRIBUTE 3 -> DRY,1,1,0
// expect: R    THEME_ATTRIBUTE 4 -> USE,0,8,0
// expect: X    THEME_SELECTION_NONE
// expect: X    APPLICATION_FLAGREDRAW ON
// expect: -- debugging
// expect: R    THEME_NUMBER |wells| -> 1
// expect: form NeedResize true
// expect: R    THEME_ATTRIBUTE_NUMBER -> 4
// expect: R    THEME_ATTRIBUTE 1 -> NAME,0,10,0
// expect: R    THEME_ATTRIBUTE 2 -> DEPTH,1,8,2
// expect: R    THEME_ATTRIBUTE 3 -> DRY,1,1,0
// expect: R    THEME_ATTRIBUTE 4 -> USE,0,8,0
// expect: out  NOTE initialize <>/
// expect: out  NOTE name <d>/
// expect: out  NOTE name <dr>/
// expect: out  NOTE name <dry>/
// expect: -- debugging, ok
// expect: out  NOTE before/
// expect: out  //-----/
// expect: out  INTERNAL PROCEDURE: DATA STORAGE START/
// expect: out  -----/
// expect: R    THEME_ATTRIBUTE_NUMBER -> 4
// expect: R    THEME_ATTRIBUTE 1 -> NAME,0,10,0
// expect: R    THEME_ATTRIBUTE 2 -> DEPTH,1,8,2
// expect: R    THEME_ATTRIBUTE 3 -> DRY,1,1,0
// expect: R    THEME_ATTRIBUTE 4 -> USE,0,8,0
// expect: out       THEME_SET_ATTRIBUTE |wells| |POINT| |NAME| |dry|/
// expect: out       THEME_SET_ATTRIBUTE |wells| |POINT| |DEPTH| /
// expect: out       THEME_SET_ATTRIBUTE |wells| |POINT| |DRY| 0/
// expect: out  -----/
// expect: out  INTERNAL PROCEDURE: DATA STORAGE END/
// expect: out  -----///
// expect: out  NOTE stored/
// expect: out  NOTE after/
// expect: form OkClick
// expect: -- debugging, nothing to write to
// expect: form OkClick
// expect: form CancelClick
// expect: -- boxes 1
