Dim [If], [Next]
[If] = 1
[Next] = 2
[End] = 3
WScript.Echo [if], [NEXT], [end]
' expect: 1 2 3
