WScript.Echo(new Date(1999, 0, 1).getYear(), new Date(2020, 0, 1).getYear(), new Date(1899, 0, 1).getYear());
// expect: 99 2020 1899
