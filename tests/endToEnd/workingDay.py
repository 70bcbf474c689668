#!/usr/bin/python3
"""A working day in short, in the real program on a display of its own: from an empty document to a saved, printed and
recovered one. Run by ctest as endToEnd; by hand: workingDay.py --program build/dev/bin/zkauthor --folder /tmp/day"""
import argparse
import re
import shutil
import signal
import sys
import time
import traceback
from pathlib import Path

from desktop import Desktop


class Day:
    """The chapters in their order; each begins where the one before it ended."""

    def __init__(self, desktop, program, samples):
        self.desktop = desktop
        self.program = program
        self.samples = samples
        self.documents = desktop.home / "Documents"
        self.documents.mkdir()
        self.file = self.documents / "night light.zkdoc"

    def start(self, *arguments):
        self.bench = Workbench(self.desktop, self.program, *arguments)
        return self.bench

    def new_document(self):
        bench = self.start()
        bench.titled("^Untitled - zkauthor")
        bench.resize(bench.window, 30, 40, 1400, 1000)
        bench.measure()
        bench.status("Nothing selected")

    def parts_from_the_tree(self):
        bench = self.bench
        bench.part_in_tree("Battery").click(times=2)
        form = bench.form("Battery")
        bench.status("1 selected")
        bench.titled(r"^Untitled\* ")
        form.find("text", "Name").write("supply", end="Return")
        for label, name, place in (("Switch", "main-switch", (60, 40)), ("LED", "lamp", (200, 40)),
                                   ("LED", "second", (200, 150))):
            bench.drag_part_to(label, *place)
            bench.form(label).find("text", "Name").write(name, end="Return")
        # The battery went into the middle; it is moved away, and moving is one step of undo.
        bench.click_at(150, 100)
        wait("the battery to be selected", lambda: bench.form("Battery").find("text", "Name").text == "supply")
        drag(bench.at(150, 100), bench.at(60, 110))
        bench.click_at(60, 110)
        bench.status("1 selected")
        key("ctrl+z")
        bench.click_at(60, 110)
        bench.status("Nothing selected")
        key("ctrl+shift+z")
        bench.click_at(60, 110)
        bench.status("1 selected")

    def connections(self):
        bench = self.bench
        # One by the menu, one by dragging the wire from the tree onto the scene.
        bench.click_at(60, 40)
        bench.click_at(60, 110, modifier="shift")
        bench.status("2 selected")
        bench.menu("Insert", "Wiring", "Wire")
        bench.form("Wire")
        drag(bench.at(40, 20), bench.at(230, 60))
        bench.status("2 selected")
        bench.drag_part_to("Wire", 130, 60)
        bench.form("Wire").find("text", "Name").write("feed", end="Return")
        key("Escape")

    def property_form(self):
        bench = self.bench
        bench.click_at(200, 40)
        form = bench.form("LED")
        bench.section(form, "Light")
        form.combo("Colour").choose("#ffae1a")
        slider = form.find("slider", "Brightness").click()
        key("Home", *["Right"] * 7)
        wait("the brightness to be 7", lambda: slider.value == 7 and
             form.find("label", "Brightness", description="7"))
        form.find("check box", "Lit at the start").check()
        blinking = form.find("check box", "Blinking")
        form.find("check box", "Blinking").click((0.1, 0.1))
        wait("blinking to be on", lambda: blinking.checked)
        period = form.find("text", "Blink period").write("0.25 * 2", end="Return")
        becomes("the blink period, worked out,", lambda: period.number, 0.5)
        key("Up")
        becomes("the blink period, a step higher,", lambda: period.number, 0.6)
        form.find("check box", "Milky lens").check()

        bench.section(form, "Electrical")
        voltage = form.find("text", "Forward voltage").write("1.8", end="Return")
        form.find("label", "Forward voltage", description="V").click()
        key("Down", "Return")
        form.find("label", "Forward voltage", description="mV")
        becomes("the voltage in millivolts", lambda: voltage.number, 1800)
        form.find("radio button", "10 mm").click((0.2, 0.5))
        wait("the radio button to be chosen", lambda: form.find("radio button", "10 mm").checked)

        bench.section(form, "Label and state")
        form.find("text", "Reference").write("D1")
        form.find("radio button", "Below").click((0.2, 0.5))
        broken = form.find("check box", "Broken").click((0.1, 0.5))
        bench.answer("Change property value", "No", "alert")
        wait("the part to stay whole", lambda: not broken.checked)
        form.find("check box", "Broken").click((0.1, 0.5))
        bench.answer("Change property value", "Yes", "alert")
        wait("the part to be broken", lambda: broken.checked)

        bench.section(form, "General")
        form.find("text", "Title").write("Night lamp")
        form.find("text", "Position, x").write("210")
        form.find("text", "Orientation").write("90", end="Return")
        bench.click_at(210, 40)
        bench.status("1 selected")

    def several_at_once(self):
        bench = self.bench
        bench.click_at(200, 150)
        bench.click_at(210, 40, modifier="shift")
        bench.status("2 selected")
        form = bench.form("LED")
        bench.section(form, "Light")
        lit = form.find("check box", "Lit at the start")
        wait("both kinds to show", lambda: lit.has("INDETERMINATE"))
        bench.section(form, "Electrical")
        current = form.find("text", "Greatest current").write("15", end="Return")
        # Nobody touched what differs.
        bench.section(form, "Light")
        wait("both kinds to show", lambda: form.find("check box", "Lit at the start").has("INDETERMINATE"))
        bench.click_at(200, 150)
        bench.status("1 selected")
        bench.section(form, "Electrical")
        becomes("the current of the second LED", lambda: form.find("text", "Greatest current").number, 15)
        form.find("label", "Forward voltage", description="V")
        key("Escape")

    def locks(self):
        bench = self.bench
        bench.click_at(210, 40)
        palette = bench.palette("Locking", "shift+F4")
        position = palette.find("check box", "Position").check()
        drag(bench.at(210, 40), bench.at(240, 80))
        bench.click_at(240, 80)
        bench.status("Nothing selected")
        wait("nothing to be lockable", lambda: not position.enabled)
        bench.click_at(210, 40)
        bench.status("1 selected")
        wait("the lock to be shown", lambda: position.checked)
        bench.close_palette("Locking", "shift+F4")

    def associations(self):
        bench = self.bench
        bench.drag_part_to("Explanation", 270, 30)
        bench.form("Explanation").find("text", "Name").write("hint", end="Return")
        palette = bench.palette("Associations", "F6")
        palette.find("label", "hint")
        palette.find("tree", "Pop-up").find("table cell", re.compile("^Pop-up: ")).click()
        bench.window.find("page tab list").find("page tab", description="Pop-up")
        bench.part_in_tree("Text").click(times=2)
        bench.form("Text").find("text", "Text").write("Press the switch", end="Return")
        bench.close_popups()
        bench.click_at(210, 40)
        palette.find("label", "Night lamp")
        palette.find("tree", "Subparts").find("table cell", "pins: anode").click()
        bench.window.find("frame", "Pin Properties")
        bench.close_palette("Associations", "F6")

    def advanced(self):
        bench = self.bench
        bench.click_at(200, 150)
        bench.form("LED")
        palette = bench.palette("Advanced", "shift+F6")
        palette.find("text", "Copies").write("2")
        palette.find("text", "Offset right").write("20")
        palette.find("text", "Offset down").write("10 mm")
        palette.find("push button", "Duplicate").click()
        bench.status("2 selected")
        bench.click_at(220, 160)
        bench.status("1 selected")
        palette.combo("Click").choose("Open a link")
        palette.find("text", "Link").write("https://example.org/led", end="Return")
        bench.form("LED").find("text", "Name").write("copy", end="Return")
        bench.close_palette("Advanced", "shift+F6")

    def inspector(self):
        bench = self.bench
        key("shift+F12")
        inspector = bench.dialog("Inspector")
        bench.resize(inspector, 100, 300, 900, 500)
        nodes = inspector.find("tree", "Nodes")
        nodes.find("table cell", "core/scene").click()
        key("asterisk")
        nodes.find("table cell", "lamp").click()
        table = inspector.find("table", "Properties")
        inspector.find("text", "Filter properties").write("title", end=None)
        table.find("table cell", "Night lamp")
        key("Escape")
        bench.closed("Inspector")

    def the_scene(self):
        bench = self.bench
        bench.click_at(10, 190)
        bench.status("Nothing selected")
        bench.window.find("push button", "Scene Properties").click()
        form = bench.form("Scene")
        bench.section(form, "Appearance")
        button = form.find("push button", "Background")
        becomes("the colour of the scene", lambda: button.description, "White")
        button.click()
        key("Right", "Return")
        wait("another colour", lambda: button.description != "White")
        form.find("text", "Background, name of the colour").write("ivory")
        becomes("the colour of the scene", lambda: button.description, "#fffff0")
        form.find("check box", "Show a grid").check()
        bench.section(form, "General")
        form.find("text", "Title").write("Night light", end="Return")
        tabs = bench.window.find("page tab list")
        tabs.find("page tab", "Night light")
        bench.menu("Insert", "New Scene")
        tabs.find("page tab", "scene2")
        bench.measure()
        bench.click_at(100, 100)
        key("ctrl+v")  # what was copied on the other scene
        bench.form("LED")
        bench.menu("Insert", "Delete Scene")
        tabs.gone("page tab", "scene2")
        bench.measure()

    def keyboard_alone(self):
        bench = self.bench
        bench.click_at(200, 150)
        bench.status("1 selected")
        key("ctrl+c", "ctrl+v")
        form = bench.form("LED")
        becomes("the name of the copy", lambda: form.find("text", "Name").text, "second1")
        bench.section(form, "General")
        place = form.find("text", "Position, x")
        becomes("the place of the copy", lambda: round(place.number), 205)
        bench.click_at(205, 155)
        key("shift+Left", "Left")
        becomes("the place of the copy, moved,", lambda: round(place.number), 194)
        key("ctrl+z", "ctrl+z", "Delete")
        bench.status("Nothing selected")
        key("alt+Down", "alt+Down")
        becomes("the part selected", lambda: bench.form("Switch").find("text", "Name").text, "main-switch")

    def debugging(self):
        bench = self.bench
        bench.click_at(60, 40)
        bench.status("1 selected")
        bench.close_palette("Side Pane", "F4")
        palette = bench.palette("Debugging", "F12")
        palette.find("label", re.compile("^main-switch "))
        bench.section(palette, "Commands")
        palette.find("check box", "Record").click()
        log = palette.find("text", "Commands")
        bench.menu("Edit", "Rotate Right")
        palette.find("text", "Filter properties").write("orientation", end=None)
        palette.find("table", "Properties").find("table cell", "90.0", hidden=True)
        wait("the command to be listed", lambda: "orientation" in log.text)
        palette.find("push button", "Save Recording...").click()
        recording = self.documents / "recording.xml"
        bench.choose_file("Save Recording", recording)
        wait("the recording", lambda: recording.exists() and "orientation" in recording.read_text())
        bench.section(palette, "Messages")
        palette.find("push button", "Open Console Window").click()
        bench.program.window(re.compile("Messages"))
        key("alt+F4")
        bench.close_palette("Debugging", "F12")
        bench.palette("Side Pane", "F4")

    def flowchart_strip(self):
        bench = self.bench
        bench.window.find("tool bar", "Flowcharts").combo("How fast the flowcharts run").choose("Fast")
        bench.window.find("check box", "Pause").click()
        wait("the model to pause", lambda: bench.window.find("check box", "Pause").checked)
        bench.window.find("check box", "Pause").click()

    def back_and_forth(self):
        """All that was done is taken back and done again, one step after the other."""
        bench = self.bench
        bench.click_at(10, 190)
        bench.status("Nothing selected")
        undo = bench.window.find("push button", re.compile("^Undo"))
        redo = bench.window.find("push button", re.compile("^Redo"))
        before = bench.picture()
        steps = 0
        while undo.enabled:
            name = undo.name
            key("ctrl+z")
            wait("the step to be taken back", lambda: redo.enabled and redo.name == name.replace("Undo", "Redo"))
            steps += 1
            expect(steps < 200, "an end of what can be taken back")
        bench.titled("^Untitled - ")
        expect(steps > 30, f"more steps than {steps}")
        for _ in range(steps):
            key("ctrl+shift+z")
        wait("everything to be done again", lambda: undo.enabled and not redo.enabled)
        bench.titled(r"^Untitled\* - ")
        bench.close_popups()  # one came into sight with what was edited in it
        bench.click_at(10, 190)
        bench.status("Nothing selected")
        bench.same_picture(before)

    def custom_part(self):
        bench = self.bench
        bench.click_at(210, 40)
        bench.status("1 selected")
        bench.menu("Edit", "Save as Custom Part...")
        dialog = bench.dialog("Add custom part")
        add = dialog.find("push button", "Add")
        expect(not add.enabled, "a name to be asked for")
        dialog.find("text", "Part name:").write("led")
        dialog.find("text", "Part label:").write("Amber lamp")
        dialog.find("text", "Part group:").write("Mine")
        add.click()
        bench.answer("Add custom part", "OK", "alert")  # the name is taken
        dialog.find("text", "Part name:").write("amber-lamp")
        add.click()
        bench.closed("Add custom part")
        bench.drag_part_to("Amber lamp", 120, 150)
        form = bench.form("Amber lamp")
        bench.section(form, "Light")
        becomes("the brightness of the new part", lambda: form.find("slider", "Brightness").value, 7)
        form.find("text", "Name").write("custom", end="Return")

    def saving(self):
        bench = self.bench
        key("Escape")
        key("ctrl+s")
        bench.choose_file("Save As", self.file)
        bench.titled("^night light.zkdoc - ")
        parts = parts_of(self.file)
        expected = {
            "supply": {"class": "electronics/battery"},
            "main-switch": {"class": "electronics/switch"},
            "lamp": {"class": "electronics/led", "title": "Night lamp", "reference": "D1", "color": "#ffae1a",
                     "brightness": "7", "lit": "true", "blinking": "true", "blink-period": "0.6", "lens": "Milky",
                     "forward-voltage": "1.8", "diameter": "0.01", "label-place": "0 0.01", "faulty": "true",
                     "max-current": "0.015", "locks": "position"},
            "second": {"max-current": "0.015", "lit": None},
            "copy": {"click-action": "open link", "click-link": "https://example.org/led"},
            "hint": {"class": "core/info"},
            "feed": {"class": "electronics/wire"},
        }
        for name, values in expected.items():
            for what, value in values.items():
                expect(parts[name].get(what) == value,
                       f"{what} of {name} to be {value} in the file, not {parts[name].get(what)}")

    def page_setup(self):
        bench = self.bench
        bench.menu("File", "Page Setup...")
        dialog = bench.dialog("Page Setup")
        before = self.desktop.pixels(dialog.find("image").rect)
        left = dialog.find("spin button", "Left margin in millimetres").click((0.3, 0.5))
        margin = left.value
        key("Down", "Down")
        becomes("the margin", lambda: left.value, margin - 2)
        dialog.combo("Orientation:").choose("Landscape")
        dialog.find("check box", "Scale to Page Width:").check()
        wait("the preview to change", lambda: self.desktop.pixels(dialog.find("image").rect) != before)
        bench.answer("Page Setup", "Ok")
        bench.menu("File", "Page Setup...")
        dialog = bench.dialog("Page Setup")
        becomes("the margin, as it was set,", lambda: dialog.find("spin button", "Left margin in millimetres").value,
                margin - 2)
        dialog.combo("Landscape")
        bench.answer("Page Setup", "Cancel")

    def pdf(self):
        bench = self.bench
        bench.menu("File", "Print Preview...")
        preview = bench.program.window(re.compile("^Print Preview"))
        preview.find("check box", "Landscape", where=lambda button: button.checked)
        pages = preview.find("label", re.compile(r"^/ \d+$")).name
        key("Escape")
        bench.closed(preview.name)
        target = self.documents / "night light.pdf"
        bench.menu("File", "Export to PDF...")
        bench.choose_file("Export to PDF", target)
        bench.status("Exported night light.pdf")
        content = target.read_bytes()
        expect(content.startswith(b"%PDF-") and content.rstrip().endswith(b"%%EOF"), "a whole PDF file")
        count = len(re.findall(rb"/Type\s*/Page\b", content))
        expect(pages == f"/ {count}", f"as many pages as in the preview ({pages}), not {count}")
        sizes = re.findall(rb"/MediaBox\s*\[\s*0\s+0\s+([\d.]+)\s+([\d.]+)", content)
        expect(sizes and all(float(width) > float(height) for width, height in sizes), f"landscape pages, not {sizes}")
        expect(b"/FontFile" in content, "the letters in it to bring their font along")

    def models_browser(self):
        bench = self.bench
        examples = self.documents / "Examples"
        examples.mkdir()
        shutil.copy(self.samples / "crossing.zkdoc", examples)
        bench.section(bench.palette("Side Pane"), "Models")
        bench.window.find("push button", "Show the documents of one more folder").click()
        bench.choose_file("Add Folder", examples, field="Directory:")
        models = bench.window.find("tree", "Models")
        row = models.find("table cell", re.compile("^crossing"))
        x, y = row.place()
        left, top, _, height = row.rect
        wait("a picture of the document", lambda: len(set(b"".join(self.desktop.pixels(
            (left, top, height, height))))) > 100)
        row.click(times=2)
        bench.titled("^crossing.zkdoc - ")

    def flowchart(self):
        bench = self.bench
        bench.measure()
        resting = bench.picture()
        bench.window.find("tool bar", "Flowcharts").combo("How fast the flowcharts run").choose("Fast")
        run = bench.window.find("check box", "Run flowcharts").click()
        wait("the chart to run", lambda: run.checked)
        left, top = bench.at(255.5 - 3, 75 - 3)
        right, bottom = bench.at(255.5 + 3, 75 + 3)
        lamp = (left, top, right - left, bottom - top)
        dark = self.desktop.pixels(lamp)
        bench.click_at(214, 102)  # the button of those who want to cross
        bench.step_aside()
        wait("the green man to light up", lambda: self.desktop.pixels(lamp) != dark)
        key("F5")
        wait("the chart to stop", lambda: not run.checked)
        bench.undo()  # the speed
        bench.titled("^crossing.zkdoc - ")
        bench.same_picture(resting)

    def back_to_the_document(self):
        bench = self.bench
        bench.menu("File", "Open Recent", re.compile(r"night light\.zkdoc$"))
        bench.titled("^night light.zkdoc - ")
        bench.measure()

    def quit_and_return(self):
        bench = self.bench
        bench.palette("Locking", "shift+F4")
        bench.click_at(210, 40)
        bench.status("1 selected")
        form = bench.form("LED")
        bench.section(form, "General")
        form.find("text", "Title").write("Lamp of the night", end=None)
        key("ctrl+q")  # what is half typed is entered, then asked about
        bench.dialog("Changes not saved", "alert").find("push button", "Save").click()
        becomes("the way in which the program ended", lambda: bench.program.process.poll(), 0)
        expect(parts_of(self.file)["lamp"]["title"] == "Lamp of the night", "the last words in the file")

        bench = self.start(self.file)
        bench.titled("^night light.zkdoc - ")
        bench.measure()
        bench.click_at(10, 190)
        picture = bench.picture()
        before = {name: bench.palette(name).rect for name in ("Side Pane", "Locking")}
        frame = bench.window.rect
        key("ctrl+q")
        becomes("the way in which the program ended", lambda: bench.program.process.poll(), 0)

        bench = self.start()
        becomes("the place of the window", lambda: bench.window.rect, frame)
        for name, rect in before.items():
            becomes(f"the place of the palette {name}", lambda: bench.palette(name).rect, rect)
        bench.part_in_tree("Amber lamp")
        bench.section(bench.palette("Side Pane"), "Models")
        bench.window.find("tree", "Models").find("table cell", re.compile("^crossing"))
        bench.menu("File", "Open Recent", re.compile(r"night light\.zkdoc$"))
        bench.titled("^night light.zkdoc - ")
        bench.measure()
        bench.click_at(10, 190)
        bench.same_picture(picture)
        bench.click_at(210, 40)
        bench.status("1 selected")
        form = bench.form("LED")
        bench.section(form, "Light")
        becomes("the brightness", lambda: form.find("slider", "Brightness").value, 7)
        bench.section(form, "General")
        becomes("the title", lambda: form.find("text", "Title").text, "Lamp of the night")
        key("ctrl+q")
        becomes("the way in which the program ended", lambda: bench.program.process.poll(), 0)

    def crash_and_recovery(self):
        bench = self.bench
        bench.drag_part_to("Buzzer", 120, 70)
        bench.form("Buzzer").find("text", "Name").write("alarm", end="Return")
        bench.click_at(210, 40)
        bench.status("1 selected")
        form = bench.form("LED")
        bench.section(form, "General")
        form.find("text", "Title").write("Saved by a hair", end="Return")
        bench.titled(r"^night light.zkdoc\* - ")
        kept = self.desktop.home / ".local/share/zkauthor/zkauthor/recovery"

        def recovery_file():
            return [file for file in kept.glob("*") if b"Saved by a hair" in file.read_bytes()]

        [left_over] = wait("the changes to be kept", recovery_file)
        bench.click_at(10, 190)
        picture = bench.picture()
        bench.program.process.kill()
        bench.program.ended()
        expect("alarm" not in parts_of(self.file), "the document as it was saved")

        bench = self.start()
        bench.window.find("push button", "Recover").click()
        bench.titled(r"^night light.zkdoc \(recovered\)\* - ")
        bench.window.gone("push button", "Recover")
        bench.measure()
        bench.same_picture(picture)
        bench.click_at(120, 70)
        becomes("the name of the part", lambda: bench.form("Buzzer").find("text", "Name").text, "alarm")
        key("ctrl+s")
        bench.titled("^night light.zkdoc - ")
        parts = parts_of(self.file)
        expect(parts["lamp"]["title"] == "Saved by a hair", "the title that was not saved before the crash")
        expect(parts["alarm"]["class"] == "electronics/buzzer", "the part that was not saved before the crash")
        wait("what was kept to go", lambda: not left_over.exists())

    def another_language(self):
        """The same window speaks German, and writes numbers as Germans do, and then English again."""
        bench = self.bench
        bench.menu("Edit", "Preferences...")
        bench.dialog("Preferences").combo("Language:").choose("Deutsch")
        bench.answer("Preferences", "OK")
        bench.find_window("Datei")
        bench.titled("^night light.zkdoc - ")
        bench.measure()
        bench.click_at(210, 40)
        form = bench.window.find("frame", re.compile("^LED"), where=lambda frame: frame.look("check box", "Licht"))
        bench.section(form, "Licht")
        becomes("the period in German", lambda: form.find("text", "Blinkperiode").text, "0,6")
        bench.menu("Bearbeiten", "Einstellungen...")
        bench.dialog("Einstellungen").combo("Sprache:").choose("British English")
        bench.answer("Einstellungen", "OK")
        bench.find_window("File")
        bench.titled("^night light.zkdoc - ")
        bench.measure()

    CHAPTERS = [new_document, parts_from_the_tree, connections, property_form, several_at_once, locks, associations,
                keyboard_alone, the_scene, advanced,
                inspector, debugging, flowchart_strip, back_and_forth, custom_part, saving,
                page_setup, pdf, models_browser, flowchart, back_to_the_document,
                quit_and_return]

    def run(self, last=None):
        start = time.monotonic()
        for chapter in self.CHAPTERS:
            print(f"{time.monotonic() - start:6.1f} s  {chapter.__name__.replace('_', ' ')}", flush=True)
            chapter(self)
            if chapter.__name__ == last:
                break
        print(f"{time.monotonic() - start:6.1f} s  done", flush=True)


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("--program", required=True, type=Path)
    arguments.add_argument("--folder", required=True, type=Path, help="for logs and pictures; is emptied")
    arguments.add_argument("--until", help="the last chapter to play")
    options = arguments.parse_args()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("stopped"))  # so that nothing that was started stays behind
    samples = Path(__file__).resolve().parents[2] / "samples"
    with Desktop(options.folder.resolve()) as desktop:
        # Not before there is a display and a bus to speak with.
        global Workbench, parts_of, becomes, drag, expect, hand, key, type_text, wait
        from workbench import Workbench, becomes, drag, expect, hand, key, parts_of, type_text, wait
        try:
            Day(desktop, options.program.resolve(), samples).run(options.until)
        except Exception:
            traceback.print_exc()
            print("What the screen shows:", desktop.screenshot("failure"), file=sys.stderr)
            print("What the program said:", desktop.folder / "zkauthor.log", file=sys.stderr)
            return 1
        if options.until:
            desktop.screenshot("until")
    return 0


if __name__ == "__main__":
    sys.exit(main())
