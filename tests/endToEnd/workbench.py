"""The windows of the program under test, in the words of somebody who works with it."""
import re
import subprocess
import xml.etree.ElementTree as xml

from driver import LIMIT, Missed, Program, becomes, click_at, drag, hand, key, wait

MILLIMETRES = re.compile(r"^(-?[\d.,]+), (-?[\d.,]+) mm$")


class Workbench:
    """The main window and what opens from it."""

    def __init__(self, desktop, program, *arguments):
        self.desktop = desktop
        self.program = Program("zkauthor", desktop.run([str(program), *map(str, arguments)], "zkauthor"))
        self.find_window("File")

    def find_window(self, menu):
        """Works with the main window that has a menu of that name: for another language another window takes over."""
        self.window = wait(f"a main window with the menu {menu}", lambda: next(
            (window for window in self.program.children
             if window.role == "frame" and " - zkauthor" in window.name and window.showing and
             any(bar.look("menu item", menu, most=1) for bar in window.look("menu bar", most=1))), None))

    # --- the window ---

    def resize(self, window, left, top, width, height):
        """As by its frame."""
        pattern = re.escape(window.name)

        def number():
            found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{pattern}$"],
                                   capture_output=True, text=True, check=False).stdout.split()
            return found[0] if found else None

        shown = wait(f"{window} on the screen", number)
        hand("windowmove", shown, left, top, "windowsize", shown, width, height, "windowfocus", shown)
        becomes(f"the size of {window}", lambda: window.rect[2:], (width, height))

    def titled(self, pattern, limit=LIMIT):
        wait(f"the title of the window to be like {pattern!r}, it is {self.window.name!r}",
             lambda: re.search(pattern, self.window.name), limit)

    def menu(self, *names):
        """Chooses an entry of the menu bar."""
        bar = self.window.find("menu bar")
        for name in names:
            entry = bar.find("menu item", name)
            if name != names[0]:
                # Across the entry that is open, not past it: a submenu closes when the pointer leaves it.
                x, y = entry.place((0.25, 0.5))
                hand("mousemove", x, y)
            entry.click((0.25, 0.5))
        wait(f"the menu {names[0]} to close", lambda: not bar.look("popup menu"))

    def undo(self, times=1):
        for _ in range(times):
            key("ctrl+z")

    def status(self, text):
        """Waits until the status bar says so, in one of its fields or as a message."""
        wait(f"the status bar to say {text!r}", lambda: self.says(text))

    def says(self, text):
        bar = self.window.find("status bar")
        return text in bar.name or any(text == label.name for label in bar.look("label"))

    # --- palettes ---

    def palette(self, name, shortcut=None):
        """The dock window of that name; with a shortcut it is opened first."""
        if shortcut and not self.window.look("frame", name):
            key(shortcut)
        return self.window.find("frame", name)

    def close_palette(self, name, shortcut):
        key(shortcut)
        self.window.gone("frame", name)

    def form(self, kind):
        """The property palette once its title or its heading names that kind of part."""
        return self.window.find("frame", re.compile(" Properties$"),
                                where=lambda frame: frame.name == f"{kind} Properties" or frame.look("label", kind))

    def section(self, form, name):
        """Opens a section of a form, if it is closed."""
        header = form.find("check box", name)
        if not header.checked:
            header.click((0.5, 0.5))
            wait(f"the section {name} to open", lambda: header.checked)
        return header.parent

    # --- the tree of parts ---

    def part_in_tree(self, label):
        tree = self.window.find("tree", "Parts")
        field = self.window.find("text", "Search parts")
        if field.text != label:
            field.write(label, end=None)
            wait("the search to be entered", lambda: field.text == label)
        return tree.find("table cell", label)

    # --- the scene ---

    @property
    def view(self):
        return self.window.find("layered pane")  # of the tabs, whose page it fills

    def measure(self):
        """Finds out by the status bar where on the screen a millimetre of the scene is."""
        left, top, width, height = self.view.rect
        seen = []
        for x, y in ((left + 10, top + 10), (left + width - 20, top + height - 20)):
            self.step_aside()
            wait("the place of the pointer to go", lambda: not self._pointer())
            hand("mousemove", x, y)
            seen.append(((x, y), wait("the place of the pointer", self._pointer)))
        (x1, y1), (u1, v1) = seen[0]
        (x2, y2), (u2, v2) = seen[1]
        across, down = (x2 - x1) / (u2 - u1), (y2 - y1) / (v2 - v1)
        self._at = lambda u, v: (round(x1 + (u - u1) * across), round(y1 + (v - v1) * down))

    def _pointer(self):
        for label in self.window.find("status bar").look("label"):
            found = MILLIMETRES.match(label.name)
            if found:
                return tuple(float(number.replace(",", ".")) for number in found.groups())
        return None

    def at(self, u, v):
        """Where on the screen that place of the scene is, in millimetres."""
        return self._at(u, v)

    def click_at(self, u, v, times=1, modifier=None):
        click_at(*self.at(u, v), times=times, modifier=modifier)

    def drag_part_to(self, label, u, v):
        drag(self.part_in_tree(label).place((0.3, 0.5)), self.at(u, v))

    def picture(self):
        """What the scene looks like, without the pointer."""
        self.step_aside()
        seen = [None]

        def rests():
            before, seen[0] = seen[0], self.desktop.pixels(self.view.rect)
            return before == seen[0]

        wait("the picture of the scene to rest", rests)
        return seen[0]

    def close_popups(self):
        tabs = self.window.find("page tab list")
        while tabs.look("page tab", description="Pop-up"):
            count = len(tabs.look("page tab"))
            tabs.find("page tab", description="Pop-up").click((0.85, 0.5))  # its button to close
            wait("the tab to close", lambda: len(tabs.look("page tab")) < count)

    def step_aside(self):
        left, top, width, _ = self.window.find("menu bar").rect
        hand("mousemove", left + width - 5, top + 5)

    def same_picture(self, wanted):
        self.step_aside()
        try:
            wait("the scene to look as before", lambda: self.desktop.pixels(self.view.rect) == wanted)
        except Missed:
            self.desktop.save("before", wanted)
            self.desktop.save("after", self.desktop.pixels(self.view.rect))
            raise

    # --- dialogs ---

    def dialog(self, title, role="dialog"):
        return self.program.window(title, role)

    def closed(self, title, role="dialog"):
        wait(f"the {role} {title!r} to close", lambda: not any(
            window.name == title and window.role == role and window.showing for window in self.program.children))

    def answer(self, title, button, role="dialog"):
        self.dialog(title, role).find("push button", button).click()
        self.closed(title, role)

    def choose_file(self, title, path, field="File name:"):
        self.dialog(title).find("text", field).write(str(path), end="Return")
        self.closed(title)


def parts_of(path):
    """The parts in a document on disk by their id: class, values, and the same of their subparts."""
    found = {}
    for part in xml.parse(path).getroot().iter("part"):
        values = {value.get("key"): value.text for value in part.findall("value")}
        values["class"] = part.get("class")
        values["locks"] = part.get("locks") or ""
        found[values.get("id") or part.get("id")] = values
    return found

