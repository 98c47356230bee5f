"""Starts the viewer on a virtual display and drives it from outside, as a person would."""
import json
import os
import re
import shutil
import subprocess
import tempfile
import time

from PIL import ImageGrab

from wine_session import ROOT, alone_in_prefix

# Seconds that anything may take; on a machine that has much else to do, more.
DEADLINE = int(os.environ.get("BARWRIGHT_E2E_SECONDS", "40"))
# Without a window manager, windows that come and go may leave the keys to none of them: by then they do not come back.
TAKEN_FOR_LOST = 5


def copy_installation(bin_dir, folder):
    """The viewer's program and files of its own, for tests that write in them; the rest leads to BIN_DIR."""
    for name in os.listdir(bin_dir):
        path = os.path.join(bin_dir, name)
        if name == "demo.exe":
            shutil.copy(path, folder)
        elif name in ("cfg", "lang"):
            shutil.copytree(path, os.path.join(folder, name))
        elif os.path.isdir(path) or name.endswith(".dll"):
            os.symlink(path, os.path.join(folder, name))


def edit_file(folder, path, old, new):
    """As an editor does that writes a file of its own and then gives it the other's name."""
    path = os.path.join(folder, *path.split("/"))
    with open(path, encoding="utf-8") as file:
        text = file.read()
    if old not in text:
        raise AssertionError(f"{path} has no {old!r}")
    with open(path + "~", "w", encoding="utf-8") as file:
        file.write(text.replace(old, new))
    os.replace(path + "~", path)


def text_of(folder, language, name):
    """What the language's table has under a name."""
    with open(os.path.join(folder, "lang", language, "viewer.xlf"), encoding="utf-8") as file:
        source, target = re.search(f'name="{name}"><segment><source>([^<]*)</source>(?:<target>([^<]*)</target>)?', file.read()).groups()
    return target or source


class Viewer:
    """One run of the demo. `bin_dir` holds the program; use it as a context."""
    PROGRAM = ("demo.exe", "--size", "1280x800")

    def __init__(self, bin_dir, *arguments, registry=(), memory=("--memory", "none")):
        """`registry`: what the system's registry program is told before, as lists of words. `memory`: where the program
        keeps its settings; without a word about it, it keeps none."""
        self._registry = registry
        self._bin = bin_dir
        self._arguments = (*memory, *arguments) if self.PROGRAM[0] == "demo.exe" else arguments
        self._folder = tempfile.TemporaryDirectory()
        self._record_file = os.path.join(self._folder.name, "record.json")
        self._read = None, None  # which state of the file was read, and what
        self._errors = open(os.path.join(self._folder.name, "errors.txt"), "w+", encoding="utf-8", errors="replace")

    def __enter__(self):
        self._session = alone_in_prefix()
        prefix = self._session.__enter__()
        try:
            self._start(prefix)
        except BaseException:
            self._session.__exit__(None, None, None)
            raise
        try:
            self.begin()
        except BaseException:
            self.__exit__()
            raise
        return self

    def _start(self, prefix):
        read_end, write_end = os.pipe()
        # White where no window is: what is black is a window's.
        self._server = subprocess.Popen(["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1400x900x24", "-nolisten", "tcp", "-noreset", "-wr"],
                                        pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        # The number may come in pieces; the line end closes it.
        with os.fdopen(read_end) as numbers:
            display = numbers.readline().strip()
        if not display:
            raise RuntimeError("Xvfb did not start")
        # A prefix of its own: Wine's desktop belongs to one display at a time.
        # Wine tells of the faults below window procedures that it goes on after; a window is not painted then.
        self._environment = dict(os.environ, DISPLAY=":" + display, BARWRIGHT_WINEPREFIX=prefix, WINEDEBUG="-all,err+seh")
        for words in self._registry:
            subprocess.run([os.path.join(ROOT, "scripts", "wine-run"),
                            os.path.join(self._environment["BARWRIGHT_WINEPREFIX"], "drive_c", "windows", "system32", "reg.exe"), *words],
                           env=self._environment, check=True, stdout=subprocess.DEVNULL)
        self._program = subprocess.Popen(
            [os.path.join(ROOT, "scripts", "wine-run"), os.path.join(self._bin, self.PROGRAM[0]), *self.PROGRAM[1:],
             "--record", self._record_file, *map(str, self._arguments)], env=self._environment, stderr=self._errors)

    def begin(self):
        """What has to happen before the viewer can be used."""
        self.wait_for(lambda record: True)

    def leave(self):
        """Closes the window as a person does and gives the exit code."""
        self.key("alt+F4")
        return self.wait_for_end()

    def errors(self):
        """What the program has written to its standard error."""
        with open(self._errors.name, encoding="utf-8", errors="replace") as file:
            return file.read()

    def wait_for_end(self):
        return self._program.wait(timeout=DEADLINE)

    def __exit__(self, kind=None, *_):
        # The next run would join a server that is still on its way out.
        for option in ("-k", "-w"):
            subprocess.run(["wineserver", option],
                           env=dict(self._environment, WINEPREFIX=self._environment["BARWRIGHT_WINEPREFIX"]))
        self._program.wait()
        self._server.terminate()
        self._server.wait()
        faults = [line for line in self.errors().splitlines() if "ignoring exception" in line]
        self._errors.close()
        self._folder.cleanup()
        self._session.__exit__(None, None, None)
        if faults and kind is None:
            raise AssertionError(f"{len(faults)} faults below window procedures")

    def wait_for(self, condition):
        """The first record that meets the condition; fails when none does in time."""
        end = time.monotonic() + DEADLINE
        record = None
        while time.monotonic() < end:
            if self._program.poll() is not None:
                raise AssertionError(f"the viewer left with {self._program.returncode}")
            record = self._read_record()
            if record is not None and condition(record):
                self.record = record
                return record
            time.sleep(0.05)
        raise AssertionError(f"no record met the condition in {DEADLINE} s; last one: {record and record.get('map', record)}")

    def last_record(self):
        """Of a run that has ended."""
        return self._read_record()

    def _read_record(self):
        """None before the first one and while one is written. It is long: one that has been read is not read again."""
        try:
            status = os.stat(self._record_file)
            stamp = (status.st_ino, status.st_mtime_ns, status.st_size)
            if stamp != self._read[0]:
                with open(self._record_file, encoding="utf-8") as file:
                    self._read = stamp, json.load(file)
            return self._read[1]
        except (FileNotFoundError, json.JSONDecodeError):
            return None

    def wait_until(self, condition, what, pause=0.1, seconds=DEADLINE):
        end = time.monotonic() + seconds
        while not condition():
            if time.monotonic() > end:
                raise AssertionError(f"not within {seconds} s: {what}")
            time.sleep(pause)

    def _xdotool(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self._environment, check=True)

    def act(self, *words):
        """Input in the words of xdotool, whatever comes of it."""
        self._xdotool(*words)

    @property
    def environment(self):
        """What other programs need that use its display."""
        return self._environment

    @property
    def record_file(self):
        return self._record_file

    @property
    def display_server(self):
        """Its process."""
        return self._server.pid

    def has_left(self):
        return self._program.poll() is not None

    def click(self, x, y):
        self._xdotool("mousemove", x, y, "sleep", 0.1, "click", 1)

    def elements(self):
        def walk(element):
            yield element
            for child in element.get("children", []):
                yield from walk(child)

        for category in self.record["frame"]["ribbon"]["categories"]:
            for panel in category["panels"]:
                for element in panel["elements"]:
                    yield from walk(element)

    def id_of(self, keyword):
        return next(entry["id"] for entry in self.record["frame"]["registry"] if entry["keyword"] == keyword)

    def place_of(self, keyword):
        """Left, top, right, bottom of the command's element on the screen."""
        wanted = self.id_of(keyword)
        # A command may have elements in categories that are not shown: they have no place.
        left, top, right, bottom = next(e["rect"] for e in self.elements() if e["id"] == wanted and e["rect"][2] > e["rect"][0])
        bar_left, bar_top = self.record["ribbonOnScreen"][:2]
        return bar_left + left, bar_top + top, bar_left + right, bar_top + bottom

    def _middle(self, keyword):
        left, top, right, bottom = self.place_of(keyword)
        return (left + right) // 2, (top + bottom) // 2

    def click_command(self, keyword):
        """Clicks the middle of the command's element in the ribbon."""
        self.click(*self._middle(keyword))

    def hover_command(self, keyword):
        self.hover(*self._middle(keyword))

    def hover(self, x, y):
        # Two moves: the first one may only bring the pointer into the window.
        self._xdotool("mousemove", x - 2, y, "sleep", 0.1, "mousemove", x, y)

    def right_click_command(self, keyword):
        self.hover_command(keyword)
        self._xdotool("sleep", 0.1, "click", 3, "sleep", 0.3)

    def press_command(self, keyword):
        self.hover_command(keyword)
        self._xdotool("sleep", 0.1, "mousedown", 1)

    def press(self, x, y):
        self._xdotool("mousemove", x, y, "sleep", 0.1, "mousedown", 1)

    def move(self, x, y):
        self._xdotool("mousemove", x, y)

    def drag(self, x, y, to_x, to_y):
        """In steps, as a hand does."""
        self.press(x, y)
        for step in range(1, 6):
            self._xdotool("mousemove", x + (to_x - x) * step // 5, y + (to_y - y) * step // 5, "sleep", 0.05)
        self.release()

    def release(self):
        self._xdotool("mouseup", 1)

    def open_menu(self, keyword):
        """Clicks the arrow: at the right end of a row, at the lower end of a large button."""
        left, top, right, bottom = self.place_of(keyword)
        if right - left > bottom - top:
            self.click(right - 6, (top + bottom) // 2)
        else:
            self.click((left + right) // 2, bottom - 6)

    def double_click(self, x, y):
        self._xdotool("mousemove", x, y, "sleep", 0.1, "click", "--repeat", 2, "--delay", 60, 1)

    def tab_middle(self, index):
        left, top, right, bottom = self.record["tabsOnScreen"][index]
        return (left + right) // 2, (top + bottom) // 2

    def open_quick_access_menu(self):
        """Clicks the arrow at the end of the quick access toolbar."""
        _, top, right, bottom = self.record["quickAccessOnScreen"]
        self.click(right - 5, (top + bottom) // 2)

    def _wait_for_keyboard(self):
        """Between two windows, as when a message has gone, no one has the keys for a moment. A dialog that is shown has them
        a moment later: one that goes before it had them leaves Wine without any."""
        def is_ours():
            return bool(self._tell("getwindowfocus", "getwindowpid"))

        def has_keys():
            if not is_ours():
                return False
            dialog = (self._read_record() or {}).get("dialog")
            return dialog is None or self._corner_of_focus() == dialog["captionOnScreen"][:2]
        try:
            self.wait_until(has_keys, "a window has the keys", pause=0.02, seconds=TAKEN_FOR_LOST)
        except AssertionError:
            # As a person does when nothing comes of the keys; said, because it is not to happen often.
            print("the keys were nobody's until a click", flush=True)
            left, top, right, _ = ((self._read_record() or {}).get("dialog") or {}).get("captionOnScreen", self.record["frameOnScreen"])
            self.click((left + right) // 2, top + 10)
            try:
                self.wait_until(has_keys, "a window has the keys", pause=0.02, seconds=TAKEN_FOR_LOST)
            except AssertionError:
                # Wine takes the window for the foremost already and asks for nothing. A window manager, which is not here,
                # gives the keys to what is clicked.
                self._xdotool("windowfocus", self.windows(".+")[-1])
                self.wait_until(is_ours, "a window of the program has the keys", pause=0.02)

    def _corner_of_focus(self):
        """The left upper one on the screen, of the window that has the keys."""
        words = dict(word.split("=") for word in self._tell("getwindowfocus", "getwindowgeometry", "--shell"))
        return [int(words[axis]) for axis in ("X", "Y") if axis in words]

    def wait_for_message(self, *titles, windows=2):
        """Until so many windows are shown under one of the titles, and the uppermost of them has the keys: Wine takes a
        change of the focus that it hears of when the message has gone already for the loss of it."""
        def has_keys():
            shown = max((self.windows(title) for title in titles), key=len)
            return len(shown) >= windows and self._tell("getwindowfocus") == shown[-1:]
        self.wait_until(has_keys, "a message is shown", pause=0.02)

    def key(self, *names):
        self._wait_for_keyboard()
        self._xdotool("key", *names)

    def write(self, text):
        self._wait_for_keyboard()
        self._xdotool("type", "--delay", 30, text)

    def windows(self, title):
        """Names the shown windows with exactly this title, the uppermost last."""
        return self._tell("search", "--onlyvisible", "--name", f"^{title}$")

    def corner_of_window(self, title):
        """Of the uppermost shown window with this title, on the screen."""
        told = dict(line.split("=") for line in self._tell("getwindowgeometry", "--shell", self.windows(title)[-1]))
        return int(told["X"]), int(told["Y"])

    def _tell(self, *words):
        """What xdotool answers; nothing where it cannot."""
        told = subprocess.run(["xdotool", *words], env=self._environment, capture_output=True, text=True)
        return told.stdout.split() if told.returncode == 0 else []

    def wheel(self, x, y, steps):
        """Turns the wheel over a point: away from the person for positive steps."""
        self._xdotool("mousemove", x, y, "sleep", 0.2, "click", "--repeat", abs(steps), "--delay", 5, 4 if steps > 0 else 5)

    def look(self):
        """What the screen shows now, quickly."""
        return ImageGrab.grab(xdisplay=self._environment["DISPLAY"]).convert("RGB")

    def look_until(self, condition, seconds=DEADLINE):
        """Looks in a row until one meets the condition; each that differs from the one before it."""
        looks = []
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            look = self.look()
            if not looks or look.tobytes() != looks[-1].tobytes():
                looks.append(look)
            if condition(look):
                return looks
        raise AssertionError(f"not seen within {seconds} s")

    def settled_look(self):
        """What the screen shows when it has stopped changing."""
        before, now = None, self.look()
        while before is None or before.tobytes() != now.tobytes():
            time.sleep(0.4)
            before, now = now, self.look()
        return now

    def picture(self, path):
        subprocess.run(["import", "-window", "root", path], env=self._environment, check=True)
        return path
