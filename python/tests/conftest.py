import os
import pathlib
import subprocess

import pytest

SOURCE = pathlib.Path(os.environ.get("DICEMILL_SOURCE_DIR", pathlib.Path(__file__).resolve().parents[2]))
CLI = os.environ.get("DICEMILL_CLI", str(SOURCE / "build" / "dicemill-cli"))


@pytest.fixture
def samples():
    return SOURCE / "samples"


@pytest.fixture
def cli():
    """Runs dicemill-cli with the arguments and input given; its standard output."""
    def run(*args, stdin=None):
        done = subprocess.run([CLI, *map(str, args)], input=stdin, capture_output=True, text=True, check=True)
        return done.stdout
    return run
