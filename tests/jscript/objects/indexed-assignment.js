var o = {host: Host, list: [Host]}, key = "c";
Host("a") = 1;
Host.Cell("b") = 2;
o.host(key) = 3;
o["host"].Cell("d") = 4;
o.list[0]("e") = 5;
o["host"]("f") = 6;
Host["Cell"]("g") = 7;
Host.Self("h") = Host.Cell("i") = 8;
Shared.Cell("x") = 9;
Cell("y") = 10;
WScript.Echo(Host("a"), Host("b"), Host("c"), Host("d"), Host("e"), Host("f"), Host("g"), Host("h"), Host("i"), Cell("X"), Shared("y"));
Host("a") += 10; Host("b")++; Host.Cell("c") *= 2;
WScript.Echo(Host("a"), Host("b"), Host("c"));
if (Host("a") == 11) Host("a") = 12;
for (Host("i") = 0; Host("i") < 3; Host("i")++);
WScript.Echo(Host("a"), Host("i"));
// expect: 1 2 3 4 5 6 7 8 8 9 10
// expect: 11 3 6
// expect: 12 3
