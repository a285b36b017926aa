"""Fails when folders with code include each other in a circle, and names the includes."""
import os, re, subprocess, sys

os.chdir(sys.argv[1])
arrows = {}  # room -> {room it looks into: the include}
for folder, folders, files in os.walk("."):
    folders[:] = [name for name in folders if name != "build" and name[0] != "."]
    for file in (name for name in files if name.endswith((".h", ".cpp"))):
        for include in re.findall(r'^#include "(.+)"', open(f"{folder}/{file}").read(), re.M):
            other = os.path.normpath(os.path.dirname(include) or folder)
            if os.path.isfile(include) and other != os.path.normpath(folder):
                arrows.setdefault(os.path.normpath(folder), {})[other] = f"{folder}/{file} -> {include}"


def visit(room, way, closed=set()):
    if room in [step[0] for step in way]:
        sys.exit("Rooms in a circle:\n" + "\n".join(arrows[a][b] for a, b in way if b))
    for other in set(arrows.get(room, {})) - closed:
        visit(other, way + [(room, other)])
    closed.add(room)


for room in list(arrows):
    visit(room, [])
print(len(arrows), "rooms,", sum(map(len, arrows.values())), "arrows, no circle")
