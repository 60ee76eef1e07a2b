a = []
for i in range(100000):
    a.append(i)
s = 0
for x in a:
    s += x
print(s)
