const a = [1, 2].map(x => `<${x + `${x}`}>`);
let {b, c = 2} = {b: 1};
class P { constructor() { this.v = 5; } get w() { return this.v; } }
WScript.Echo(a.join(""), b, c, new P().w);
// expect: <11><22> 1 2 5
