# A text that grows by one character, 200,000 times.
def main():
    grown = ""
    for i in range(1, 200001):
        grown = grown + str(i % 10)
    hashed = 0
    for i in range(0, len(grown), 997):
        hashed = (hashed * 31 + ord(grown[i])) % 1000003
    print(len(grown), hashed)


main()
