"""A program as a screen reader meets it: roles, names, states, actions and events on a bus.

The bus is private. Neither the display nor the settings of the person whose machine this is learn
that assistive tools were switched on.
"""

import os
import subprocess
import time
from typing import NamedTuple

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

WATCHED = ("object:state-changed", "object:property-change", "object:children-changed",
           "object:text-changed", "object:active-descendant-changed", "object:announcement",
           "window")
PATIENCE_MS = 60_000  # a program on a busy machine has not hung
MOST_AT_ONCE = 20  # more only come when the program answers every question with an event


class Failure(Exception):
    """Something is not as a person who only hears the program needs it."""


class Part(NamedTuple):
    role: str
    name: str
    accessible: Atspi.Accessible

    def has(self, state):
        return self.accessible.get_state_set().contains(state)

    def press(self):
        names = [self.accessible.get_action_name(index).lower()
                 for index in range(self.accessible.get_n_actions())]
        if "press" not in names:
            raise Failure(f"{self.role} '{self.name}' can be pressed: it has actions {names}")
        self.accessible.do_action(names.index("press"))


class Event(NamedTuple):
    kind: str
    is_on: bool
    role: str
    name: str


def start_bus(folder):
    """Starts a session bus with the accessibility bus switched on, for this process and those it
    starts; both end when the returned process is terminated."""
    quiet = dict(os.environ, XDG_RUNTIME_DIR=folder, GSETTINGS_BACKEND="memory")
    quiet.pop("DISPLAY", None)  # the launcher would leave its address on it
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"], env=quiet,
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
    value = GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True)))
    Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
        "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set", value, None,
        Gio.DBusCallFlags.NONE, -1, None)
    return bus


class ScreenReader:
    """Listens to one program. Events are taken in while it waits or reads.

    `end_pause` ends the pause that the program is in, if it needs to be told."""

    def __init__(self, process_id, end_pause=None):
        self.process_id = process_id
        self.program = None
        self._end_pause = end_pause
        self.events = []
        self._waiting = []
        Atspi.set_timeout(PATIENCE_MS, PATIENCE_MS)
        self._listener = Atspi.EventListener.new(self._waiting.append)
        for kind in WATCHED:
            self._listener.register(kind)
        self.program = self.wait_for("the program on the accessibility bus", self._find_program)
        self.program.set_cache_mask(Atspi.Cache.NONE)  # not every change comes as an event

    def _find_program(self):
        desktop = Atspi.get_desktop(0)
        programs = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
        return next((p for p in programs if p and p.get_process_id() == self.process_id), None)

    def listen(self, seconds):
        """Takes in what is told meanwhile."""
        until = time.monotonic() + seconds
        while True:
            GLib.MainContext.default().iteration(False)
            for _ in range(min(len(self._waiting), MOST_AT_ONCE)):
                self._read(self._waiting.pop(0))
            if seconds > 0 and self._end_pause and self.program:
                self._end_heard_pause()
            if time.monotonic() >= until:
                return
            if not self._waiting and not self._end_pause:
                time.sleep(0.005)

    # What the program told before it gives an answer arrives before the answer.
    def _end_heard_pause(self):
        try:
            self.program.get_child_count()
            while GLib.MainContext.default().iteration(False):
                pass
            if not self._waiting:
                self._end_pause()
        except (GLib.Error, BrokenPipeError):
            pass  # the program has ended

    # Not done by the listener: it is called while a question waits for its answer, and a program
    # that tells something at every question would never let that end.
    def _read(self, event):
        try:
            self.events.append(Event(event.type, bool(event.detail1),
                                     event.source.get_role_name(), event.source.get_name()))
        except GLib.Error:
            pass  # its source has gone

    def wait_for(self, what, look, seconds=300):
        """What `look` finds as soon as it finds anything; `what` says it in words."""
        until = time.monotonic() + seconds
        while time.monotonic() < until:
            try:
                found = look()
            except GLib.Error:
                found = None  # a part went away while it was looked at
            if found:
                return found
            self.listen(0.5 if self._end_pause else 0.1)
        raise Failure(f"{what} (waited {seconds} s)")

    def parts(self, below=None, hidden_too=False):
        """The parts that show at the moment, in the order of the tree."""
        above = below or self.program
        for index in range(above.get_child_count()):
            child = above.get_child_at_index(index)
            if child is None:
                continue
            self.listen(0)
            if hidden_too or child.get_state_set().contains(Atspi.StateType.SHOWING):
                yield Part(child.get_role_name(), child.get_name(), child)
                yield from self.parts(child, hidden_too)

    def find(self, role, name, **where):
        return next((part for part in self.parts(**where)
                     if part.role == role and part.name == name), None)

    def describe(self):
        """What was told last and every part, a line each; those that do not show in brackets."""
        lines = ["Told last:", *(f"  {event}" for event in self.events[-5:]), "The parts:"]
        try:
            self._describe(self.program, 1, lines)
        except GLib.Error as error:
            lines.append(f"(the rest cannot be read: {error.message})")
        return "\n".join(lines)

    def _describe(self, above, depth, lines):
        for index in range(above.get_child_count()):
            part = above.get_child_at_index(index)
            if part is None:
                lines.append("  " * depth + "(no part)")
                continue
            states = part.get_state_set()
            text = f"{part.get_role_name()} '{part.get_name()}'"
            if states.contains(Atspi.StateType.FOCUSED):
                text += " (focus)"
            if not states.contains(Atspi.StateType.SHOWING):
                text = f"[{text}]"
            lines.append("  " * depth + text)
            self._describe(part, depth + 1, lines)
