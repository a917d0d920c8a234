WScript.Echo 1 =< 1
WScript.Echo 1 => 1
WScript.Echo 1 >< 1
WScript.Echo (1 <= 1) & (1 >= 2) & (1 <> 2)
' expect: True
' expect: True
' expect: False
' expect: TrueFalseTrue
