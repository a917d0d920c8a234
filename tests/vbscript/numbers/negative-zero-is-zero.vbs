WScript.Echo -0.0, 0 * -1, -0.0 = 0
' expect: 0 0 True
