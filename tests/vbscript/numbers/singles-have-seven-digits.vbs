WScript.Echo CSng(1 / 3), CSng(123456.789), CSng(1234567), CSng(12345678), CSng(1E-5), CSng(0.1)
' expect: 0.3333333 123456.8 1234567 1.234568E+07 1E-05 0.1
WScript.Echo CSng(1E38), CSng(-2.5), CSng(1 / 12)
' expect: 1E+38 -2.5 8.333334E-02
