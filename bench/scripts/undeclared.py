# The peer of a script whose procedures leave their variables undeclared; here they are local.
def balance(rows):
    total = 0
    for row in range(1, rows + 1):
        value = row % 7
        if value > 3:
            total += value * 2
        else:
            total -= 1
    return total


def main():
    total = 0
    for turn in range(1, 1201):
        total = (total + balance(2500 + turn)) % 1000003
    print(total)


main()
