#!/usr/bin/python3
"""A working day in short, in the real program on a display of its own: from an empty document to a saved, printed and
recovered one. Run by ctest as endToEnd; by hand: workingDay.py --program build/dev/bin/zkauthor --folder /tmp/day"""
import argparse
import signal
import sys
import time
import traceback
from pathlib import Path

from desktop import Desktop
from editing import Editing
from keeping import Keeping
from workbench import Workbench


class Day(Editing, Keeping):
    """The chapters in their order."""

    def __init__(self, desktop, program, samples):
        self.desktop = desktop
        self.program = program
        self.bench = None
        self.samples = samples
        self.documents = desktop.home / "Documents"
        self.documents.mkdir()
        self.file = self.documents / "night light.zkdoc"

    def start(self, *arguments):
        self.bench = Workbench(self.desktop, self.program, *arguments)
        return self.bench

    CHAPTERS = """new_document parts_from_the_tree connections property_form several_at_once locks associations
        keyboard_alone the_scene advanced inspector debugging flowchart_strip back_and_forth custom_part saving
        page_setup pdf models_browser flowchart back_to_the_document crash_and_recovery
        another_language quit_and_return""".split()

    def write_controls(self):
        path = self.desktop.folder / "controls.txt"
        path.write_text("\n".join(self.bench.program.lines()) if self.bench else "No window was found.\n")
        return path

    def run(self, last=None):
        start = time.monotonic()
        for chapter in self.CHAPTERS:
            print(f"{time.monotonic() - start:6.1f} s  {chapter.replace('_', ' ')}", flush=True)
            getattr(self, chapter)()
            if chapter == last:
                break
        print(f"{time.monotonic() - start:6.1f} s  done", flush=True)


def main():
    arguments = argparse.ArgumentParser(description=__doc__)
    arguments.add_argument("--program", required=True, type=Path)
    arguments.add_argument("--folder", required=True, type=Path, help="for logs and pictures; is emptied")
    arguments.add_argument("--until", choices=Day.CHAPTERS, metavar="CHAPTER",
                           help="the last chapter to play")
    options = arguments.parse_args()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("stopped"))  # so that nothing that was started stays behind
    samples = Path(__file__).resolve().parents[2] / "samples"
    with Desktop(options.folder.resolve()) as desktop:
        day = Day(desktop, options.program.resolve(), samples)
        try:
            day.run(options.until)
        except Exception:
            traceback.print_exc()
            if day.bench and day.bench.program.process.poll() is not None:
                print("The program ended with", day.bench.program.process.returncode, file=sys.stderr)
            print("What the screen shows:", desktop.screenshot("failure"), file=sys.stderr)
            print("What a screen reader finds:", day.write_controls(), file=sys.stderr)
            print("What the program said:", desktop.folder / "zkauthor.log", file=sys.stderr)
            return 1
        if options.until:
            desktop.screenshot("until")
    return 0


if __name__ == "__main__":
    sys.exit(main())
