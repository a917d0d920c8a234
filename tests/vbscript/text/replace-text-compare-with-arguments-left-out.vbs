' expect: bonono
WScript.Echo Replace("bAnana", "A", "o", , , vbTextCompare)
