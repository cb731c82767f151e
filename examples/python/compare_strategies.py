#!/usr/bin/python3
"""Three sample strategies over 1,000 games of 10,000 rolls each: the mean
net, its spread and the risk of ruin, and, where matplotlib is installed,
the distribution of each game's net in compare_strategies.png.

    PYTHONPATH=build/python /usr/bin/python3 examples/python/compare_strategies.py
"""
import pathlib

import numpy

import dicemill

SAMPLES = pathlib.Path(__file__).resolve().parents[2] / "samples"
STRATEGIES = ["pass-line-full-odds", "iron-cross", "field-martingale"]

nets = {}
for name in STRATEGIES:
    report = dicemill.run(script=str(SAMPLES / f"{name}.txt"), rolls=10_000, games=1_000, seed=1,
                          bankroll=1_000, stop_at_ruin=True)
    batch = report["batch"]
    nets[name] = numpy.array([game["net"] for game in report["games"]])
    print(f"{name:22} mean net {batch['meanNet']:>9,.2f} ± {batch['netStandardError']:,.2f}   "
          f"10th/50th/90th {batch['netPercentiles']['p10']:>8,.0f} {batch['netPercentiles']['p50']:>8,.0f} "
          f"{batch['netPercentiles']['p90']:>8,.0f}   ruin {batch['riskOfRuin']:.1%}")

try:
    import matplotlib
    matplotlib.use("Agg")
    import matplotlib.pyplot as plt
except ImportError:
    print("(matplotlib is not installed: no plot)")
else:
    figure, axes = plt.subplots(figsize=(8, 4.5))
    for name, values in nets.items():
        axes.hist(values, bins=60, histtype="step", label=name)
    axes.set_xlabel("net after 10,000 rolls ($)")
    axes.set_ylabel("games")
    axes.legend()
    figure.tight_layout()
    figure.savefig("compare_strategies.png", dpi=120)
    print("wrote compare_strategies.png")
