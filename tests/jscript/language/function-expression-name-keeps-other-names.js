var run = "mine", o = {run: function run() { return 1; }};
function h(stop) { var s = function stop() { }; return stop; }
WScript.Echo(run, o.run(), h(5));
// expect: mine 1 5
