# %% [markdown]
# # Tuning a fluid
#
# A deck that somebody typed and the black-oil tables made from it, both changed a little, written
# and drawn. Run it as a script, with the folder to write to as its argument, or cell by cell.

# %%
import sys
from pathlib import Path

import matplotlib

if __name__ == "__main__":
    matplotlib.use("Agg")  # a script draws to a file
import matplotlib.pyplot as plt

import fluidbench_io as fb

plt.rcParams["svg.hashsalt"] = "tuned-fluid"  # the same picture each time

try:
    data = Path(__file__).parent / "data"
except NameError:  # a notebook has no file
    data = Path("examples/data")
output = Path(sys.argv[1] if len(sys.argv) > 1 else ".")

# %% [markdown]
# ## The deck
#
# Numbers are in model units, whatever the deck has: this one is in psia and degrees R.

# %%
fluid = fb.read_deck(data / "reservoir-oil-field.dat")
print(fluid.components[["fraction", "molecular_weight", "critical_pressure"]])
print(fluid.components.attrs["units"]["critical_pressure"])

# %% [markdown]
# A heavier end needs a lower critical pressure to match the bubble point.

# %%
tuned = fb.read_deck(data / "reservoir-oil-field.dat")
tuned.components.loc["C20", "critical_pressure"] *= 0.92
fb.write_deck(tuned, output / "tuned.dat", temperature=344.26)

# %% [markdown]
# ## The black-oil tables
#
# The include file of a simulator becomes two data frames. Thicker oil, by five per cent:

# %%
pvt = fb.read_black_oil(data / "two-region-black-oil.inc").region(1)
scaled = fb.read_black_oil(data / "two-region-black-oil.inc").region(1)
scaled.oil["viscosity"] *= 1.05
fb.write_black_oil(scaled, output / "scaled.inc", units="field")

# %% [markdown]
# ## Both in a picture

# %%
figure, (left, right) = plt.subplots(1, 2, figsize=(9.0, 3.6), constrained_layout=True)

for one, label, marker in ((fluid, "as typed", "o"), (tuned, "tuned", "x")):
    left.plot(
        one.components["molecular_weight"],
        one.components["critical_pressure"] / 1e5,
        marker,
        label=label,
        fillstyle="none",
        color="#1f4e79" if one is fluid else "#c00000",
    )
left.set(xlabel="Molecular weight, g/mol", ylabel="Critical pressure, bar", ylim=(0.0, None))
left.legend(frameon=False)

for table, label, color in ((pvt, "as read", "#1f4e79"), (scaled, "scaled", "#c00000")):
    saturated = table.oil.groupby("record").head(1)
    right.plot(
        saturated["pressure"] / 1e5, saturated["viscosity"] * 1e3, color=color, label=label
    )
    for _, record in table.oil.groupby("record"):
        right.plot(record["pressure"] / 1e5, record["viscosity"] * 1e3, color=color, linewidth=0.7)
right.set(xlabel="Pressure, bar", ylabel="Oil viscosity, cP", ylim=(0.0, None))
right.legend(frameon=False)

for axes in (left, right):
    axes.spines[["top", "right"]].set_visible(False)
figure.savefig(output / "tuned-fluid.svg", metadata={"Date": None})
