"""What of a wait is the program's own, and what the machine's, which had no processor for it.

The kernel counts for each thread how long it stood ready and got none (the second figure of its `schedstat`). What the
program's threads and the two servers that they wait for stood so is taken off a wait. A program that hangs asks for no
processor: nothing is taken off for it, however much the machine has to do.
"""
import bisect
import os
import threading
import time

PERIOD = 0.1  # seconds between two looks
LOOKS_BETWEEN_COUNTS = 20


class Ledger:
    """Of looks at some threads one after the other: for how long one of them at least stood ready without a processor."""

    def __init__(self):
        self._earlier = {}
        self._times = []
        self._sums = []

    def add(self, when, ready):
        """`ready`: of each thread how many seconds it stood so since it began. Where several do at one time, the time
        counts once: of each look the thread that waited longest."""
        longest = max((seconds - self._earlier.get(thread, seconds) for thread, seconds in ready.items()), default=0)
        since = when - self._times[-1] if self._times else 0
        self._earlier = dict(ready)
        self._times.append(when)
        self._sums.append((self._sums[-1] if self._sums else 0) + min(longest, since))

    def starved(self, began, ended):
        """Seconds between two times (of the same clock); only looks inside count."""
        first, last = bisect.bisect_left(self._times, began), bisect.bisect_right(self._times, ended) - 1
        return self._sums[last] - self._sums[first] if last > first else 0


def own_part(wait, starved):
    """Of a wait (both in milliseconds) what the program answers for."""
    return max(0, wait - starved)


class Thread:
    """Of a process; its files stay open, because they are read often."""

    def __init__(self, process, number):
        self._files = {}
        for name in ("schedstat", "stat"):
            self._files[name] = os.open(f"/proc/{process}/task/{number}/{name}", os.O_RDONLY)

    def __del__(self):
        for file in self._files.values():
            os.close(file)

    def figures(self):
        """In nanoseconds: how long it ran, how long it stood ready and got no processor; None when it is gone."""
        try:
            ran, ready, _ = os.pread(self._files["schedstat"], 100, 0).split()
            return int(ran), int(ready)
        except (OSError, ValueError):
            return None

    def ready_seconds(self):
        """How long it stood ready and got no processor, so far; None when it is gone."""
        figures = self.figures()
        return figures and figures[1] / 1e9

    def sleep(self):
        """The same from one call to the next while it sleeps without a break; None while it runs or stands ready."""
        try:
            state = os.pread(self._files["stat"], 1000, 0).rsplit(b")", 1)[1].split()[0]
        except (OSError, IndexError):
            return "for ever"
        return self.figures() if state == b"S" else None


def threads_of(process):
    try:
        return [int(thread) for thread in os.listdir(f"/proc/{process}/task")]
    except OSError:
        return []


def _read(process, name):
    try:
        with open(f"/proc/{process}/{name}", "rb") as file:
            return file.read()
    except OSError:
        return b""


def program_of(record_file):
    """The process of the program that writes this record; None when there is none."""
    folder = os.path.basename(os.path.dirname(record_file)).encode()
    found = [int(process) for process in filter(str.isdigit, os.listdir("/proc"))
             if b"demo.exe" in _read(process, "cmdline").split(b"\0")[0] and folder in _read(process, "cmdline")]
    return max(found, default=None)  # a shell that starts it comes first


def server_of(prefix):
    """The process of the Wine server of a prefix."""
    wanted = b"WINEPREFIX=" + prefix.encode()
    return next((int(process) for process in filter(str.isdigit, os.listdir("/proc"))
                 if _read(process, "comm").startswith(b"wineserver") and wanted in _read(process, "environ").split(b"\0")), None)


class MachineTime:
    """Reads the ledger of some processes in a thread of its own; use it as a context."""

    def __init__(self, *processes):
        self._processes = [process for process in processes if process]
        self._ledger = Ledger()
        self._ends = threading.Event()
        self._thread = threading.Thread(target=self._run, daemon=True)

    def __enter__(self):
        self._thread.start()
        return self

    def __exit__(self, *_):
        self._ends.set()
        self._thread.join()

    def _run(self):
        threads = {}
        looks = 0
        while not self._ends.wait(PERIOD):
            if looks % LOOKS_BETWEEN_COUNTS == 0:
                self._count(threads)
            looks += 1
            ready = {number: thread.ready_seconds() for number, thread in threads.items()}
            gone = [number for number, seconds in ready.items() if seconds is None]
            for number in gone:
                del threads[number], ready[number]
            self._ledger.add(time.time(), ready)

    def _count(self, threads):
        """Threads come and go."""
        for process in self._processes:
            for number in threads_of(process):
                if number not in threads:
                    try:
                        threads[number] = Thread(process, number)
                    except OSError:
                        pass  # it has gone meanwhile

    def own_part(self, wait):
        """Of a wait as the viewer's watchman writes it."""
        starved = self._ledger.starved(wait["began"] / 1000, wait["ended"] / 1000)
        return own_part(wait["wait"], round(starved * 1000))
