"""A desktop of its own for one test: display, window manager, message bus, home folder. The user's are not touched."""
import mmap
import os
import shutil
import signal
import struct
import subprocess
import tempfile
import zlib
from pathlib import Path


class Desktop:
    """Use as a context manager. Logs and pictures go into `folder`, which is emptied first."""

    WIDTH, HEIGHT = 1500, 1100

    def __init__(self, folder):
        self.folder = Path(folder)
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir(parents=True)
        self.home = self.folder / "home"
        self.home.mkdir()
        # Names of sockets must be short, so these stand apart.
        self.runtime = Path(tempfile.mkdtemp(prefix="zke2e-"))
        os.chmod(self.runtime, 0o700)
        self._started = []
        self._frame = None

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def _start(self):
        environment = {name: value for name, value in os.environ.items()
                       if not name.startswith(("QT_", "XDG_", "DBUS_", "LC_", "LANG"))}
        environment.update(HOME=str(self.home), XDG_RUNTIME_DIR=str(self.runtime), LC_ALL="C.UTF-8",
                           XDG_CONFIG_HOME=str(self.home / ".config"), XDG_DATA_HOME=str(self.home / ".local/share"),
                           XDG_CACHE_HOME=str(self.home / ".cache"), QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                           QT_QPA_PLATFORM="xcb", GSETTINGS_BACKEND="memory", NO_AT_BRIDGE="0")
        environment.pop("DISPLAY", None)
        environment.pop("WAYLAND_DISPLAY", None)
        self.environment = environment

        reader, writer = os.pipe()
        self.run(["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{self.WIDTH}x{self.HEIGHT}x24", "-fbdir",
                  str(self.runtime), "-nolisten", "tcp", "-noreset"], "display", pass_fds=[writer])
        os.close(writer)
        with os.fdopen(reader) as number:
            display = number.readline().strip()
        if not display:
            raise RuntimeError("the virtual display did not start, see display.log")
        environment["DISPLAY"] = ":" + display

        bus = self.run(["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"], "bus",
                       stdout=subprocess.PIPE)
        environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        self.run(["openbox", "--sm-disable"], "windows")
        # What this process itself asks the desktop goes the same way.
        os.environ.clear()
        os.environ.update(environment)

    def run(self, command, log, **options):
        """Starts a program whose messages go into LOG.log; it ends with the desktop at the latest."""
        with open(self.folder / f"{log}.log", "ab") as messages:
            options.setdefault("stdout", messages)
            process = subprocess.Popen(command, env=self.environment, stderr=messages, stdin=subprocess.DEVNULL,
                                       start_new_session=True, cwd=self.home, **options)
        self._started.append(process)
        return process

    def close(self):
        for process in reversed(self._started):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.send_signal(signal.SIGKILL)
                    process.wait()
            if process.stdout:
                process.stdout.close()
        self._started.clear()
        shutil.rmtree(self.runtime, ignore_errors=True)

    def pixels(self, rect):
        """The red, green and blue bytes of what the screen shows there, as a list of rows."""
        if self._frame is None:
            with open(self.runtime / "Xvfb_screen0", "rb") as file:
                self._frame = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack(">25I", self._frame[:100])
        start = header[0] + header[19] * 12
        line = header[12]
        left, top, width, height = rect
        rows = []
        for y in range(max(0, top), min(self.HEIGHT, top + height)):
            row = self._frame[start + y * line + left * 4: start + y * line + (left + width) * 4]
            colours = bytearray(len(row) // 4 * 3)
            colours[0::3], colours[1::3], colours[2::3] = row[2::4], row[1::4], row[0::4]
            rows.append(bytes(colours))
        return rows

    def screenshot(self, name):
        return self.save(name, self.pixels((0, 0, self.WIDTH, self.HEIGHT)))

    def save(self, name, rows):
        """Writes the rows of pixels as NAME.png; returns its path."""

        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

        size = struct.pack(">IIBBBBB", len(rows[0]) // 3, len(rows), 8, 2, 0, 0, 0)
        path = self.folder / f"{name}.png"
        path.write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", size) +
                         chunk(b"IDAT", zlib.compress(b"".join(b"\0" + row for row in rows))) + chunk(b"IEND", b""))
        return path
