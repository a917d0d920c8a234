// Calls: the Fibonacci numbers by plain recursion.
function fib(index) {
  return index < 2 ? index : fib(index - 1) + fib(index - 2);
}

console.log(fib(27));
