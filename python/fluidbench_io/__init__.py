"""Fluid-property files as data frames.

Reads and writes the text files by which reservoir fluids travel between a toolbox, simulators and
spreadsheets: keyword decks of compositional fluids, black-oil tables, K-values, thermal data, depth
tables, phase envelopes, and what downhole fluid analysis exports.

    >>> import fluidbench_io as fb
    >>> fluid = fb.read_deck("examples/data/reservoir-oil-field.dat")
    >>> fluid.components.loc["C1", "critical_pressure"] *= 1.02
    >>> fb.write_deck(fluid, "tuned.dat", temperature=344.3)

What holds everywhere:

* A function takes a path or a file object, of text or of bytes.
* Numbers are in model units, whatever the file has: Pa, K, m, kg/m3, Pa.s, m3/mol, m3/m3. The unit
  of each column stands in ``frame.attrs["units"]``. A value that isn't there is NaN.
* What can't be read or written raises `FluidBenchError`. What a reader doubts is a `FluidBenchWarning`
  of Python's `warnings`, and stays on what it gave, as `diagnostics`.
* A file that is written replaces an older one when it is whole, and not before.
* The global lock is released while files are read and written, so threads read in parallel.
* The simulator's log is the logger ``fluidbench_io.simulator`` of Python's `logging`.
"""

from ._errors import Diagnostic, FluidBenchError, FluidBenchWarning, Message
from ._results import Results
from .black_oil import BlackOil, read_black_oil, write_black_oil
from .compositions import Compositions, read_compositions, write_compositions
from .deck import read_deck, write_deck
from .depth_tables import DepthTable, read_depth_tables, write_depth_tables
from .dfa import Dfa, read_dfa
from .envelopes import EnvelopeLine, read_envelopes, write_envelopes
from .fluid import Fluid
from .k_values import KValues, read_k_values, write_k_values
from .mfl import Mfl, read_mfl
from .thermal import Thermal, read_thermal, write_thermal
from . import _log as _log  # puts the simulator's log into Python's

__all__ = [
    "BlackOil",
    "Compositions",
    "DepthTable",
    "Dfa",
    "Diagnostic",
    "EnvelopeLine",
    "Fluid",
    "FluidBenchError",
    "FluidBenchWarning",
    "KValues",
    "Message",
    "Mfl",
    "Results",
    "Thermal",
    "read_black_oil",
    "read_compositions",
    "read_deck",
    "read_depth_tables",
    "read_dfa",
    "read_envelopes",
    "read_k_values",
    "read_mfl",
    "read_thermal",
    "write_black_oil",
    "write_compositions",
    "write_deck",
    "write_depth_tables",
    "write_envelopes",
    "write_k_values",
    "write_thermal",
]
