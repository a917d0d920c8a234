' locale: fr-FR
WScript.Echo Month("21 August 2026"), Month("21 août 2026"), Month("21 AOÛT 2026")
' expect: 8 8 8
