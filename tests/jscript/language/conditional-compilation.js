/*@cc_on
  @if (@_jscript_version >= 5)
    WScript.Echo("new", @_jscript_version, !!@_jscript);
  @else
    this is no program
  @end
@*/
@set @debug = (1 + 1 == 2)
@set @n = 3
@if (@debug && !@unknown)
WScript.Echo("debug", @n, String(@unknown));
@elif (true)
WScript.Echo("never");
@end
//@cc_on WScript.Echo("line");
@if (false)
  @if (true) WScript.Echo("inner"); @end
@else WScript.Echo("else"); @end
var text = "@if (x)", pattern = /@end/;
WScript.Echo(text, pattern.source); // @if in a comment
nowhere;
// expect: new 5.8 True
// expect: debug 3 NaN
// expect: line
// expect: else
// expect: @if (x) @end
// expect error: 5009 at 21:0
