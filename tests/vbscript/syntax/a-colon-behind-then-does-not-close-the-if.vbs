If False Then :
  WScript.Echo "no"
End If
WScript.Echo "yes"
' expect: yes
