' Loops and an array of Booleans: the primes up to a million, counted.
Dim limit, i, j, count
limit = 1000000
Dim prime
ReDim prime(limit)
For i = 2 To limit
  prime(i) = True
Next
i = 2
Do While i * i <= limit
  If prime(i) Then
    For j = i * i To limit Step i
      prime(j) = False
    Next
  End If
  i = i + 1
Loop
count = 0
For i = 2 To limit
  If prime(i) Then count = count + 1
Next
WScript.Echo count
