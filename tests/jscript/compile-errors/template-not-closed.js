// A template that ends with the source.
var a = `x

// expect error: 1015
