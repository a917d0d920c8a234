# Arrays of two dimensions: the product of two matrices of 300 by 300.
def main():
    size = 300
    a = [[(i * 3 + j) % 17 for j in range(size)] for i in range(size)]
    b = [[(i + j * 5) % 13 for j in range(size)] for i in range(size)]
    c = [[0] * size for _ in range(size)]
    for i in range(size):
        for j in range(size):
            total = 0
            for k in range(size):
                total += a[i][k] * b[k][j]
            c[i][j] = total
    total = 0
    for i in range(size):
        for j in range(size):
            total = (total + c[i][j]) % 1000003
    print(total)


main()
