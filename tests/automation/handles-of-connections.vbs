' Only handles of open connections are accepted.
Option Explicit
Dim hosts, other, handle, vellum
Set hosts = CreateObject("Cardwright.Hosts")
Set other = CreateObject("Cardwright.Hosts")
Class Failing
  Public Function ORVExecute(command)
    If command = "HWND_CONTROL" Then ORVExecute = 4711 Else Err.Raise 1234, , "no " & command
  End Function
  Public Function ORVRequest(command)
    ORVRequest = command & "?"
  End Function
End Class

handle = hosts.Register(New Failing)
WScript.Echo handle > 0, TypeName(hosts), "<" & hosts.Log(handle) & ">"
WScript.Echo "another object knows it: <" & other.Log(handle) & ">"
hosts.Close handle
Sub Tell(what)
  WScript.Echo what, Err.Number, Err.Description
  Err.Clear
End Sub
On Error Resume Next
hosts.Log handle
Tell "Log"
hosts.ClearLog handle
Tell "ClearLog"
hosts.Close handle
Tell "Close"
hosts.Register Nothing
Tell "Register"
hosts.Register 5
Tell "Register"
hosts.OpenStore WScript.Arguments(0) & "/none.gpkg"
WScript.Echo "OpenStore", Err.Number, InStr(Err.Description, "none.gpkg") > 0

' expect: True Hosts <>
' expect: another object knows it: <>
' expect: Log 380 Invalid property value
' expect: ClearLog 380 Invalid property value
' expect: Close 380 Invalid property value
' expect: Register 91 Object variable not set
' expect: Register 424 Object required
' expect: OpenStore 53 True
