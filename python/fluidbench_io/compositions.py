"""Compositions of vapour and liquid against pressure."""

from dataclasses import dataclass, field
from typing import Optional, Sequence, Tuple

import numpy as np
import pandas as pd

from . import _core, _frames
from ._errors import Diagnostic, FluidBenchError, unpack
from ._files import Readable, Writable, replacing
from ._keywords import read_keywords
from ._results import Results


@dataclass(eq=False)
class Compositions:
    """The fractions of a fluid's phases. `vapour` and `liquid` have a row a pressure, which is the
    index in Pa, and a column a component; None is a phase that a file lacks, and a row of zeros one
    that isn't present at that pressure."""

    vapour: Optional[pd.DataFrame]
    liquid: Optional[pd.DataFrame]
    diagnostics: Tuple[Diagnostic, ...] = field(default=(), repr=False)


def read_compositions(
    path: Readable, units: str = "auto", components: Optional[Sequence[str]] = None
) -> "Results[Compositions]":
    """Reads the tables of YMFVP and XMFVP of a keyword file.

    `units` are those of the file, "metric" or "field", and with "auto" what its FILEUNIT record
    says. The file has no names: `components` gives them, and without them the columns are "1", "2"
    and so on. Raises `FluidBenchError` for a file that can't be read.

        >>> (table,) = read_compositions("xmfvp.inc", components=["C1", "C3"])
        >>> table.vapour["C1"]
    """
    raw, findings = read_keywords(_core.read_compositions, path, units, "compositions")

    def frame(pressures: _frames.Array, fractions: Optional[_frames.Array]) -> Optional[pd.DataFrame]:
        if fractions is None:
            return None
        names = _frames.component_names(components, fractions.shape[1])
        return _frames.by(pressures, "pressure", "Pa", fractions, names)

    return Results(
        (
            Compositions(frame(pressures, vapour), frame(pressures, liquid), findings.diagnostics)
            for pressures, vapour, liquid in raw
        ),
        findings.diagnostics,
    )


def write_compositions(
    table: Compositions, path: Writable, units: str = "metric", high_precision: bool = False
) -> None:
    """Writes both phases, with 4 decimals or, with `high_precision`, 15. `units` are "metric" or
    "field". A phase that is None is written as zeros.

        >>> write_compositions(table, "xmfvp.inc", units="field")
    """
    if not isinstance(table, Compositions):
        raise TypeError(f"table has to be a Compositions, not {type(table).__name__}")
    _frames.choice(units, "units", _frames.METRIC_OR_FIELD)
    frames = {
        what: _frames.require_frame(given, what)
        for what, given in (("vapour", table.vapour), ("liquid", table.liquid))
        if given is not None
    }
    if not frames:
        raise FluidBenchError("there is no phase to write")
    first, *others = frames.values()
    names = _frames.names_of(first.columns, "components")
    for other in others:
        if not other.index.equals(first.index) or sorted(other.columns) != sorted(names):
            raise FluidBenchError("vapour and liquid have other pressures or components")
    blocks = {what: _frames.numbers(frame[names], what) for what, frame in frames.items()}
    nothing = np.zeros(first.shape)
    with replacing(path) as write:
        _, findings = unpack(
            _core.write_compositions(
                write,
                _frames.numbers(first.index, "the index of the frames"),
                blocks.get("vapour", nothing),
                blocks.get("liquid", nothing),
                units,
                bool(high_precision),
            )
        )
        findings.require_success("The compositions can't be written.")
    findings.warn()
