"""Tables against depth: composition, saturation pressure, dissolved gas and vaporised oil."""

from dataclasses import dataclass
from typing import Callable, Dict, List, Optional, Sequence, Tuple

import numpy as np
import pandas as pd

from . import _core, _frames
from ._errors import FluidBenchError, unpack
from ._files import Readable, Writable, replacing
from ._keywords import read_keywords
from ._results import Results

# The one column of a table, and its unit.
_VALUE: Dict[str, Tuple[str, str]] = {
    "PBVD": ("bubble_point", "Pa"),
    "PDVD": ("dew_point", "Pa"),
    "RSVD": ("gas_oil_ratio", "m3/m3"),
    "RVVD": ("oil_gas_ratio", "m3/m3"),
}
_COMPOSITION = "ZMFVD"
# What may stand in one file, by the first table: the writer, and the keyword of a second one.
_FILES: Dict[str, Tuple[Callable[..., object], str]] = {
    "PBVD": (_core.write_depth_saturation, "PBVD"),
    "PDVD": (_core.write_depth_saturation, "PBVD"),
    "RSVD": (_core.write_depth_ratios, "RSVD"),
    "RVVD": (_core.write_depth_ratios, "RSVD"),
}


@dataclass(eq=False)
class DepthTable:
    """One table. `keyword` is "ZMFVD" for compositions, "PBVD" and "PDVD" for bubble and dew points,
    "RSVD" and "RVVD" for dissolved gas and vaporised oil.

    `values` has a row a depth, which is the index in m. Its columns are the components' fractions,
    or one of bubble_point (Pa), dew_point (Pa), gas_oil_ratio (m3/m3) and oil_gas_ratio (m3/m3).

        >>> import pandas as pd
        >>> DepthTable("PBVD", pd.DataFrame({"bubble_point": [165e5, 159e5]}, index=[2500, 2530]))
    """

    keyword: str
    values: pd.DataFrame


def read_depth_tables(
    path: Readable, units: str = "auto", components: Optional[Sequence[str]] = None
) -> "Results[DepthTable]":
    """Reads the depth tables of a keyword file, in its order.

    `units` are those of the file, "metric" or "field", and with "auto" what its FILEUNIT record
    says. A composition has no names in the file: `components` gives them, and without them the
    columns are "1", "2" and so on. Raises `FluidBenchError` for a file that can't be read.

        >>> for table in read_depth_tables("psatvd.inc"):
        ...     print(table.keyword, table.values)
    """
    raw, findings = read_keywords(_core.read_depth_tables, path, units, "depth tables")
    tables = []
    for keyword, depths, values in raw:
        if keyword == _COMPOSITION:
            columns, unit = _frames.component_names(components, values.shape[1]), "1"
        else:
            column, unit = _VALUE[keyword]
            columns, values = [column], values.reshape(-1, 1)
        frame = _frames.by(depths, "depth", "m", values, columns, unit)
        tables.append(DepthTable(keyword, frame))
    return Results(tables, findings.diagnostics)


def _depths(table: DepthTable) -> _frames.Array:
    return _frames.numbers(table.values.index, f"the index of {table.keyword}")


def _values(table: DepthTable) -> _frames.Array:
    column, _ = _VALUE[table.keyword]
    _frames.require_columns(table.values, table.keyword, [column], [column])
    return _frames.numbers(table.values[column], f"column '{column}' of {table.keyword}")


def _require_tables(tables: Sequence[DepthTable]) -> None:
    for table in tables:
        if not isinstance(table, DepthTable):
            raise TypeError(f"tables have to be DepthTable, not {type(table).__name__}")
        _frames.choice(table.keyword, "keyword", (_COMPOSITION, *_VALUE))
        _frames.require_frame(table.values, table.keyword)
    if not any(len(table.values) for table in tables):
        raise FluidBenchError("there are no rows to write")


def _contact(tables: Sequence[DepthTable]) -> Optional[float]:
    """The depth at which the second table begins, below the first."""
    if len(tables) == 1:
        return None
    first, second = tables
    _, keyword = _FILES[first.keyword]
    if second.keyword != keyword:
        raise FluidBenchError(f"{first.keyword} and {second.keyword} don't share a file")
    contact = float(_depths(second).min()) if len(second.values) else np.inf
    if len(first.values) and _depths(first).max() > contact - 0.002:
        raise FluidBenchError(f"all of {second.keyword} has to lie below {first.keyword}")
    return contact


def write_depth_tables(
    tables: Sequence[DepthTable], path: Writable, units: str = "metric"
) -> None:
    """Writes the tables of one file: a ZMFVD; or a PDVD or PBVD, and a PBVD below it, which begins
    at the contact; or an RVVD or RSVD, and an RSVD below it. Depths are written in m or, with
    `units` "field", in ft.

        >>> write_depth_tables([table], "pbvd.inc")
    """
    given: List[DepthTable] = list(tables)
    _frames.choice(units, "units", _frames.METRIC_OR_FIELD)
    _require_tables(given)
    first = given[0]
    most = 1 if first.keyword == _COMPOSITION else 2
    if len(given) > most:
        raise FluidBenchError(f"a file has {most} of {first.keyword} at most, not {len(given)}")
    with replacing(path) as write:
        if first.keyword == _COMPOSITION:
            names = _frames.names_of(first.values.columns, "components")
            fractions = _frames.numbers(first.values, "fractions")
            answer = _core.write_depth_compositions(
                write, names, _depths(first), fractions, units
            )
        else:
            writer, liquid = _FILES[first.keyword]
            answer = writer(  # type: ignore[assignment]
                write,
                np.concatenate([_depths(table) for table in given]),
                np.concatenate([_values(table) for table in given]),
                _contact(given),
                first.keyword == liquid,
                units,
            )
        _, findings = unpack(answer)
        findings.require_success("The tables can't be written.")
    findings.warn()
