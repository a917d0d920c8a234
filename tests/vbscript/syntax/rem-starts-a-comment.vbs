Rem all of this is left out: x = 1
x = 2 : Rem and this
remark = 3
WScript.Echo x + remark
' expect: 5
