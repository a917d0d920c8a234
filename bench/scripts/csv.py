# A table as text, as scripts get it from files: 50,000 lines made, taken apart and written again with other formats.
def main():
    count = 50000
    lines = []
    seed = 7
    for i in range(count):
        seed = (seed * 1103 + 12345) % 1000003
        lines.append(str(i) + ";parcel " + str(seed % 4001) + ";" + str((seed % 10000) / 4))
    text = "\r\n".join(lines)

    lines = text.split("\r\n")
    total = 0
    for i in range(len(lines)):
        fields = lines[i].split(";")
        amount = float(fields[2])
        total += amount
        lines[i] = ("000000" + fields[0])[-6:] + "," + fields[1].upper() + "," + "%.2f" % (amount * 2)
    text = "\n".join(lines)

    hashed = 0
    for i in range(0, len(text), 101):
        hashed = (hashed * 31 + ord(text[i])) % 1000003
    print(len(text), int(total), hashed)


main()
