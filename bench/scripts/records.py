# Objects in an array, as a script keeps the rows of a table: 30,000 invoices put in order of amount and customer.
class Invoice:
    pass


def comes_before(a, b):
    if a.amount != b.amount:
        return a.amount < b.amount
    return a.customer < b.customer


def sort(items, first, last):
    i = first
    j = last
    pivot = items[(first + last) // 2]
    while i <= j:
        while comes_before(items[i], pivot):
            i += 1
        while comes_before(pivot, items[j]):
            j -= 1
        if i <= j:
            held = items[i]
            items[i] = items[j]
            items[j] = held
            i += 1
            j -= 1
    if first < j:
        sort(items, first, j)
    if i < last:
        sort(items, i, last)


def main():
    count = 30000
    invoices = []
    seed = 42
    for i in range(count):
        seed = (seed * 1103 + 12345) % 1000003
        made = Invoice()
        made.number = i
        made.customer = "customer " + str(seed % 977)
        made.amount = seed % 5000
        invoices.append(made)
    sort(invoices, 0, count - 1)
    hashed = 0
    for i in range(count):
        hashed = (hashed * 31 + invoices[i].number) % 1000003
    print(invoices[0].amount, invoices[count - 1].amount, hashed)


main()
