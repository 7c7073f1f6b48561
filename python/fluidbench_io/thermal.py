"""What a thermal simulator asks to know of each component."""

from dataclasses import dataclass, field
from typing import Tuple

import pandas as pd

from . import _core, _frames
from ._errors import Diagnostic, FluidBenchError, unpack
from ._files import Readable, Writable, replacing
from ._keywords import read_keywords

_UNITS = dict(_core.THERMAL_COLUMNS)
_FIT = tuple(name for name in _UNITS if name.startswith("crookston_"))
_NEEDED = tuple(name for name in _UNITS if name not in _FIT)


@dataclass(eq=False)
class Thermal:
    """Thermal data of a fluid.

    `components` has a row a component, whose name is the index, and the columns

        molecular_weight (g/mol), critical_temperature (K), critical_pressure (Pa),
        reference_temperature (K), reference_pressure (Pa), reference_density (kg/m3),
        acentric_factor, heat_capacity_a to _d (J/(mol K) as A + B T + C T^2 + D T^3),
        heat_of_vaporisation (kJ/kg), compressibility (1/Pa), thermal_expansion (1/K), z_factor,
        fraction

    and, where the K-values are fitted as K = (A + B/p + C p) exp(-D / (T - E)), crookston_a to _e.
    Units are in ``components.attrs["units"]``. The standard conditions are in K and Pa.
    """

    components: pd.DataFrame
    standard_temperature: float
    standard_pressure: float
    diagnostics: Tuple[Diagnostic, ...] = field(default=(), repr=False)


def read_thermal(path: Readable, units: str = "auto") -> Thermal:
    """Reads the thermal data of a keyword file.

    `units` are those of the file, "metric" or "field", and with "auto" what its FILEUNIT record
    says. A file has each heat capacity as a value and a slope, so heat_capacity_c and _d are zero.
    Raises `FluidBenchError` for a file that can't be read.

        >>> read_thermal("thermal.inc").components["reference_density"]
    """
    raw, findings = read_keywords(_core.read_thermal, path, units, "thermal data")
    names, values, temperature, pressure = raw
    frame = pd.DataFrame(values, index=pd.Index(names, name="component", dtype=object))
    units_of_frame = {name: _UNITS[name] for name in frame.columns}
    return Thermal(
        _frames.with_units(frame, units_of_frame), temperature, pressure, findings.diagnostics
    )


def write_thermal(
    table: Thermal, path: Writable, units: str = "metric", high_precision: bool = False
) -> None:
    """Writes thermal data as keywords. `units` are "metric" or "field"; `high_precision` gives 15
    decimals in place of 8 where there is a choice.

        >>> write_thermal(table, "thermal.inc", units="field")
    """
    if not isinstance(table, Thermal):
        raise TypeError(f"table has to be a Thermal, not {type(table).__name__}")
    _frames.choice(units, "units", _frames.METRIC_OR_FIELD)
    frame = _frames.require_frame(table.components, "components")
    _frames.require_columns(frame, "components", _NEEDED, _UNITS)
    fit = [name for name in _FIT if name in frame.columns]
    if fit and len(fit) < len(_FIT):
        raise FluidBenchError(f"components has only {', '.join(fit)} of {', '.join(_FIT)}")
    names = _frames.names_of(frame.index, "components")
    values = _frames.columns_of(frame, "components", list(_NEEDED) + fit)
    with replacing(path) as write:
        _, findings = unpack(
            _core.write_thermal(
                write,
                names,
                values,
                _frames.number(table.standard_temperature, "standard_temperature"),
                _frames.number(table.standard_pressure, "standard_pressure"),
                units,
                bool(high_precision),
            )
        )
        findings.require_success("The thermal data can't be written.")
    findings.warn()
