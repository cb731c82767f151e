import json
import threading

import numpy

import dicemill


def test_run_reports_exactly_as_the_command_line(cli, samples):
    script = samples / "iron-cross.txt"
    args = dict(rolls=5_000, games=3, seed=7, threads=2, bankroll=300, stop_at_ruin=True)
    text = cli("run", "--script", script, "--rolls", 5000, "--games", 3, "--seed", 7, "--threads", 2,
               "--bankroll", 300, "--stop-at-ruin", "--json", "--quiet")
    assert dicemill.run_json(script=str(script), **args) == text
    assert dicemill.run(script=str(script), **args) == json.loads(text)
    # The text form given directly plays the same games.
    games = dicemill.run(script_text=script.read_text(), **args)["games"]
    assert games == json.loads(text)["games"]


def test_bankroll_path_holds_every_roll_of_every_game(samples):
    report = dicemill.run(script=str(samples / "field-martingale.txt"), rolls=2_000, games=2, seed=3,
                          bankroll_path=True)
    for game, path in zip(report["games"], report["bankrollPath"]):
        assert isinstance(path, numpy.ndarray) and path.dtype == numpy.float64
        assert len(path) == game["rolls"] + 1
        assert (path[0], path[-1]) == (game["bankroll"]["start"], game["bankroll"]["end"])
        assert (path.max(), path.min()) == (game["bankroll"]["high"], game["bankroll"]["low"])


def test_runs_on_two_threads_leave_python_running():
    # Runs that kept the GIL would leave this thread's loop no time at all.
    workers = [threading.Thread(target=dicemill.run, kwargs=dict(rolls=2_000_000, threads=1)) for _ in range(2)]
    for worker in workers:
        worker.start()
    counted = 0
    while any(worker.is_alive() for worker in workers):
        counted += 1
    for worker in workers:
        worker.join()
    assert counted > 10_000
