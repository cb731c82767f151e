import dicemill

MARTINGALE_SCRIPT = """'Martingale on the Field: $5, doubled after a loss, back to $5 after a win
While
  Chip-Stack #1 is equal to $0
then
  Bet $5 on Chip-Stack #1
When
  Field has won
then
  Bet $5 on Chip-Stack #1
  Go to "bet"
When
  Field has lost
then
  Multiply by 2 for Chip-Stack #1
While
  Chip-Stack #1 is greater than $160
then
  Bet $5 on Chip-Stack #1
Label "bet"
Do this
  Bet 100% of Chip-Stack #1 on Field
"""


def python_martingale():
    """The same Martingale, written in Python."""
    held = {"next": 5, "bankroll": None}

    def strategy(table):
        last = held["bankroll"]
        if last is not None and table.bankroll > last:
            held["next"] = 5
        elif last is not None and table.bankroll < last:
            held["next"] = held["next"] * 2 if held["next"] * 2 <= 160 else 5
        if table.amount("Field") != held["next"]:
            if table.amount("Field"):
                table.remove("Field")  # a winner left standing
            table.bet("Field", held["next"])
        held["bankroll"] = table.bankroll
    return strategy


def test_a_python_martingale_plays_as_the_script_roll_for_roll():
    scripted = dicemill.Table(seed=11, bankroll=5_000)
    scripted.load_script(text=MARTINGALE_SCRIPT)
    by_script = scripted.play(lambda table: None, 3_000)
    by_python = dicemill.Table(seed=11, bankroll=5_000).play(python_martingale(), 3_000)
    assert len(by_python) == 3_000
    assert by_python.tolist() == by_script.tolist()
    assert by_script.min() < 5_000 - 150  # the doubling was reached


def test_a_python_strategy_in_a_run_plays_as_the_script():
    args = dict(rolls=3_000, games=2, seed=11, bankroll=5_000, threads=2, bankroll_path=True)
    by_script = dicemill.run(script_text=MARTINGALE_SCRIPT, **args)
    by_python = dicemill.run(strategy=python_martingale(), **args)
    for script_path, python_path in zip(by_script.pop("bankrollPath"), by_python.pop("bankrollPath")):
        assert python_path.tolist() == script_path.tolist()
    assert by_python["games"] == by_script["games"]


def test_a_strategy_that_raises_stops_the_run():
    def broken(table):
        if table.roll_count == 10:
            raise LookupError("no such bet")
    try:
        dicemill.run(strategy=broken, rolls=1_000)
    except LookupError as e:
        assert "no such bet" in str(e)
    else:
        raise AssertionError("the strategy's exception was lost")
