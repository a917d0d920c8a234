# A dictionary of 200,000 texts filled, then asked for each.
def main():
    entries = {}
    for i in range(1, 200001):
        entries["k%d" % i] = i
    total = 0
    for i in range(1, 200001):
        if "k%d" % i in entries:
            total = (total + entries["k%d" % i]) % 1000003
    print(len(entries), total)


main()
