# A text of a million characters searched for a word, then looked at character by character.
def main():
    text = "the quick brown fox jumps over the lazy dog; "
    while len(text) < 1048576:
        text = text + text
    text = text[:1048576]
    count = 0
    found = text.find("fox")
    while found >= 0:
        count += 1
        found = text.find("fox", found + 1)
    letters = 0
    for i in range(len(text)):
        letter = text[i:i + 1]
        if letter == "o":
            letters += 1
    print(count, letters)


main()
