import("x").then(() => WScript.Echo("loaded"), () => WScript.Echo("refused"));
// expect: refused
