# Loops and an array of Booleans: the primes up to a million, counted.
def main():
    limit = 1000000
    prime = [True] * (limit + 1)
    for i in range(2, limit + 1):
        prime[i] = True
    i = 2
    while i * i <= limit:
        if prime[i]:
            for j in range(i * i, limit + 1, i):
                prime[j] = False
        i += 1
    count = 0
    for i in range(2, limit + 1):
        if prime[i]:
            count += 1
    print(count)


main()
