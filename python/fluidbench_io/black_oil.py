"""Black-oil tables, as keywords for a simulator or as comma-separated text."""

import re
from dataclasses import dataclass, field
from typing import Any, Dict, List, Optional, Tuple

import numpy as np
import pandas as pd

from . import _core, _frames
from ._errors import Answer, Diagnostic, FluidBenchError, unpack
from ._files import Input, Readable, Writable, replacing
from ._keywords import read_keywords

_OIL = ("region", "record", "gas_oil_ratio", "pressure", "formation_volume_factor", "viscosity")
_GAS = ("region", "record", "pressure", "oil_gas_ratio", "formation_volume_factor", "viscosity")
_COUNTS = ("region", "record")
_UNITS = {
    "gas_oil_ratio": "m3/m3",
    "oil_gas_ratio": "m3/m3",
    "pressure": "Pa",
    "formation_volume_factor": "m3/m3",
    "viscosity": "Pa.s",
}
_NUMBERS = {
    "oil_density": "kg/m3",
    "gas_density": "kg/m3",
    "water_density": "kg/m3",
    "saturation_pressure": "Pa",
    "saturation_gas_oil_ratio": "m3/m3",
}
_REGIONS = tuple(_NUMBERS) + ("oil", "gas")
# The order in which the core has the columns behind the record's number.
_CORE_OIL = ("pressure", "gas_oil_ratio", "formation_volume_factor", "viscosity")
_CORE_GAS = ("pressure", "oil_gas_ratio", "formation_volume_factor", "viscosity")

TABLES = ("live-wet", "live-dry", "dead-wet", "dead-dry")
_KIND_OF_OIL = {"live": "live_oil", "dead": "dead_oil"}
_KIND_OF_GAS = {"wet": "wet_gas", "dry": "dry_gas"}

_CSV_LINE = re.compile(rb"^\s*(oden|wden|gden|rsconst|psat|pvto|pvtg|units)\s*,", re.I | re.M)
_HEAD = 1 << 16


@dataclass(eq=False)
class BlackOil:
    """The black-oil tables of a file, of one or more PVT regions.

    `oil` and `gas` have a row an entry. `region` and `record` count from 1; a record is what belongs
    together, such as the undersaturated rows above one bubble point. Units are in
    ``attrs["units"]``:

        oil   region, record, gas_oil_ratio (m3/m3), pressure (Pa),
              formation_volume_factor (m3/m3), viscosity (Pa.s)
        gas   region, record, pressure, oil_gas_ratio, formation_volume_factor, viscosity

    `regions` has a row a region, with its number for an index: oil_density, gas_density and
    water_density (kg/m3), saturation_pressure (Pa), saturation_gas_oil_ratio (m3/m3), and which
    tables it has, oil ("live", "dead" or "") and gas ("wet", "dry" or "").

        >>> pvt = read_black_oil("examples/data/reservoir-black-oil.csv")
        >>> pvt.oil["viscosity"] *= 1.05
        >>> pvt.regions.loc[1, "oil_density"]
        800.0
    """

    oil: pd.DataFrame = field(repr=False)
    gas: pd.DataFrame = field(repr=False)
    regions: pd.DataFrame
    diagnostics: Tuple[Diagnostic, ...] = field(default=(), repr=False)

    @classmethod
    def of_one_region(
        cls,
        oil: Optional[pd.DataFrame] = None,
        gas: Optional[pd.DataFrame] = None,
        *,
        tables: str = "live-wet",
        oil_density: float = 0.0,
        gas_density: float = 0.0,
        water_density: float = 1000.0,
        saturation_pressure: float = 0.0,
        saturation_gas_oil_ratio: float = 0.0,
    ) -> "BlackOil":
        """Tables of frames that need no column `region`. `tables` tells what they are:
        "live-wet", "live-dry", "dead-wet" or "dead-dry"."""
        kinds = _frames.choice(tables, "tables", TABLES).split("-")
        regions = pd.DataFrame(
            [
                [
                    oil_density,
                    gas_density,
                    water_density,
                    saturation_pressure,
                    saturation_gas_oil_ratio,
                    "" if oil is None else kinds[0],
                    "" if gas is None else kinds[1],
                ]
            ],
            index=pd.Index([1], name="region"),
            columns=list(_REGIONS),
        )
        return cls(
            _with_region(oil, _OIL, "oil"),
            _with_region(gas, _GAS, "gas"),
            _frames.with_units(regions, _NUMBERS),
        )

    def region(self, number: int) -> "BlackOil":
        """The tables of one region alone, which keeps its number."""
        if number not in self.regions.index:
            known = ", ".join(map(str, self.regions.index))
            raise FluidBenchError(f"there is no region {number}; the regions are {known}")
        return BlackOil(
            self.oil[self.oil["region"] == number].reset_index(drop=True),
            self.gas[self.gas["region"] == number].reset_index(drop=True),
            self.regions.loc[[number]],
            self.diagnostics,
        )


def _with_region(
    frame: Optional[pd.DataFrame], columns: Tuple[str, ...], what: str
) -> pd.DataFrame:
    if frame is None:
        return _frames.with_units(pd.DataFrame(columns=list(columns), dtype=float), _UNITS)
    given = _frames.require_frame(frame, what)
    _frames.require_columns(given, what, [c for c in columns if c != "region"], columns)
    result = given.assign(region=given.get("region", 1))
    return _frames.with_units(result[list(columns)].reset_index(drop=True), _UNITS)


def _frame(
    raw: List[Dict[str, Any]],
    kinds: Dict[str, str],
    columns: Tuple[str, ...],
    core: Tuple[str, ...],
) -> Tuple[pd.DataFrame, List[str]]:
    """The rows of all regions in one frame, and the kind of each region's table."""
    parts: List[Dict[str, Any]] = []
    found: List[str] = []
    for number, region in enumerate(raw, 1):
        kind = next((word for word, key in kinds.items() if len(region[key][0])), "")
        found.append(kind)
        if kind:
            record, *values = region[kinds[kind]]
            parts.append(
                {"region": np.full(len(record), number, np.int32), "record": record, **dict(zip(core, values))}
            )
    if len(parts) == 1:
        data = {name: parts[0][name] for name in columns}
    else:
        nothing = {name: np.empty(0, np.int32 if name in _COUNTS else float) for name in columns}
        data = {n: np.concatenate([nothing[n]] + [part[n] for part in parts]) for n in columns}
    units = {name: _UNITS[name] for name in columns if name in _UNITS}
    return _frames.with_units(pd.DataFrame(data, copy=False), units), found


def _from_core(raw: List[Dict[str, Any]], diagnostics: Tuple[Diagnostic, ...]) -> BlackOil:
    oil, oil_kinds = _frame(raw, _KIND_OF_OIL, _OIL, _CORE_OIL)
    gas, gas_kinds = _frame(raw, _KIND_OF_GAS, _GAS, _CORE_GAS)
    regions = pd.DataFrame(
        {name: [region[name] for region in raw] for name in _NUMBERS},
        index=pd.RangeIndex(1, len(raw) + 1, name="region"),
    )
    regions["oil"] = oil_kinds
    regions["gas"] = gas_kinds
    return BlackOil(oil, gas, _frames.with_units(regions, _NUMBERS), diagnostics)


def _read_csv(source: Any, name: str, _: str) -> Answer:
    return _core.read_black_oil_csv(source, name)


def read_black_oil(path: Readable, form: str = "auto", units: str = "auto") -> BlackOil:
    """Reads black-oil tables.

    `form` is "csv", "keyword", or found from the text with "auto". `units` are those of a keyword
    file, "metric" or "field", and with "auto" what its FILEUNIT record says; comma-separated text
    is metric always.

    Raises `FluidBenchError` for a file that can't be read or holds no table.

        >>> read_black_oil("examples/data/reservoir-black-oil.csv").gas["record"].max()
        4
    """
    _frames.choice(form, "form", ("auto", "csv", "keyword"))
    _frames.choice(units, "units", ("auto",) + _frames.METRIC_OR_FIELD)
    input = Input(path)
    if form == "auto":
        form = "csv" if _CSV_LINE.search(input.peek(_HEAD)) else "keyword"
    read = _core.read_black_oil_keywords if form == "keyword" else _read_csv
    raw, findings = read_keywords(read, input, units, "black-oil tables")
    return _from_core(raw, findings.diagnostics)


def _columns(
    frame: pd.DataFrame,
    what: str,
    columns: Tuple[str, ...],
    core: Tuple[str, ...],
    has_records: bool = True,
) -> Tuple[Any, ...]:
    """The columns of the core. Without records, each row is one of its own."""
    _frames.require_columns(_frames.require_frame(frame, what), what, columns[1:], columns)
    values = _frames.columns_of(frame, what, ("record",) + core)
    record = values.pop("record").astype(np.int64)
    if not has_records:  # a row that isn't its record's first wouldn't show its pressure
        record = np.arange(len(record))
    return (record,) + tuple(values[name] for name in core)


def _by_region(frame: pd.DataFrame, what: str, regions: "pd.Index[Any]") -> Dict[Any, pd.DataFrame]:
    """The rows of each region; those of one alone need no column that says so."""
    _frames.require_frame(frame, what)
    if len(regions) == 1:
        return {regions[0]: frame}
    _frames.require_columns(frame, what, ["region"], list(frame.columns))
    unknown = frame[~frame["region"].isin(regions)]
    if len(unknown):
        raise FluidBenchError(
            f"{what} has rows of a region {unknown['region'].iloc[0]}, which regions lacks"
        )
    return {number: frame[frame["region"] == number].reset_index(drop=True) for number in regions}


def _kind(regions: pd.DataFrame, phase: str, usual: str) -> str:
    kinds = [str(kind) for kind in regions[phase].unique() if kind]
    if len(kinds) > 1:
        raise FluidBenchError(
            f"the regions have {' and '.join(kinds)} {phase}: tables= tells what to write"
        )
    return kinds[0] if kinds else usual


def write_black_oil(
    table: BlackOil,
    path: Writable,
    form: str = "keyword",
    units: str = "metric",
    tables: Optional[str] = None,
    high_precision: bool = False,
) -> None:
    """Writes the tables of all regions.

    `form` is "keyword", or "csv", which holds one region. `units` are "metric" or "field"; the numbers of comma-separated
    text are metric always. `tables` tells which tables the rows go into: "live-wet" (PVTO and
    PVTG), "live-dry", "dead-wet" or "dead-dry"; unless given, the kinds that the regions have.
    `high_precision` gives 15 decimals in place of 8. The water density is written as 1000 kg/m3.

        >>> write_black_oil(read_black_oil("pvt.csv"), "pvt.inc", units="field")
    """
    if not isinstance(table, BlackOil):
        raise TypeError(f"table has to be a BlackOil, not {type(table).__name__}")
    _frames.choice(form, "form", ("keyword", "csv"))
    _frames.choice(units, "units", _frames.METRIC_OR_FIELD)
    count = len(table.regions)
    if form == "csv" and count > 1:
        raise FluidBenchError(f"csv holds one region, and there are {count}: write table.region(n)")
    if count == 0 or table.regions.index.has_duplicates:
        raise FluidBenchError(f"regions has to have a row for each, not {list(table.regions.index)}")
    if tables is None:
        tables = f"{_kind(table.regions, 'oil', 'live')}-{_kind(table.regions, 'gas', 'wet')}"
    oil, gas = _frames.choice(tables, "tables", TABLES).split("-")
    rows_of_oil = _by_region(table.oil, "oil", table.regions.index)
    rows_of_gas = _by_region(table.gas, "gas", table.regions.index)
    raw: List[Dict[str, Any]] = []
    for number, region in table.regions.iterrows():
        part: Dict[str, Any] = {name: _frames.number(region[name], name) for name in _NUMBERS}
        part[_KIND_OF_OIL[oil]] = _columns(rows_of_oil[number], "oil", _OIL, _CORE_OIL)
        part[_KIND_OF_GAS[gas]] = _columns(rows_of_gas[number], "gas", _GAS, _CORE_GAS, gas == "wet")
        raw.append(part)
    with replacing(path) as write:
        _, findings = unpack(
            _core.write_black_oil(write, raw, form == "csv", units, oil, gas, bool(high_precision))
        )
        findings.require_success("The tables can't be written.")
    findings.warn()
