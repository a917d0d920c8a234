# The peer of arguments by reference: the values come back.
def swap(a, b):
    return b, a


def rotate(a, b, c):
    a, b = swap(a, b)
    b, c = swap(b, c)
    return a, b, c


def shuffle(items, turns, first, second):
    for i in range(1, turns + 1):
        one = i % 16
        other = i * 7 % 16
        items[one], items[other] = swap(items[one], items[other])
        between = i % 13
        first, items[between], second = rotate(first, items[between], second)
    return first, second


items = list(range(16))
first, second = shuffle(items, 400000, 100, 200)
hashed = first * 31 + second
for i in range(16):
    hashed = (hashed * 31 + items[i]) % 1000003
print(hashed)
