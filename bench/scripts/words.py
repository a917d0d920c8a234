# Words of a text found by a regular expression and counted in a dictionary.
import re


def main():
    count = 60000
    syllables = ["ka", "Lo", "mi", "ne", "ru", "Sa", "ti", "vo"]
    words = []
    seed = 11
    for i in range(count):
        seed = (seed * 1103 + 12345) % 1000003
        words.append(syllables[seed % 8] + syllables[seed // 8 % 8] + syllables[seed // 64 % 8] + "," + str(i % 100))
    text = " ".join(words)

    counts = {}
    for found in re.finditer("[a-z]+", text, re.IGNORECASE):
        word = found.group().lower()
        if word in counts:
            counts[word] = counts[word] + 1
        else:
            counts[word] = 1

    best = 0
    squares = 0
    for word in counts:
        if counts[word] > best:
            best = counts[word]
        squares = (squares + counts[word] * counts[word]) % 1000003
    print(len(counts), best, squares, len(re.sub("[aeiou]", "", text, flags=re.IGNORECASE)))


main()
