# Calls: the Fibonacci numbers by plain recursion.
def fib(index):
    return index if index < 2 else fib(index - 1) + fib(index - 2)


print(fib(27))
