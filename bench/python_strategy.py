#!/usr/bin/python3
"""Rolls per second of a strategy written in Python, run by hand:

    PYTHONPATH=build/python /usr/bin/python3 bench/python_strategy.py [ROLLS]

A Pass Line bet with full odds: the strategy reads the point and the Pass
Line bet before every roll and bets when the bet is down (Auto-Play takes the
full odds). It is timed inside run() (Hyper-Drive, the strategy called between
rolls) and at the table (Table.play, every roll a command of the table, told
to its listeners), beside the same strategy as a script; the median of three
takes is printed.
"""
import pathlib
import statistics
import sys
import time

import dicemill

ROLLS = int(sys.argv[1]) if len(sys.argv) > 1 else 1_000_000
SCRIPT = pathlib.Path(__file__).resolve().parents[1] / "samples" / "pass-line-full-odds.txt"
# A run's table has no settings of its own: a one-line script turns Auto-Take on.
FULL_ODDS_ON = "While\n  Next roll is a come-out roll\nthen\n  Set Auto-Take Full Odds on\n"


def pass_line_full_odds(table):
    if table.point == 0 and table.amount(43) == 0:
        table.bet(43, 10)


def python_strategy_in_a_run():
    dicemill.run(strategy=pass_line_full_odds, script_text=FULL_ODDS_ON, rolls=ROLLS)


def python_strategy_at_the_table():
    table = dicemill.Table(seed=1, bankroll=1_000_000, settings={"AutoTakeFullOdds": 1})
    table.play(pass_line_full_odds, ROLLS // 10)


def script_at_the_table():
    table = dicemill.Table(seed=1, bankroll=1_000_000)
    table.load_script(path=str(SCRIPT))
    table.play(lambda table: None, ROLLS // 10)


def script_in_a_run():
    dicemill.run(script=str(SCRIPT), rolls=ROLLS, threads=1)


for name, play, rolls in [("Python strategy, run()", python_strategy_in_a_run, ROLLS),
                          ("script, run()", script_in_a_run, ROLLS),
                          ("Python strategy, Table.play", python_strategy_at_the_table, ROLLS // 10),
                          ("script, Table.play", script_at_the_table, ROLLS // 10)]:
    seconds = []
    for _ in range(3):
        started = time.perf_counter()
        play()
        seconds.append(time.perf_counter() - started)
    print(f"{name:30} {rolls / statistics.median(seconds):>12,.0f} rolls/s")
