"""The Wine prefix of the tests that need a display or end a session: one test at a time has it."""
import contextlib
import fcntl
import os

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
# Long runs have their own beside the tests'.
PREFIX = os.environ.get("BARWRIGHT_E2E_PREFIX", os.path.join(ROOT, "build", "wine-e2e"))


@contextlib.contextmanager
def alone_in_prefix():
    """Waits until no other test uses the prefix: the end of one test's session would be the end of the other's program,
    which then leaves without a word and with any code. Does not nest."""
    os.makedirs(os.path.dirname(PREFIX), exist_ok=True)
    with open(PREFIX + ".session.lock", "w", encoding="utf-8") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        yield PREFIX
