"""The chapters of the day in which a document is made."""
import re

from driver import becomes, drag, expect, key, wait

WINDOW = (30, 40, 1400, 1000)


class Editing:
    """Each chapter begins where the one before it ended."""

    def new_document(self):
        bench = self.start()
        bench.titled("^Untitled - zkauthor")
        bench.resize(bench.window, *WINDOW)
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
        form.find("push button", "Unit of Forward voltage", description="V").click()
        key("Down", "Return")
        form.find("push button", "Unit of Forward voltage", description="mV")
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
        form.find("push button", "Unit of Forward voltage", description="V")
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
        becomes("the colour of the scene", lambda: button.description, "White, #fffff0")
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
