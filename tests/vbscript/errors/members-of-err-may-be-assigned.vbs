Err.Description = "set by hand"
Err.Source = "here"
WScript.Echo Err.Description, Err.Source
' expect: set by hand here
