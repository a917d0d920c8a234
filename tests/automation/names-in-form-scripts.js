// The names in a form's script, used from JScript with and without the object that they belong to: first in a normal run,
// then in a debugging run.
var files = new ActiveXObject("Scripting.FileSystemObject");
var folder = WScript.Arguments(0);

// The names are found in any case, like those of all host objects.
function formScript() {
  return [
    "function say(text) { ORVExecute(text); }",
    "function Form_Initialize() { say(typeof OrvExecutor + ' ' + typeof OrvDebugger + ' ' + typeof FrmCtrls); }",
    "function cmd1_OnClick() {",
    "  var reply = ORVExecute('A') + OrvExecutor.ORVExecute('B') + ORVREQUEST('C');",
    "  say(reply + orvexecutor.orvrequest('D'));",
    "}",
    "function cmd2_OnClick() { Show(12.5); OrvDebugger.Show('line'); WriteOut('a'); OrvDebugger.WriteOut('b'); }",
    "function cmd3_OnClick() {",
    "  var names = '';",
    "  for (var e = new Enumerator(Controls); !e.atEnd(); e.moveNext()) names += e.item().UserName + ' ';",
    "  say(names + Controls.Count + ' ' + FrmCtrls.Controls.Count);",
    "  say(Controls(1).UserName + ' ' + Controls('CMD3').Text + ' ' + FrmCtrls.Controls('cmd2').UserName + ' ' + (Controls(4) === cmd3));",
    "  try { Controls('cmd9'); } catch (error) { say((error.number & 0xFFFF) + ' ' + error.description); }",
    "  try { Controls(99); } catch (error) { say(error.number & 0xFFFF); }",
    "}",
    "function cmd4_OnClick() {",
    "  say(CreateColor(1, 2, 3).toString(16) + ' ' + FrmCtrls.CreateColor(300, -1, 0));",
    "  try { CreateColor(1, 2); } catch (error) { say(error.number & 0xFFFF); }",
    "  try { CreateColor('a', 2, 3); } catch (error) { say(error.number & 0xFFFF); }",
    "}",
    "function cmd5_OnClick() { say(Response + ' ' + FrmCtrls.Response); Ok(); Response = false; FrmCtrls.Ok(); }",
    "function cmd6_OnClick() { Cancel(); FrmCtrls.Cancel(); }",
    "function cmd7_OnClick() { UserCloseForm(); FrmCtrls.UserCloseForm(); }",
    "var times = 0;",
    "function Form_BeforeOkClick() { times++; say('ok ' + Response); FrmCtrls.Response = times != 2; }",
    "function Form_BeforeCancelClick() { times++; say('cancel ' + times); Response = times > 3; }"
  ];
}

function writeProject(path) {
  var lines = ["[FORM]", "ScaleMode= 3", "Width= 300", "Height= 200", "ControlsNumber= 7"];
  for (var i = 1; i <= 7; ++i)
    lines.push("[CONTROLS_" + i + "]", "Type=CommandButton", "Name=object_" + i, "UserName=cmd" + i, "Left= 10",
               "Top= " + (26 * i - 20), "Width= 100", "Height= 24");
  var text = files.CreateTextFile(path, true);
  text.Write(lines.concat("[SCRIPT]", "JScript", formScript(), "").join("\r\n"));
  text.Close();
}

function run(title) {
  WScript.Echo("-- " + title);
  form = WScript.CreateObject("Cardwright.FormInput", "form_");
  form.DebugMode = title == "debugging";
  WScript.Echo(form.ProjectRead(folder + "/names.cwf"));
  robot.Show(form);
  for (var i = 1; i <= 7; ++i) {
    WScript.Echo(i);
    robot.Click(form.Controls("cmd" + i));
  }
  WScript.DisconnectObject(form);
}

function form_OkClick() { WScript.Echo("OkClick"); }
function form_CancelClick() { WScript.Echo("CancelClick"); }

writeProject(folder + "/names.cwf");
var hosts = new ActiveXObject("Cardwright.Hosts");
var vellum = new ActiveXObject("Cardwright.Vellum");
var robot = new ActiveXObject("Cardwright.Robot");
var form;
vellum.TarvoHandle = hosts.Register({
  ORVExecute: function (command) { WScript.Echo("X", command); return "done"; },
  ORVRequest: function (command) { WScript.Echo("R", command); return command.toLowerCase(); }
});
run("as users have it");
vellum.DebugOutputObject = { set SelText(text) { WScript.Echo("<" + text.replace(/\r\n/g, "/").replace(/-{100}/g, "-----") + ">"); } };
run("debugging");
WScript.Echo("boxes", robot.Messages.Count);

// expect: -- as users have it
// expect: X object object object
// expect: true
// expect: 1
// expect: X A
// expect: X B
// expect: R C
// expect: R D
// expect: X donedonecd
// expect: 2
// expect: 3
// expect: X Form cmd1 cmd2 cmd3 cmd4 cmd5 cmd6 cmd7 8 8
// expect: X Form  cmd2 true
// expect: X 5 Invalid procedure call or argument
// expect: X 9
// expect: 4
// expect: X 30201 255
// expect: X 450
// expect: X 13
// expect: 5
// expect: X true true
// expect: X APPLICATION_FLAGREDRAW OFF
// expect: X ok true
// expect: X THEME_SELECTION_NONE || ||
// expect: X APPLICATION_FLAGREDRAW ON
// expect: X APPLICATION_REDRAW
// expect: OkClick
// expect: X APPLICATION_FLAGREDRAW OFF
// expect: X ok true
// expect: X APPLICATION_FLAGREDRAW ON
// expect: X APPLICATION_REDRAW
// expect: 6
// expect: X APPLICATION_FLAGREDRAW OFF
// expect: X cancel 3
// expect: X APPLICATION_FLAGREDRAW ON
// expect: X APPLICATION_REDRAW
// expect: X APPLICATION_FLAGREDRAW OFF
// expect: X cancel 4
// expect: X APPLICATION_FLAGREDRAW ON
// expect: X APPLICATION_REDRAW
// expect: CancelClick
// expect: 7
// expect: CancelClick
// expect: CancelClick
// expect: -- debugging
// expect: R THEME_ATTRIBUTE_NUMBER || ||
// expect: <object object object/>
// expect: true
// expect: 1
// expect: <A/>
// expect: <B/>
// expect: <C/>
// expect: R C
// expect: <D/>
// expect: R D
// expect: <cd/>
// expect: 2
// expect: <12.5/>
// expect: <line/>
// expect: <a>
// expect: <b>
// expect: 3
// expect: <Form cmd1 cmd2 cmd3 cmd4 cmd5 cmd6 cmd7 8 8/>
// expect: <Form  cmd2 true/>
// expect: <5 Invalid procedure call or argument/>
// expect: <9/>
// expect: 4
// expect: <30201 255/>
// expect: <450/>
// expect: <13/>
// expect: 5
// expect: <true true/>
// expect: <ok true/>
// expect: <//-----/>
// expect: <INTERNAL PROCEDURE: DATA STORAGE START/>
// expect: <-----/>
// expect: R THEME_ATTRIBUTE_NUMBER || ||
// expect: <-----/>
// expect: <INTERNAL PROCEDURE: DATA STORAGE END/>
// expect: <-----///>
// expect: OkClick
// expect: <ok true/>
// expect: 6
// expect: <cancel 3/>
// expect: <cancel 4/>
// expect: CancelClick
// expect: 7
// expect: CancelClick
// expect: CancelClick
// expect: boxes 0
