"""Plays one hand of the program in the folder given, as a person does who only hears it.

usage: PlayHand.py FOLDER DATA [STEPWISE]

A copy of the program's FOLDER is played, with the data files of DATA, on the display at hand: in
real time, or by the program STEPWISE, whose pauses end as soon as everything told has been heard.
"""

import re
import shutil
import subprocess
import sys
import tempfile
import traceback
from pathlib import Path

from ScreenReader import Atspi, Failure, ScreenReader, start_bus

SEATS = ("North", "Player", "West", "East")
SUITS = ("Diamonds", "Clubs", "Hearts", "Spades")
TRICKS = 13
BID = 3
CARD = re.compile(r"(\w+ of (?:%s)), (playable, )?(\d+) of (\d+)" % "|".join(SUITS))
SEAT = re.compile(r"(%s): bid (\d+), took (\d+)" % "|".join(SEATS))
LINE = re.compile(r"(%s) played (\w+ of (?:%s))" % ("|".join(SEATS), "|".join(SUITS)))


def expect(is_so, what):
    if not is_so:
        raise Failure(what)


class Hand:
    def __init__(self, reader):
        self.reader = reader
        self.cards = []
        self.played = []

    def play(self):
        self.deal()
        self.bid()
        for trick in range(1, TRICKS + 1):
            self.play_card(trick)
        scores = self.reader.wait_for("a dialog 'Scores'",
                                      lambda: self.reader.find("dialog", "Scores"))
        self.expect_quiet()
        self.check_scores()
        self.check_list()
        self.check_announcements()
        self.leave(scores)

    def deal(self):
        reader = self.reader
        menu = reader.wait_for("a menu 'Play' in the menu bar",
                               lambda: reader.find("menu item", "Play"))
        entry = reader.find("menu item", "New Game", below=menu.accessible, hidden_too=True)
        expect(entry, "an entry 'New Game' in the menu 'Play'")
        entry.press()
        panel = reader.wait_for("the bidding panel", lambda: reader.find(
            "panel", "How many tricks can you make?"))
        names = [part.name for part in reader.parts(below=panel.accessible)
                 if part.role == "push button"]
        expect(names == [f"Bid {bid}" for bid in range(1, TRICKS + 1)],
               f"the buttons Bid 1 to Bid 13 in the panel, not {names}")
        self.cards = [card for card, _, _ in self.read_cards(count=TRICKS)]
        trumps = [part.name for part in reader.parts() if part.name.startswith("Trumps ")]
        expect(len(trumps) == 1 and trumps[0].split()[1] in SUITS, f"trumps told, not {trumps}")
        print(f"{trumps[0]}; {', '.join(self.cards)}")

    def bid(self):
        self.expect_quiet()
        focused = [part.name for part in self.reader.parts() if part.has(Atspi.StateType.FOCUSED)]
        expect(len(focused) == 1 and focused[0].startswith("Bid "),
               f"the focus on a bid, not on {focused}")
        self.reader.find("push button", f"Bid {BID}").press()

    def read_cards(self, count):
        """(card, whether it may be played, its part) of the `count` cards in hand, in order."""
        cards, places = [], []
        for part in self.reader.parts():
            match = CARD.fullmatch(part.name)
            if match is None or part.role != "push button":
                continue
            card, playable, *place = match.groups()
            cards.append((card, bool(playable), part))
            places.append([int(number) for number in place])
        in_order = [[place, count] for place in range(1, count + 1)]
        expect(places == in_order, f"{count} cards in order, not {[c[2].name for c in cards]}")
        return cards

    def play_card(self, trick):
        left = TRICKS + 1 - trick
        self.reader.wait_for(f"a card that may be played to trick {trick}", lambda: any(
            ", playable, " in part.name for part in self.reader.parts()))
        cards = self.read_cards(left)
        expect(sorted(card for card, _, _ in cards) == sorted(self.cards),
               f"the cards {self.cards} still in hand, not {[card for card, _, _ in cards]}")
        taken = sum(took for _, took in self.read_seats().values())
        expect(taken == trick - 1, f"{trick - 1} tricks taken before trick {trick}, not {taken}")
        expect(any(part.has(Atspi.StateType.FOCUSED) for _, _, part in cards),
               "the focus on a card of the hand")
        card, _, part = [entry for entry in cards if entry[1]][-1]
        self.focus(part)
        if trick == 1:
            self.expect_quiet()
        part.press()
        self.reader.wait_for(f"'{card}, played by Player' told", lambda: any(
            event.name == f"{card}, played by Player" for event in self.reader.events))
        self.cards.remove(card)
        self.played.append(card)

    def focus(self, part):
        if part.has(Atspi.StateType.FOCUSED):
            return
        before = len(self.reader.events)
        part.accessible.grab_focus()
        self.reader.wait_for(f"the focus on '{part.name}' told", lambda: part.has(
            Atspi.StateType.FOCUSED) and any(
            event.kind == "object:state-changed:focused" and event.is_on
            and event.name == part.name for event in self.reader.events[before:]))

    def read_seats(self):
        """{seat: (bid, tricks taken)} as the labels beside the seats say."""
        found = [SEAT.fullmatch(part.name) for part in self.reader.parts() if part.role == "label"]
        seats = {match[1]: (int(match[2]), int(match[3])) for match in found if match}
        expect(set(seats) == set(SEATS), f"bids and tricks of all seats, not only {seats}")
        return seats

    def read_table(self):
        """{row header: {column header: count}} of the score table."""
        table = self.reader.find("table", "Bidding Situation")
        expect(table, "a table 'Bidding Situation'")
        inside = [part.name for part in self.reader.parts(below=table.accessible)]
        table = table.accessible

        def count(row, column):
            return int(table.get_accessible_at(row, column).get_name().split()[-1])

        columns = [table.get_column_header(column).get_name()
                   for column in range(table.get_n_columns())]
        rows = [table.get_row_header(row).get_name() for row in range(table.get_n_rows())]
        expect(set(rows + columns) <= set(inside), f"the headers {rows + columns} in {inside}")
        return {header: {heading: count(row, column) for column, heading in enumerate(columns)}
                for row, header in enumerate(rows)}

    def check_scores(self):
        seats = self.read_seats()
        rows = {seat: {"Bid": bid, "Made": took} for seat, (bid, took) in seats.items()}
        for pair, members in ("NSPartners", SEATS[:2]), ("WEPartners", SEATS[2:]):
            rows[pair] = {column: sum(rows[seat][column] for seat in members)
                          for column in ("Bid", "Made")}
        table = self.read_table()
        expect(table == rows, f"the score table {rows}, as the seats have it, not {table}")
        expect(seats["Player"][0] == BID, f"the Player's bid of {BID}, not {seats['Player'][0]}")
        taken = sum(took for _, took in seats.values())
        expect(taken == TRICKS, f"{TRICKS} tricks in all, not {taken}")
        print(f"Scores: {table}")

    def check_list(self):
        played_list = self.reader.find("list", "Cards played")
        expect(played_list, "a list 'Cards played'")
        lines = [part.name for part in
                 self.reader.parts(below=played_list.accessible, hidden_too=True)
                 if part.role == "list item"]
        ends = [line for line in lines if line.startswith("End of trick ")]
        plays = [LINE.fullmatch(line) for line in lines if line not in ends]
        expect(lines[4::5] == ends == [f"End of trick {n}" for n in range(1, TRICKS + 1)],
               f"the end of each of 13 tricks after its four cards, not {lines}")
        expect(all(plays) and len({play[2] for play in plays}) == 4 * TRICKS,
               f"each of 52 cards in the list once, not {lines}")
        expect([play[2] for play in plays if play[1] == "Player"] == self.played,
               f"the Player's cards {self.played} in the list {lines}")
        told = {event.name for event in self.reader.events if ", played by " in event.name}
        untold = {f"{play[2]}, played by {play[1]}" for play in plays} - told
        expect(not untold, f"every card told when it was played; not told: {untold}")

    def check_announcements(self):
        """Each new text of the information line is announced, once, and nothing else is."""
        said, new = [], None
        for kind, is_on, role, text in self.reader.events:
            if role != "notification":
                continue
            if kind == "object:property-change:accessible-name":
                expect(new in (None, "", text), f"'{new}' announced before '{text}' comes")
                new = text
            elif kind == "object:state-changed:showing" and is_on:
                expect(new is not None, f"'{text}' announced as a new text, once; {said[-3:]}")
                new = None
                said.append(text)
        print(f"Announced {len(said)} texts, {len(set(said))} different")
        asked = [text for text in said if text.endswith("please play a card.")]
        expect(len(asked) == TRICKS, f"the Player asked for a card {TRICKS} times in {said}")

    def expect_quiet(self):
        """Nothing is told while nothing happens, though the table is read meanwhile."""
        seconds = 2

        def told_within(seconds, read=list):
            before = len(self.reader.events)
            read()
            self.reader.listen(seconds)
            return self.reader.events[before:]

        self.reader.wait_for("the program to fall silent", lambda: not told_within(1))
        told = told_within(seconds, read=lambda: list(self.reader.parts()))
        print(f"Events while the table is read and for {seconds} s more: {len(told)}")
        expect(not told, f"no events while nothing happens, not {len(told)}")

    def leave(self, scores):
        prompt = scores.accessible.get_description()
        answers = [part for part in self.reader.parts(below=scores.accessible)
                   if part.role == "push button"]
        print(f"{scores.name}: {prompt}")
        expect(prompt.strip(), "a prompt in the dialog 'Scores'")
        expect([answer.name for answer in answers] == ["Next Hand", "Save and Exit"],
               f"the answers Next Hand and Save and Exit, not {answers}")
        answers[1].press()


def play(folder, stepwise):
    command = [stepwise, folder] if stepwise else [folder / "parlino"]
    program = subprocess.Popen(command, stdin=subprocess.PIPE if stepwise else None)
    reader = None
    try:
        reader = ScreenReader(program.pid, program.stdin)
        Hand(reader).play()
        reader.wait_for("the program to end", lambda: program.poll() is not None)
        expect(program.poll() == 0, f"the program ended with status 0, not {program.poll()}")
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
            return play(folder, sys.argv[3] if len(sys.argv) > 3 else None)
        finally:
            bus.terminate()
            bus.wait()


if __name__ == "__main__":
    sys.exit(main())
