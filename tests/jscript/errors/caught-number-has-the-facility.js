try { nowhere; } catch (e) { WScript.Echo(e.number, e.number >> 16 & 0x1FFF, e.name); }
// expect: -2146823279 10 ReferenceError
