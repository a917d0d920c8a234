// A property of a class, read and written.
class Counter {
  constructor() {
    this._value = 0;
  }
  get value() {
    return this._value;
  }
  set value(newValue) {
    this._value = newValue;
  }
}

var counted = new Counter();
for (var i = 1; i <= 500000; i++) counted.value = (counted.value + i) % 1000003;
console.log(counted.value);
