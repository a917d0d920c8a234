function show(f) {
  try { f(); } catch (e) { WScript.Echo(e.number & 0xFFFF, e.description, e.message === e.description, e instanceof Error); }
}
show(function () { nowhere; });
show(function () { nowhere(); });
show(function () { var a; a.b; });
show(function () { ({}).b(); });
show(function () { new Array(-1); });
show(function () { (1).toFixed(1000); });
show(function () { Date.prototype.getTime.call({}); });
show(function () { new VBArray(1); });
show(function () { new Enumerator(5); });
show(function () { new RegExp("("); });
show(function () { new RegExp("*"); });
show(function () { new RegExp("["); });
show(function () { new RegExp("[z-a]"); });
show(function () { decodeURIComponent("%"); });
show(function () { eval("1 +"); });
show(function () { eval("f(1"); });
show(function () { new 5; });
show(function () { 1 in 2; });
show(function () { ({}) instanceof 5; });
show(function () { Host.Callback1(); });
show(function () { throw new Error(50, "mine"); });
show(function () { var o = {}; o.o = o; JSON.stringify(o); });
// expect: 5009 'nowhere' is undefined True True
// expect: 5007 Object expected True True
// expect: 5007 'a' is null or not an object True True
// expect: 438 Object doesn't support this property or method True True
// expect: 5029 Array length must be a finite positive integer True True
// expect: 5026 The number of fractional digits is out of range True True
// expect: 5006 Date object expected True True
// expect: 5013 VBArray expected True True
// expect: 451 Object not a collection True True
// expect: 5020 Expected ')' in regular expression True True
// expect: 5018 Unexpected quantifier True True
// expect: 5019 Expected ']' in regular expression True True
// expect: 5021 Invalid range in character set True True
// expect: 5025 The URI to be decoded is not a valid encoding True True
// expect: 1002 Syntax error True True
// expect: 1006 Expected ')' True True
// expect: 445 Object doesn't support this action True True
// expect: 5007 Object expected True True
// expect: 5002 Function expected True True
// expect: 438 Object doesn't support this property or method True True
// expect: 50 mine True True
// expect: 5034 Circular reference in value argument not supported True True
