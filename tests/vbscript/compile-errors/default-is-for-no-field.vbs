Class C
  Public Default x
End Class
' expect error: 1056 at 2:17
' expect text: 'Default' can be specified only on 'Property' or 'Function' or 'Sub'
