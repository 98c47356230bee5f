"""Mouse and keys of a virtual display, by its test extension and over one connection: starting a program for each input takes
longer than the input."""
import collections
import ctypes
import time

from machine_time import Thread

# How long a program may be at work after an input before the next one comes (seconds), and through how many looks its window's
# thread sleeps when it has come to rest.
Pace = collections.namedtuple("Pace", "patience looks")
CALM = Pace(0.3, 3)  # longer than that nobody holds still
BETWEEN_LOOKS = 0.0007
MODIFIERS = {"ctrl": "Control_L", "shift": "Shift_L", "alt": "Alt_L"}
KEYS_OF_LETTERS = {" ": "space"}
LATEST = 0  # milliseconds that the display waits before it takes an input


def _library(name, results):
    """Functions whose results are not whole numbers are declared by theirs."""
    library = ctypes.CDLL(name)
    for function, result in results.items():
        getattr(library, function).restype = result
    return library


class Display:
    """A connection to one."""

    def __init__(self, name):
        self._xlib = _library("libX11.so.6", {"XOpenDisplay": ctypes.c_void_p, "XStringToKeysym": ctypes.c_ulong,
                                              "XKeysymToKeycode": ctypes.c_ubyte, "XkbKeycodeToKeysym": ctypes.c_ulong})
        self._xtest = _library("libXtst.so.6", {})
        self._display = ctypes.c_void_p(self._xlib.XOpenDisplay(name.encode()))
        if not self._display:
            raise RuntimeError(f"there is no display {name}")
        self._keys = {}

    def close(self):
        self._xlib.XCloseDisplay(self._display)

    def move(self, x, y):
        self._xtest.XTestFakeMotionEvent(self._display, -1, int(x), int(y), LATEST)

    def button(self, number, is_down):
        self._xtest.XTestFakeButtonEvent(self._display, int(number), is_down, LATEST)

    def key(self, code, is_down):
        self._xtest.XTestFakeKeyEvent(self._display, code, is_down, LATEST)

    def settle(self):
        """Returns when the display has given all input to its windows."""
        self._xlib.XSync(self._display, False)

    def codes(self, chord):
        """The keys of a chord as "ctrl+shift+r", in the order in which they go down."""
        if chord not in self._keys:
            *modifiers, name = chord.split("+")
            symbol = self._xlib.XStringToKeysym(KEYS_OF_LETTERS.get(name, name).encode())
            code = self._xlib.XKeysymToKeycode(self._display, ctypes.c_ulong(symbol))
            if not code:
                raise ValueError(f"no key {chord}")
            if self._xlib.XkbKeycodeToKeysym(self._display, code, 0, 0) != symbol and "shift" not in modifiers:
                modifiers.append("shift")
            self._keys[chord] = [*(self.codes(MODIFIERS[modifier])[0] for modifier in modifiers), code]
        return self._keys[chord]


class Hands:
    """Gives input to a program's display; use it as a context. An event is a list of parts, each a list of words; between two of
    them the program may come to rest.

    The words: mousemove X Y, mousedown BUTTON, mouseup BUTTON, sleep SECONDS, type TEXT, key CHORD..., of which the last takes the
    rest of the part."""

    def __init__(self, environment, process):
        self._name = environment["DISPLAY"]
        self._thread = Thread(process, process)  # its first one, which is the window's

    def __enter__(self):
        self._display = Display(self._name)
        self._verbs = {"mousemove": (2, self._display.move), "mousedown": (1, lambda button: self._display.button(button, True)),
                       "mouseup": (1, lambda button: self._display.button(button, False)), "sleep": (1, self._sleep), "type": (1, self._type)}
        return self

    def __exit__(self, *_):
        self._display.close()

    def give(self, parts, pace=CALM):
        for part in parts:
            before = self._thread.figures()
            self._do(list(part))
            self._display.settle()
            self._pause(before, pace)

    def _do(self, words):
        while words:
            verb = words.pop(0)
            if verb == "key":
                for chord in words:
                    self._press(chord)
                return
            count, act = self._verbs[verb]
            act(*words[:count])
            del words[:count]

    def _press(self, chord):
        codes = self._display.codes(chord)
        for code in codes:
            self._display.key(code, True)
        for code in reversed(codes):
            self._display.key(code, False)

    def _type(self, text):
        for letter in text:
            self._press(letter)

    def _sleep(self, seconds):
        self._display.settle()
        time.sleep(seconds)

    def _pause(self, before, pace):
        """Until the window's thread has begun, which its figures show, and has slept through a few looks since."""
        end, quiet, last = time.monotonic() + pace.patience, 0, before
        while quiet < pace.looks and time.monotonic() < end:
            time.sleep(BETWEEN_LOOKS)
            now = self._thread.sleep()
            quiet = quiet + 1 if now is not None and now == last and now != before else 0
            last = now
