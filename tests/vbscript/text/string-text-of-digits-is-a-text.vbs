' expect: 66
WScript.Echo String(2, "65")
