"""Tries parlino-selfplay: its files are the same for every number of jobs, count what was played,
and are there whole or not at all. Usage: SelfPlayTest.py PROGRAM"""
import csv
import json
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time

PROGRAM = pathlib.Path(sys.argv[1]).resolve()
RUN = "--hands 5300 --seed 8 "
TRUMPS_BELOW_KING = 11  # the lowest of the thirteen

# Arguments, status, and what the one line says.
WRONG = [
    ("", 2, "--hands is missing"),
    ("--hands 5", 2, "--seed is missing"),
    ("--hands 0 --seed 1", 2, '--hands cannot be "0"'),
    (RUN + "--jobs", 2, "--jobs needs a value"),
    (RUN + "--jobs 0", 2, '--jobs cannot be "0"'),
    (RUN + "--job 2", 2, "--job is not an option"),
    (RUN + "--csv kept --transcript kept", 2, "name the same file"),
    (RUN + "--csv ./kept --transcript kept", 2, "name the same file"),
    (RUN + "--transcript nowhere/new", 1, "nowhere/new cannot be written: No such file"),
    (RUN + "--transcript kept --csv .", 1, ". cannot be written: Is a directory"),
    (RUN + "--transcript kept --csv /dev/full", 1, "/dev/full cannot be written: No space"),
]


def run(arguments, **more):
    return subprocess.run([PROGRAM, *arguments.split()], capture_output=True, text=True, **more)


def expect(is_so, what):
    if not is_so:
        sys.exit(f"selfplay: {what}")


def expect_nothing_new(what):
    expect(os.listdir() == ["kept"] and pathlib.Path("kept").read_text() == "old", what)


def half_trick(hand, seat):
    lowest = 13 * (hand["trump"] - 4) + 1
    trumps = range(lowest, lowest + TRUMPS_BELOW_KING)
    return sum(owner == seat and card in trumps for owner, card in hand["deal"]) % 2


def counted(hands):
    """The table as it follows from the transcript."""
    def side(name, tricks, bids, *rest):
        made = sum(won >= bid for won, bid in zip(tricks, bids))
        return [name, len(hands), sum(tricks), sum(bids), made, len(hands) - made, *rest]
    for seat, name in enumerate(["South", "West", "North", "East"]):
        yield side(name, [h["tricks_won"][seat] for h in hands], [h["bids"][seat] for h in hands],
                   sum(half_trick(h, seat) for h in hands), "", "")
    for first, name, other in (0, "our", "their"), (1, "their", "our"):
        won = sum(h["game_over"] and h[name + "_points"] > h[other + "_points"] for h in hands)
        yield side(name + "s", [h["tricks_won"][first] + h["tricks_won"][first + 2] for h in hands],
                   [h[name + "_bid"] for h in hands], "",
                   sum(h[name + "_hand_score"] for h in hands), won)


def try_jobs():
    for jobs in "13":
        done = run(f"{RUN}--south robot --jobs {jobs} --transcript t{jobs} --csv c{jobs}")
        expect(done.returncode == 0 and not done.stderr, f"{jobs} jobs end with {done}")
    one, three = (pathlib.Path("t" + jobs).read_bytes() for jobs in "13")
    expect(one == three, "the transcript depends on the number of jobs")
    hands = [json.loads(line) for line in one.splitlines()[1:]]
    expect([hand["hand"] for hand in hands] == list(range(1, 5301)), "the hands are not in order")
    expect(len({str(hand["deal"]) for hand in hands}) == 5300, "two sessions have the same hands")
    expected = [[str(figure) for figure in row] for row in counted(hands)]
    for table in "c1", "c3":
        rows = list(csv.reader(pathlib.Path(table).read_text().splitlines()))[1:]
        expect(rows == expected, f"the table {rows} should be {expected}")


def try_death_of_session():
    long = [PROGRAM, *"--hands 2000000 --seed 8 --jobs 2 --transcript kept --csv new".split()]
    # A search for leaks at the end would be a child too, and must not be killed.
    environment = {**os.environ, "ASAN_OPTIONS": "detect_leaks=0"}
    with subprocess.Popen(long, stderr=subprocess.PIPE, text=True, env=environment) as process:
        sessions = pathlib.Path(f"/proc/{process.pid}/task/{process.pid}/children")
        while process.poll() is None:
            for child in sessions.read_text().split():
                try:
                    os.kill(int(child), 9)
                except ProcessLookupError:
                    pass
        said = process.stderr.read()
    expect(process.returncode == 1 and "was ended by signal 9" in said, said)
    expect_nothing_new("a session that dies leaves files behind")


def try_breaking_off(jobs):
    long = [PROGRAM, *f"--hands 2000000 --seed 8 {jobs} --transcript kept --csv new".split()]
    with subprocess.Popen(long, stderr=subprocess.PIPE, text=True) as process:
        while len(os.listdir()) == 1 and process.poll() is None:
            time.sleep(0.01)
        process.send_signal(signal.SIGTERM)
        said = process.stderr.read()
    expect(process.returncode == 1 and said == "parlino-selfplay: stopped\n", said)
    expect_nothing_new(f"a run {jobs} that is broken off leaves files behind")


with tempfile.TemporaryDirectory() as folder:
    os.chdir(folder)
    pathlib.Path("kept").write_text("old")
    for arguments, status, words in WRONG:
        done = run(arguments)
        expect(done.returncode == status and words in done.stderr and done.stderr.count("\n") == 1,
               f'"{arguments}" ends with {done}')
        expect_nothing_new(f'"{arguments}" leaves files behind')
    try_death_of_session()
    try_breaking_off("")
    try_breaking_off("--jobs 2")
    try_jobs()
