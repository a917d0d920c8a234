Promise.resolve(1).then(v => WScript.Echo("then", v));
(async function () { await null; WScript.Echo("async"); })();
WScript.Echo("first");
// expect: first
// expect: then 1
// expect: async
