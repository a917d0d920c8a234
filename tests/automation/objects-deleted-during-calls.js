// A command of the form's script deletes an object that the script, the form or the running call needs. What follows fails
// as for any deleted object.
var files = new ActiveXObject("Scripting.FileSystemObject");
var folder = WScript.Arguments(0);
var hosts = new ActiveXObject("Cardwright.Hosts");
var robot = new ActiveXObject("Cardwright.Robot");
var vellum, form, handle, log;

var commands = {
  "CLOSE-WINDOW": function () { form.Parent.Close(); },
  "DROP-FORM": function () { form = null; },
  "CLOSE-HOST": function () { hosts.Close(handle); },
  "NO-HANDLE": function () { vellum.TarvoHandle = 0; },
  "DROP-VELLUM": function () { vellum = null; },
  "DISCONNECT": function () { WScript.DisconnectObject(form); },
  "PRESS": function () { robot.Click(form.Controls("cmdOther")); },
  "READ": function () { form.ProjectRead(folder + "/ground.cwf"); },
  "OTHER-FORM": function () { open(); },
  "PUMP": function () { robot.Pump(5); },
  "FAIL": function () { form.Controls("none").Text = 1; },
  "THROW": function () { throw "just so"; },
  "QUIT": function () { WScript.Quit(); }
};
var host = {
  ORVExecute: function (command) {
    log += " " + command;
    if (commands[command]) commands[command]();
  },
  ORVRequest: function () { return "reply"; }
};

function writeProject(path) {
  var lines = ["[FORM]", "ScaleMode= 3", "Width= 300", "Height= 60", "ControlsNumber= 3"];
  function add(number, type, name, left) {
    lines.push("[CONTROLS_" + number + "]", "Type=" + type, "Name=object_" + number, "UserName=" + name, "Left= " + left, "Top= 10",
               "Width= 80", "Height= 24");
  }
  add(1, "TextBox", "txtCommand", 10);
  add(2, "CommandButton", "cmdGo", 100);
  add(3, "CommandButton", "cmdOther", 190);
  lines.push("[SCRIPT]", "JScript",
    "function cmdGo_OnClick() {", "  var command = txtCommand.Object.Text;", "  ORVExecute(command);",
    "  ORVExecute('go:' + Controls.Count + ORVRequest('?'));", "  txtCommand.Object.Text = 'done';", "}",
    "function cmdOther_OnClick() { ORVExecute('other'); }",
    "function Form_BeforeOkClick() {", "  ORVExecute(txtCommand.Object.Text);", "  ORVExecute('before');", "}",
    "function Form_AfterOkClick() { ORVExecute('after'); }", "");
  var text = files.CreateTextFile(path, true);
  text.Write(lines.join("\r\n"));
  text.Close();
}

function open() {
  form = WScript.CreateObject("Cardwright.FormInput", "form_");
  form.ProjectRead(folder + "/ground.cwf");
  robot.Show(form);
}

function start(command) {
  vellum = new ActiveXObject("Cardwright.Vellum");
  handle = hosts.Register(host);
  vellum.TarvoHandle = handle;
  open();
  form.Controls("txtCommand").Object.Text = command;
  log = "";
}

function tell(command, pressed) {
  for (; robot.Messages.Count; robot.Messages.Remove(1)) log += " [" + robot.Messages(1).Text.replace(/\r\n/g, "") + "]";
  WScript.Echo(command + " by " + pressed + ":" + log);
}

function form_OkClick() { log += " OkClick"; }

writeProject(folder + "/ground.cwf");
for (var command in commands) {
  start(command);
  robot.Click(form.Controls("cmdGo"));
  tell(command, "a button");
  start(command);
  robot.Click(robot.Child(form, "cmdOK"));
  tell(command, "OK");
}

// expect: CLOSE-WINDOW by a button: CLOSE-WINDOW go:4reply
// expect: CLOSE-WINDOW by OK: APPLICATION_FLAGREDRAW OFF CLOSE-WINDOW before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
// expect: DROP-FORM by a button: DROP-FORM go:4reply
// expect: DROP-FORM by OK: APPLICATION_FLAGREDRAW OFF DROP-FORM before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
// expect: CLOSE-HOST by a button: CLOSE-HOST
// expect: CLOSE-HOST by OK: APPLICATION_FLAGREDRAW OFF CLOSE-HOST OkClick
// expect: NO-HANDLE by a button: NO-HANDLE go:4reply
// expect: NO-HANDLE by OK: APPLICATION_FLAGREDRAW OFF NO-HANDLE before
// expect: DROP-VELLUM by a button: DROP-VELLUM go:4reply
// expect: DROP-VELLUM by OK: APPLICATION_FLAGREDRAW OFF DROP-VELLUM before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
// expect: DISCONNECT by a button: DISCONNECT go:4reply
// expect: DISCONNECT by OK: APPLICATION_FLAGREDRAW OFF DISCONNECT before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW
// expect: PRESS by a button: PRESS other go:4reply
// expect: PRESS by OK: APPLICATION_FLAGREDRAW OFF PRESS other before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
// expect: READ by a button: READ go:4reply
// expect: READ by OK: APPLICATION_FLAGREDRAW OFF READ before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
// expect: OTHER-FORM by a button: OTHER-FORM go:4reply
// expect: OTHER-FORM by OK: APPLICATION_FLAGREDRAW OFF OTHER-FORM before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
// expect: PUMP by a button: PUMP go:4reply
// expect: PUMP by OK: APPLICATION_FLAGREDRAW OFF PUMP before THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick
// expect: FAIL by a button: FAIL [Error N. 5 - Invalid procedure call or argument (Line: 3    Column:12)]
// expect: FAIL by OK: APPLICATION_FLAGREDRAW OFF FAIL THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick [Error N. 5 - Invalid procedure call or argument (Line: 9    Column:12)]
// expect: THROW by a button: THROW [Error N. 5022 - Exception thrown and not caught (Line: 3    Column:12)]
// expect: THROW by OK: APPLICATION_FLAGREDRAW OFF THROW THEME_SELECTION_NONE || || after APPLICATION_FLAGREDRAW ON APPLICATION_REDRAW OkClick [Error N. 5022 - Exception thrown and not caught (Line: 9    Column:12)]
