Function Sum(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p)
  Sum = a + b + c + d + e + f + g + h + i + j + k + l + m + n + o + p
End Function
WScript.Echo Sum(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16)
' expect: 136
