' expect: AZaz09@*_+-./
WScript.Echo Escape("AZaz09@*_+-./")
