WScript.Echo &o17, &O17, &17, &o177777, &o7
' expect: 15 15 15 -1 7
