' expect: 12
WScript.Echo Left(12345, 2)
