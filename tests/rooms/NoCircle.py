"""Fails when folders with code include each other in a circle, and names the includes."""
import os, re, sys

os.chdir(sys.argv[1])
rooms, arrows = set(), {}  # (room, room that it includes): one such include
for folder, folders, files in os.walk("."):
    folders[:] = [name for name in folders if name != "build" and name[0] != "."]
    for file in (f"{folder}/{name}"[2:] for name in files if name.endswith((".h", ".cpp"))):
        rooms.add(room := os.path.dirname(file))
        for header in re.findall(r'^#include "(.+/.+)"', open(file).read(), re.M):
            if not os.path.exists(header): sys.exit(f"{file} includes {header}, which is not named from the root")
            if (other := os.path.dirname(header)) != room: arrows[room, other] = f"{file} includes {header}"

circle = dict(arrows)  # without all that leads to a room without arrows, or comes from one with none to it
while straight := [arrow for arrow in circle
                   if arrow[1] not in (a for a, _ in circle) or arrow[0] not in (b for _, b in circle)]:
    for arrow in straight: del circle[arrow]
if circle: sys.exit("Rooms in a circle:\n" + "\n".join(circle.values()))
print(len(rooms), "rooms,", len(arrows), "arrows, no circle")
