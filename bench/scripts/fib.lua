-- Calls: the Fibonacci numbers by plain recursion.
local function fib(index)
  if index < 2 then return index end
  return fib(index - 1) + fib(index - 2)
end

print(fib(27))
