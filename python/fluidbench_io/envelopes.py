"""Phase envelopes."""

from dataclasses import dataclass
from typing import List, Sequence

import numpy as np
import pandas as pd

from . import _core, _frames
from ._errors import FluidBenchError, unpack
from ._files import Input, Readable, Writable, replacing
from ._results import Results

_COLUMNS = ("temperature", "pressure")
_UNITS = {"temperature": "K", "pressure": "Pa"}
_READ_TO_THE_END = "No more envelopes found"
_NO_SEPARATOR = "no line of letters such as \"T,P,\" with a comma or a tab behind each was found"

KINDS = (
    "bubble",
    "dew",
    "critical_point",
    "aqueous",
    "ice",
    "hydrate_i",
    "hydrate_ii",
    "vapour_fraction",
)


@dataclass(eq=False)
class EnvelopeLine:
    """A line of a phase envelope. `kind` is one of "bubble", "dew", "critical_point", "aqueous",
    "ice", "hydrate_i", "hydrate_ii" and "vapour_fraction", along which the vapour has the
    `fraction`. `points` has the columns temperature (K) and pressure (Pa).

        >>> import pandas as pd
        >>> EnvelopeLine("critical_point", pd.DataFrame({"temperature": [521.9],
        ...                                              "pressure": [1.12e7]}))
    """

    kind: str
    points: pd.DataFrame
    fraction: float = 0.0


def read_envelopes(path: Readable) -> "Results[List[EnvelopeLine]]":
    """Reads the plots of a phase envelope file, each a list of lines.

    Raises `FluidBenchError` for a file without envelopes, or with one that is cut off.

        >>> for plot in read_envelopes("examples/data/rich-gas-envelope.csv"):
        ...     for line in plot:
        ...         print(line.kind, line.fraction, len(line.points))
    """
    input = Input(path)
    (plots, is_read, text), findings = unpack(_core.read_envelopes(input.source, input.name))
    failure = f"{input.title} can't be read as phase envelopes."
    if not is_read:
        raise findings.fail(f"{failure} {text or _NO_SEPARATOR}.")
    findings.require_success(failure)
    findings.warn()
    return Results(
        (
            [
                EnvelopeLine(
                    kind,
                    _frames.with_units(pd.DataFrame(points, columns=list(_COLUMNS)), _UNITS),
                    fraction,
                )
                for kind, fraction, points in plot
            ]
            for plot in plots
        ),
        findings.diagnostics,
    )


def _raw(line: EnvelopeLine) -> "tuple[str, float, _frames.Array, _frames.Array]":
    if not isinstance(line, EnvelopeLine):
        raise TypeError(f"lines have to be EnvelopeLine, not {type(line).__name__}")
    kind = _frames.choice(line.kind, "kind", KINDS)
    points = _frames.require_frame(line.points, "points")
    _frames.require_columns(points, "points", _COLUMNS, _COLUMNS)
    values = _frames.columns_of(points, "points", _COLUMNS)
    fraction = _frames.number(line.fraction, "fraction")
    if not 0.0 <= fraction <= 1.0:
        raise FluidBenchError(f"fraction has to be between 0 and 1, not {fraction}")
    return kind, fraction, values["temperature"], values["pressure"]


def write_envelopes(
    plots: Sequence[Sequence[EnvelopeLine]], path: Writable, separator: str = "comma"
) -> None:
    """Writes plots with six significant digits. `separator` is "comma" or "tab". Of bubble, dew and
    other lines that a plot has once, the first is written.

        >>> write_envelopes(read_envelopes("envelope.txt"), "envelope.csv")
    """
    _frames.choice(separator, "separator", ("comma", "tab"))
    raw = [[_raw(line) for line in plot] for plot in plots]
    with replacing(path) as write:
        _core.write_envelopes(write, raw, separator == "comma")
