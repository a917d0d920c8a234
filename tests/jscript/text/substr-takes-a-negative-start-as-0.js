WScript.Echo("abcdef".substr(-2), "abcdef".substr(-2, 3), "abcdef".substr(2), "abcdef".substr(1, 2), "abcdef".substr(9), "abc".substr(NaN, 1), "abc".substr(1, undefined));
// expect: abcdef abc cdef bc  a bc
