If True Then Else WScript.Echo "no"
If False Then Else WScript.Echo "yes"
' expect: yes
