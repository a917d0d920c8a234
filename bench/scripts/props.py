# A property of a class, read and written.
class Counter:
    def __init__(self):
        self._value = 0

    @property
    def value(self):
        return self._value

    @value.setter
    def value(self, new_value):
        self._value = new_value


counted = Counter()
for i in range(1, 500001):
    counted.value = (counted.value + i) % 1000003
print(counted.value)
