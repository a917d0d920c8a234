var o = {part: {}};
function o.twice(x) { return 2 * x; }
function o.part.thrice(x) {
  return 3 * x;
}
WScript.Echo(o.twice(2), o.part.thrice(2));
// expect: 4 6
