WScript.Echo CSng(0.1) = 0.1, CSng(0.1) = 0.2, CSng(1) / 3 = 1 / 3
' expect: True False True
