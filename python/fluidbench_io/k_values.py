"""K-values against pressure."""

from dataclasses import dataclass, field
from typing import Optional, Tuple

import numpy as np
import pandas as pd

from . import _core, _frames
from ._errors import Diagnostic, FluidBenchError, unpack
from ._files import Readable, Writable, replacing
from ._keywords import read_keywords
from ._results import Results

_NO_TEMPERATURE = -1.0


@dataclass(eq=False)
class KValues:
    """K-values of a fluid's components.

    `values` has a row a pressure, which is the index in Pa, and a column a component.
    `temperature` is in K, and None where the file gives none.

        >>> import pandas as pd
        >>> table = KValues(pd.DataFrame({"C1": [20.9, 10.5], "C3": [1.07, 0.54]},
        ...                              index=[25e5, 50e5]), temperature=344.3)
    """

    values: pd.DataFrame
    temperature: Optional[float] = None
    diagnostics: Tuple[Diagnostic, ...] = field(default=(), repr=False)


def read_k_values(path: Readable, units: str = "auto") -> "Results[KValues]":
    """Reads the K-value tables of a keyword file, one for each region.

    `units` are those of the file, "metric" or "field", and with "auto" what its FILEUNIT record
    says. Raises `FluidBenchError` for a file that can't be read.

        >>> (table,) = read_k_values("kvalues.inc")
        >>> table.values.plot(loglog=True)
    """
    raw, findings = read_keywords(_core.read_k_values, path, units, "K-values")
    return Results(
        (
            KValues(
                _frames.by(records[:, 0], "pressure", "Pa", records[:, 1:], names),
                None if temperature < 0.0 else temperature,
                findings.diagnostics,
            )
            for names, records, temperature in raw
        ),
        findings.diagnostics,
    )


def write_k_values(
    table: KValues, path: Writable, units: str = "metric", high_precision: bool = False
) -> None:
    """Writes K-values as keywords. `units` are "metric" or "field"; `high_precision` gives 15
    decimals in place of 8.

        >>> write_k_values(table, "kvalues.inc", units="field")
    """
    if not isinstance(table, KValues):
        raise TypeError(f"table has to be a KValues, not {type(table).__name__}")
    _frames.choice(units, "units", _frames.METRIC_OR_FIELD)
    frame = _frames.require_frame(table.values, "values")
    names = _frames.names_of(frame.columns, "components")
    pressures = _frames.numbers(frame.index, "the index of values")
    records = np.column_stack([pressures, _frames.numbers(frame, "values")])
    temperature = _NO_TEMPERATURE
    if table.temperature is not None:
        temperature = _frames.number(table.temperature, "temperature")
        if temperature < 0.0:
            raise FluidBenchError(f"temperature is in K, and can't be {temperature}")
    with replacing(path) as write:
        _, findings = unpack(
            _core.write_k_values(write, names, records, temperature, units, bool(high_precision))
        )
        findings.require_success("The K-values can't be written.")
    findings.warn()
