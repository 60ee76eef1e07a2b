parts = []
for i in range(100000):
    parts.append("[ab]")
print(len("".join(parts)))
