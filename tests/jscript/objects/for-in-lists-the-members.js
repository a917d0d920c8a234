var names = [];
for (var name in Host) names.push(name);
WScript.Echo(names.join());
// expect: Say,Callback,Value,Cell,Self,Items,Reads,Title
