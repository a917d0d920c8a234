SetLocale "klingon"
' expect error: 447 at 1:0
