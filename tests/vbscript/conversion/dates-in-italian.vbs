' locale: it-IT
WScript.Echo CStr(#2000-03-04#), CDate("4/3/2000") = #2000-03-04#, CStr(#2000-03-04 17:05:06#)
' expect: 04/03/2000 True 04/03/2000 17:05:06
