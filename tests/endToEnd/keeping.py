"""The chapters of the day in which a document and what belongs to it is kept, printed, left and come back to."""
import re
import shutil

from driver import becomes, expect, key, wait
from editing import WINDOW
from workbench import parts_of


class Keeping:
    """Each chapter begins where the one before it ended."""

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
        bench.program.process.kill()
        bench.program.ended()
        expect("alarm" not in parts_of(self.file), "the document as it was saved")

        bench = self.start()
        bench.window.find("push button", "Recover").click()
        bench.titled(r"^night light.zkdoc \(recovered\)\* - ")
        bench.window.gone("push button", "Recover")
        bench.resize(bench.window, *WINDOW)
        bench.measure()
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
