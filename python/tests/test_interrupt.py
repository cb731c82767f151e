import signal
import subprocess
import sys
import time

import pytest

# Each call would take minutes; the child says when it is about to start it.
# `id` as the strategy is a builtin: it runs no Python code of its own that
# would notice the signal for the call.
CHILD = """
import signal, dicemill
signal.signal(signal.SIGINT, signal.default_int_handler)  # a background job starts with it ignored
print("started", flush=True)
try:
    {call}
except KeyboardInterrupt:
    print("interrupted", flush=True)
"""


@pytest.mark.parametrize("call", [
    "dicemill.run(rolls=10_000_000, games=1_000, threads=2)",
    "dicemill.run(strategy=id, rolls=100_000_000, games=1_000)",
    "dicemill.run(strategy=lambda table: None, rolls=10_000_000, games=1_000)",
    "dicemill.Table(seed=1).play(id, 10_000_000)",
])
def test_ctrl_c_stops_the_call_and_raises_keyboard_interrupt(call):
    child = subprocess.Popen([sys.executable, "-c", CHILD.format(call=call)], stdout=subprocess.PIPE, text=True)
    try:
        assert child.stdout.readline() == "started\n"
        time.sleep(0.5)
        child.send_signal(signal.SIGINT)
        sent = time.monotonic()
        out, _ = child.communicate(timeout=30)
        assert out == "interrupted\n"
        assert time.monotonic() - sent < 5
    finally:
        child.kill()
