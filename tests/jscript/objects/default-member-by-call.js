Host("a") = 1;
WScript.Echo(Host("a"), Host.Cell("A"), Host.Self("a"), Host.Self.Self.cell("a"));
WScript.Echo(Host("none") === undefined);
// expect: 1 1 1 1
// expect: True
