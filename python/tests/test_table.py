import json

import pytest

import dicemill

# A hand of rolls of given dice: a point made with Place 6 won, then a seven-out.
HAND = [("bet", "Pass Line", 10), ("roll", 2, 2), ("bet", "Place 6", 12), ("roll", 3, 3),
        ("roll", 1, 3), ("bet", "Pass Line", 10), ("roll", 5, 5), ("roll", 3, 4)]  # the won $10 stays up: $20


def play_in_cli(cli, folder):
    lines = ["get NoticeMask"]  # marks the end of the start-up's messages
    for step in HAND:
        lines.append(" ".join(map(str, step)) if step[0] == "roll" else f"bet \"{step[1]}\" {step[2]}")
    lines.append("state")
    out = [json.loads(line) for line in cli("play", "--folder", folder, stdin="\n".join(lines) + "\n").splitlines()]
    start = next(i for i, o in enumerate(out) if "setting" in o)
    end = next(i for i, o in enumerate(out) if "state" in o)  # the end of input asks to save
    messages = [(o["message"]["title"], o["message"]["text"]) for o in out[start:end] if "message" in o]
    return messages, out[end]["state"]


def test_rolls_of_given_dice_settle_as_play_does(cli, tmp_path):
    cli_messages, cli_state = play_in_cli(cli, tmp_path / "cli")
    table = dicemill.Table(folder=str(tmp_path / "py"))
    messages, nets = [], []
    for step in HAND:
        if step[0] == "bet":
            table.bet(step[1], step[2])
            messages += [(m.title, m.text) for m in table.messages()]
            continue
        before = table.bankroll
        roll = table.roll(dice=(step[1], step[2]))
        messages += [(m.title, m.text) for m in roll.messages]
        assert roll.dice == (step[1], step[2])
        # What the roll paid and took is what the bankroll moved.
        assert sum(s.net for s in roll.settlements) == pytest.approx(table.bankroll - before)
        nets.append([(s.name, s.outcome, s.net) for s in roll.settlements])
    assert messages == cli_messages
    state = table.state()
    for seeded_from_the_clock in ("lastSeed", "modSeed"):
        state.pop(seeded_from_the_clock), cli_state.pop(seeded_from_the_clock)
    assert state == cli_state
    assert nets[1] == [("Place 6", "win", 14)]
    assert ("Pass Line", "lose", -20) in nets[-1] and ("Place 6", "lose", -12) in nets[-1]


def test_properties_follow_the_table():
    table = dicemill.Table(seed=5, bankroll=1000)
    assert (table.bankroll, table.point, table.roll_count) == (1000, 0, 0)
    table.bet(43, 10)
    assert (table.amount("pass line"), table.rack, table.amount(43)) == (10, 990, 10)
    table.roll(dice=(3, 3))
    assert (table.point, table.dice, table.roll_count) == (6, (3, 3), 1)
    heard = []
    table.on("point", heard.append)
    table.roll(dice=(4, 2))
    assert heard == [0] and table.bankroll == 1010


@pytest.mark.parametrize("call, error, words", [
    (lambda t: t.bet("Plaec 6", 12), ValueError, "no bet's name"),
    (lambda t: t.bet(84, 12), ValueError, "out of range"),
    (lambda t: t.bet(None, 12), TypeError, "id"),
    (lambda t: t.bet("Place 6", -5), ValueError, "negative"),
    (lambda t: t.bet("Place 6", "lots"), ValueError, "not an amount"),
    (lambda t: t.set("NoSuchSetting", 1), dicemill.Unknown, "NoSuchSetting"),
    (lambda t: t.set("NoSuchSetting", 1), KeyError, ""),
    (lambda t: t.set("RngChoice", 99), dicemill.BadValue, ""),
    (lambda t: t.roll(dice=(0, 7)), ValueError, "1..6"),
    (lambda t: t.on("nothing", print), ValueError, "no event"),
    (lambda t: t.atm("borrow", 5), ValueError, "withdraw"),
    (lambda t: t.load_script(text="Bet $5 on Nowhere\n"), dicemill.Refused, "line 1"),
    (lambda t: t.open("/nonexistent/game.gam"), dicemill.Refused, ""),
    (lambda t: dicemill.Table(rng=9), ValueError, "1..8"),
    (lambda t: dicemill.run(games=0), ValueError, "games 0"),
    (lambda t: dicemill.run(seed=2_147_483_647, games=2), ValueError, "beyond the limit"),
    (lambda t: dicemill.run(script="/nonexistent.txt", rolls=10), dicemill.Refused, "/nonexistent.txt"),
    (lambda t: dicemill.advantage({"Vig": "x"}), ValueError, ""),
])
def test_bad_arguments_raise_clear_exceptions(call, error, words):
    with pytest.raises(error) as raised:
        call(dicemill.Table(seed=1))
    assert words in str(raised.value)


def test_a_refusal_carries_the_tables_words():
    table = dicemill.Table(seed=1)
    with pytest.raises(dicemill.Refused) as raised:
        table.bet("Pass Line Odds", 10)  # no point yet
    assert raised.value.text and raised.value.code in ("refused", "not_done")
    assert table.amount("Pass Line Odds") == 0


def test_a_callback_that_raises_ends_only_its_command():
    table = dicemill.Table(seed=1)
    table.on("dice", lambda d1, d2: 1 / 0)
    with pytest.raises(ZeroDivisionError):
        table.roll()
    table.on("dice", None)
    assert table.roll().dice == table.dice


def test_check_script_names_the_line():
    assert dicemill.check_script("Do this\n  Bet $5 on Field\n") == []
    found = dicemill.check_script("Do this\n  Go to \"nowhere\"\n")
    assert len(found) == 1 and found[0]["line"] == 2 and found[0]["text"]


def test_advantage_lists_every_bet():
    rows = dicemill.advantage()
    assert [r["id"] for r in rows] == list(range(1, 84))
    pass_line = next(r for r in rows if r["bet"] == "Pass Line")
    assert pass_line["ev_per_decision"] == pytest.approx(-7 / 495)
