"""Plays one hand of the program in the folder given, as a person does who only hears it.

usage: PlayHand.py FOLDER DATA [STEPWISE KEPT [--accept]]

A copy of the program's FOLDER is played, with the data files of DATA, on the display at hand: in
real time, or by the program STEPWISE, whose pauses end as soon as everything told has been heard.
What is read and told in that hand is compared with the text in the file KEPT; --accept keeps it.
"""

import difflib
import shutil
import subprocess
import sys
import tempfile
import traceback
from pathlib import Path

from ScreenReader import Atspi, Failure, ScreenReader, start_bus

TRICKS = 13
PLAYABLE = ", playable, "


class Hand:
    """A hand with its story: what was done, read and told, a line each."""

    def __init__(self, reader):
        self.reader = reader
        self.story = []
        self.heard = 0

    def play(self):
        reader = self.reader
        reader.wait_for("the menu 'Play'", lambda: reader.find("menu item", "Play"))
        self.read("the start", reader.parts())
        self.press("menu item", "New Game", hidden_too=True)
        reader.wait_for("the bidding", lambda: reader.find("push button", "Bid 1"))
        self.read("the bidding", reader.parts())
        self.expect_quiet()
        self.press("push button", "Bid 3")
        for trick in range(TRICKS):
            self.play_card(quietly=trick == 0)
        scores = reader.wait_for("a dialog 'Scores'", lambda: reader.find("dialog", "Scores"))
        self.expect_quiet()
        self.read_scores(scores)
        self.press("push button", "Save and Exit", below=scores.accessible)

    def press(self, role, name, **where):
        self.tell(f"> presses {name}")
        self.reader.wait_for(f"a {role} '{name}'",
                             lambda: self.reader.find(role, name, **where)).press()

    def tell(self, line):
        """Adds a line after what the program has told before: cards that are played, each new
        text of the information line, once, and nothing else."""
        for kind, is_on, role, name in self.reader.events[self.heard:]:
            if role == "notification" and kind == "object:state-changed:showing" and is_on:
                self.story.append(f"announced: {name}")
            elif ", played by " in name and kind == "object:property-change:accessible-name":
                self.story.append(f"told: {name}")
        self.heard = len(self.reader.events)
        self.story.append(line)

    def read(self, what, parts):
        self.tell(f"# {what}")
        self.story += [f"{part.role} '{part.name}'" + (
            " (focus)" if part.has(Atspi.StateType.FOCUSED) else "") for part in parts if part.name]

    def play_card(self, quietly):
        reader = self.reader
        self.wait_to_hear("Player please play a card.")
        parts = list(reader.parts())
        self.read("the hand", [part for part in parts
                               if " of " in part.name and part.role == "push button"
                               or ": bid " in part.name])
        card = [part for part in parts if PLAYABLE in part.name][-1]
        self.tell(f"> plays {card.name}")
        if not card.has(Atspi.StateType.FOCUSED):
            card.accessible.grab_focus()
            reader.wait_for(f"the focus on '{card.name}' told", lambda: any(
                event.kind == "object:state-changed:focused" and event.is_on
                and event.name == card.name for event in reader.events[self.heard:]))
        if quietly:
            self.expect_quiet()
        card.press()
        self.wait_to_hear(f"{card.name.split(',')[0]}, played by Player")

    def wait_to_hear(self, text):
        self.reader.wait_for(f"'{text}'", lambda: any(
            event.name == text for event in self.reader.events[self.heard:]))

    def read_scores(self, scores):
        reader = self.reader
        self.read("the scores", reader.parts(below=scores.accessible))
        self.story.append(scores.accessible.get_description())
        table = reader.find("table", "Bidding Situation").accessible
        columns = range(table.get_n_columns())
        self.story.append(f"table {[table.get_column_header(at).get_name() for at in columns]}")
        for row in range(table.get_n_rows()):
            counts = [table.get_accessible_at(row, at).get_name() for at in columns]
            self.story.append(f"{table.get_row_header(row).get_name()} {counts}")
        played = reader.find("list", "Cards played")
        self.read("the list", reader.parts(below=played.accessible, hidden_too=True))

    def expect_quiet(self):
        """Nothing is told while nothing happens, though the table is read meanwhile."""
        def told_within(seconds, read=list):
            before = len(self.reader.events)
            read()
            self.reader.listen(seconds)
            return self.reader.events[before:]

        self.reader.wait_for("the program to fall silent", lambda: not told_within(0.5))
        told = told_within(1, read=lambda: list(self.reader.parts()))
        if told:
            raise Failure(f"no events while nothing happens, not {told}")


def compare(story, kept, accepts):
    if accepts:
        kept.write_text("\n".join(story) + "\n", encoding="utf-8")
    difference = "\n".join(difflib.unified_diff(
        kept.read_text(encoding="utf-8").splitlines(), story, "kept", "now", lineterm="", n=3))
    if difference:
        raise Failure(f"the hand as it is kept:\n{difference}")


def play(folder, stepwise=None, kept=None, accept=None):
    program = subprocess.Popen([stepwise, folder] if stepwise else [folder / "parlino"],
                               stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def end_pause():
        program.stdin.write(b"\n")
        program.stdin.flush()
        program.stdout.readline()

    reader = None
    try:
        reader = ScreenReader(program.pid, end_pause if stepwise else None)
        hand = Hand(reader)
        hand.play()
        reader.wait_for("the end of the program", lambda: program.poll() is not None)
        if program.poll() != 0:
            raise Failure(f"the end with status 0, not {program.poll()}")
        if kept:
            compare(hand.story, Path(kept), accept == "--accept")
    except Exception as failure:  # whatever goes wrong, the tree is what explains it
        if not isinstance(failure, Failure):
            traceback.print_exc(file=sys.stdout)
        print(f"\nExpected {failure}")
        print(reader.describe() if reader else "The program is not on the bus.")
        return 1
    finally:
        program.kill()
    return 0


def main():
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as scratch:
        folder = Path(scratch) / "Parlino"
        shutil.copytree(sys.argv[1], folder)
        shutil.copytree(sys.argv[2], folder, dirs_exist_ok=True)
        bus = start_bus(scratch)
        try:
            return play(folder, *sys.argv[3:])
        finally:
            bus.terminate()
            bus.wait()


if __name__ == "__main__":
    sys.exit(main())
