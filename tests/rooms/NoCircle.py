"""Fails when folders with code include each other in a circle, and names the includes."""
import os, re, sys

os.chdir(sys.argv[1])
arrows = {}  # (room, room that it includes): one such include
for folder, folders, files in os.walk("."):
    folders[:] = [name for name in folders if name != "build" and name[0] != "."]
    for file in (f"{folder}/{name}"[2:] for name in files if name.endswith((".h", ".cpp"))):
        for header in re.findall(r'^#include "(.+/.+)"', open(file).read(), re.M):
            ends = os.path.dirname(file), os.path.dirname(header)
            if ends[0] != ends[1]: arrows[ends] = f"{file} includes {header}"

circle = dict(arrows)  # less every arrow to a room without arrows of its own, or from one without any to it
while straight := [(a, b) for a, b in circle
                   if b not in {c for c, _ in circle} or a not in {c for _, c in circle}]:
    for ends in straight: del circle[ends]
if circle: sys.exit("Rooms in a circle:\n" + "\n".join(circle.values()))
print(len({room for ends in arrows for room in ends}), "rooms,", len(arrows), "arrows, no circle")
