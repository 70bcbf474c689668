"""Finds the controls of a program as a screen reader does, by role and name, and uses them as a hand does: with real
events of mouse and keyboard. Whatever is awaited has a time limit; a Missed tells what it was."""
import collections
import re
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

LIMIT = 30.0
PAUSE = 0.02
SETTLING = 0.06  # what is still for so long has come to the end of its animation


class Missed(Exception):
    """What was awaited did not come."""


def expect(true, what):
    """What must be so already now."""
    if not true:
        raise Missed(f"expected {what}")


def wait(what, probe, limit=LIMIT):
    """Asks the probe until it answers with something true, and returns that. What it is may be a function too."""
    end = time.monotonic() + limit
    while True:
        try:
            answer = probe()
        except GLib.Error:  # what was looked at has gone meanwhile
            answer = None
        if answer:
            return answer
        if time.monotonic() > end:
            raise Missed(f"waited {limit:.0f} s for {what() if callable(what) else what}")
        time.sleep(PAUSE)


def becomes(what, probe, wanted, limit=LIMIT):
    """Asks until the answer is the wanted one."""
    seen = [None]

    def ask():
        seen[0] = probe()
        return seen[0] == wanted

    try:
        wait(what, ask, limit)
    except Missed:
        raise Missed(f"waited {limit:.0f} s for {what} to become {wanted!r}, it is {seen[0]!r}") from None


def hand(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


def key(*names):
    hand("key", "--clearmodifiers", *names)


def type_text(text):
    hand("type", "--delay", "4", "--", text)


DOUBLE_CLICK = 0.5
_last_press = (0.0, (0, 0))


def press_at(x, y, *events):
    """Moves to the place and lets the buttons do what is said; never the second half of a double click by accident."""
    global _last_press
    when, (last_x, last_y) = _last_press
    if abs(x - last_x) < 12 and abs(y - last_y) < 12:
        time.sleep(max(0.0, when + DOUBLE_CLICK - time.monotonic()))
    hand("mousemove", x, y, *events)
    _last_press = time.monotonic(), (x, y)


def click_at(x, y, button=1, times=1, modifier=None):
    press_at(x, y, *(["keydown", modifier] if modifier else []), "click", "--repeat", times, "--delay", 40, button,
             *(["keyup", modifier] if modifier else []))


def matches(pattern, text):
    return pattern.search(text) is not None if isinstance(pattern, re.Pattern) else pattern == text


# What can hold very many things: looked into only by who starts there.
CLOSED = {"tree", "table", "menu bar", "combo box", "list"}
# What holds nothing.
LEAVES = {"label", "push button", "radio button", "separator", "slider", "image", "scroll bar", "table cell"}


class Control:
    """One thing that a screen reader can name. Asks anew every time: nothing here is remembered."""

    def __init__(self, accessible):
        self.accessible = accessible

    name = property(lambda self: self.accessible.get_name() or "")
    description = property(lambda self: self.accessible.get_description() or "")
    role = property(lambda self: self.accessible.get_role_name())
    parent = property(lambda self: Control(self.accessible.get_parent()))

    def __str__(self):
        try:
            return f"{self.role} \"{self.name}\" {self.rect}"
        except GLib.Error:
            return "a control that is gone"

    @property
    def rect(self):
        extents = self.accessible.get_extents(Atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    def has(self, state):
        return self.accessible.get_state_set().contains(getattr(Atspi.StateType, state))

    showing = property(lambda self: self.has("SHOWING"))
    enabled = property(lambda self: self.has("ENABLED"))
    checked = property(lambda self: self.has("CHECKED"))
    focused = property(lambda self: self.has("FOCUSED"))

    @property
    def text(self):
        """What stands in a field."""
        return Atspi.Text.get_text(self.accessible, 0, Atspi.Text.get_character_count(self.accessible))

    @property
    def number(self):
        """The number that stands in a field."""
        found = re.match(r"-?[\d.]+", self.text)
        return float(found[0]) if found else None

    @property
    def value(self):
        return Atspi.Value.get_current_value(self.accessible)

    @property
    def label(self):
        """The label that belongs to it: a combo box has its choice for a name."""
        for relation in self.accessible.get_relation_set():
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
                return relation.get_target(0).get_name()
        return ""

    @property
    def children(self):
        found = [self.accessible.get_child_at_index(i) for i in range(self.accessible.get_child_count())]
        return [Control(child) for child in found if child]

    def walk(self, hidden=False):
        """This and what is on view below it with their roles, level by level: what is asked for mostly lies near."""
        pending = collections.deque([self])
        while pending:
            control = pending.popleft()
            try:
                role = control.role
                yield control, role
                if role in LEAVES or (role in CLOSED and control is not self):
                    continue
                pending += [child for child in control.children if hidden or child.showing]
            except GLib.Error:  # it has gone meanwhile
                continue

    def look(self, role=None, name=None, description=None, where=None, hidden=False, most=None):
        """All that fit, or as many as asked for."""
        found = []
        for control, its_role in self.walk(hidden):
            try:
                if ((role is None or its_role == role) and (name is None or matches(name, control.name)) and
                        (description is None or matches(description, control.description)) and
                        (where is None or where(control))):
                    found.append(control)
                    if len(found) == most:
                        break
            except GLib.Error:
                continue
        return found

    def find(self, role=None, name=None, limit=LIMIT, **more):
        """Waits until there is such a control below this one."""

        def text():
            return " ".join(str(part) for part in [role or "something", f"named {name!r}" if name else "", more or "",
                                                   f"in {self}"] if part)

        return wait(text, lambda: self.look(role, name, most=1, **more), limit)[0]

    def combo(self, label, **more):
        """The combo box with that label, or that description where it has none."""
        return self.find("combo box", where=lambda box: label in (box.label, box.name, box.description), **more)

    def choose(self, item):
        """Opens this combo box and clicks on one of its choices."""
        self.click()
        choices = self.find("list")
        choices.find("list item", item).click()
        self.gone("list")
        return self

    def gone(self, role=None, name=None, **more):
        wait(f"{role} {name!r} to go", lambda: not self.look(role, name, most=1, **more))

    def lines(self, indent=0):
        """All that a screen reader would find on view here, a line each."""
        try:
            yield f"{' ' * indent}{self} {self.description}{' (checked)' if self.checked else ''}"
            for child in self.children:
                if child.showing:
                    yield from child.lines(indent + 1)
        except GLib.Error:
            return

    # --- the hand ---

    def _clip(self):
        """The part of this control that the scroll areas around it leave on view."""
        left, top, width, height = self.rect
        right, bottom = left + width, top + height
        area, around = None, self.parent
        while around.accessible and around.role not in ("application", "frame", "dialog", "popup menu", "combo box"):
            x, y, w, h = around.rect
            if w > 0 and h > 0:
                if x > left or y > top or x + w < right or y + h < bottom:
                    area = area or around
                left, top, right, bottom = max(left, x), max(top, y), min(right, x + w), min(bottom, y + h)
            around = around.parent
        return (left, top, right - left, bottom - top), area

    def reveal(self):
        """Turns the wheel until the whole of it is on view, or its middle at least. Returns the part that is."""
        for _ in range(60):
            (left, top, width, height), area = self._clip()
            x, y, w, h = self.rect
            middle = top <= y + h // 2 < top + height and left <= x + w // 2 < left + width
            if not area or (middle and height >= min(h, 16)):
                return left, top, width, height
            ax, ay, aw, ah = area.rect
            hand("mousemove", ax + 2, ay + ah // 2, "click", 5 if y + h // 2 > ay + ah // 2 else 4)
            before = self.rect
            try:
                wait("the wheel to scroll", lambda: self.rect != before, 1)
            except Missed:
                return left, top, width, height
        return self._clip()[0]

    def place(self, at=(0.5, 0.5)):
        wait(f"{self} to be on view", lambda: self.showing and self.rect[2] > 0 and self.rect[3] > 0)
        seen = [None]

        def rests():
            before, seen[0] = seen[0], (self.rect, self.reveal())
            if before == seen[0]:
                return True
            time.sleep(SETTLING)
            return False

        wait(f"{self} to stand still", rests)
        left, top, width, height = seen[0][1]
        return round(left + width * at[0]), round(top + height * at[1])

    def click(self, at=(0.5, 0.5), button=1, times=1, modifier=None):
        wait(f"{self} to be enabled", lambda: self.enabled)
        click_at(*self.place(at), button, times, modifier)
        return self

    def write(self, text, end="Tab"):
        """Puts the text in place of what stands in the field."""
        self.click()
        wait(f"{self} to have the keyboard", lambda: self.focused)
        key("ctrl+a")
        type_text(text)
        if end:
            key(end)
        return self

    def check(self, on=True):
        if self.checked != on:
            self.click(at=(0.0, 0.5) if self.rect[2] < 20 else (8 / self.rect[2], 0.5))
            wait(f"{self} to be {'checked' if on else 'unchecked'}", lambda: self.checked == on)
        return self


def drag(start, end, steps=8):
    """Presses at the first place, moves in small steps, lets go at the second."""
    press_at(*start, "mousedown", 1)
    for step in range(1, steps + 1):
        hand("mousemove", *[round(a + (b - a) * step / steps) for a, b in zip(start, end)])
        time.sleep(PAUSE)
    press_at(*end, "mouseup", 1)


class Program(Control):
    """The running program; its children are its windows."""

    def __init__(self, name, process):
        self.process = process

        def application():
            if process.poll() is not None:
                raise Missed(f"{name} ended with {process.returncode} instead of starting")
            desktop = Atspi.get_desktop(0)
            for i in range(desktop.get_child_count()):
                child = desktop.get_child_at_index(i)
                if child and child.get_name() == name and child.get_process_id() == process.pid:
                    return child
            return None

        super().__init__(wait(f"{name} to appear", application, 60))
        self.accessible.set_cache_mask(Atspi.Cache.NONE)

    def window(self, name, role=None, limit=LIMIT):
        def find():
            for window in self.children:
                if matches(name, window.name) and window.showing and (role is None or window.role == role):
                    return window
            return None

        return wait(f"a window named {name!r}, there are {[str(w) for w in self.children]}", find, limit)

    def ended(self, limit=LIMIT):
        return wait("the program to end", lambda: self.process.poll() is not None, limit)
