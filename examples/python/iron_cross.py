#!/usr/bin/python3
"""Iron Cross written in Python: the Field and Place 5, 6 and 8 once a point
is on, called before every roll; the bankroll of every roll comes back as a
NumPy array.

    PYTHONPATH=build/python /usr/bin/python3 examples/python/iron_cross.py
"""
import dicemill

BETS = {"Place 5": 10, "Place 6": 12, "Place 8": 12, "Field": 10}


def iron_cross(table):
    if table.point == 0:
        return
    for bet, amount in BETS.items():
        if table.amount(bet) < amount:
            table.bet(bet, amount - table.amount(bet))


table = dicemill.Table(seed=1, bankroll=2_000)
path = table.play(iron_cross, 100_000)
print(f"{len(path):,} rolls: the bankroll ends at {path[-1]:,.2f}, low {path.min():,.2f}, high {path.max():,.2f}")

# One roll by hand, and what it settled.
table.bet("Place 6", 12)
roll = table.roll(dice=(3, 3))
print(roll.dice, [(s.name, s.outcome, s.net) for s in roll.settlements])
