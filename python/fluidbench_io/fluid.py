"""Compositional fluids."""

from dataclasses import dataclass, field
from typing import Any, Dict, Optional, Tuple

import numpy as np
import pandas as pd

from . import _core, _frames
from ._errors import Diagnostic, FluidBenchError

_PROPERTIES = tuple(name for name, _ in _core.COMPONENT_PROPERTIES)
_UNITS = {"fraction": "1", **dict(_core.COMPONENT_PROPERTIES)}
_COLUMNS = ("fraction",) + _PROPERTIES + ("non_hydrocarbon", "reference_conditions")


@dataclass(eq=False)
class Fluid:
    """A fluid as its components, its equation of state and the coefficients between components.

    `components` has a row a component, whose name is the index. `fraction` must be there; every
    other column may be missing, and NaN stands for a value that isn't there. Units are in
    ``components.attrs["units"]``:

        fraction; molecular_weight (g/mol); critical_pressure (Pa); critical_temperature (K);
        critical_volume and critical_volume_viscosity (m3/mol); critical_z_factor;
        acentric_factor; parachor; volume_shift; omega_a; omega_b; heat_of_vaporisation;
        thermal_expansion (1/K); reference_density (kg/m3); non_hydrocarbon (bool);
        reference_conditions ("Fahrenheit60" or "Celsius20", of the reference density)

    `interactions` is square, with the components' names along both sides and NaN where no
    coefficient is set. None stands for no coefficients.

    `eos` is one of "PengRobinson", "PengRobinson78", "PengRobinsonVolumeShift",
    "PengRobinson78VolumeShift", "RedlichKwong", "SoaveRedlichKwong",
    "SoaveRedlichKwongVolumeShift" and "ZudkevitchJoffe", and `viscosity` "LohrenzBrayClark" or
    "Pedersen". `temperature` is that of the reservoir in K, if known. `units` tells what the file
    was in ("metric" or "field"), and `diagnostics` what its reader said.

        >>> import pandas as pd
        >>> gas = Fluid(pd.DataFrame(
        ...     {"fraction": [0.9, 0.1], "critical_pressure": [45.99e5, 48.72e5]},
        ...     index=["C1", "C2"]))
    """

    components: pd.DataFrame = field(repr=False)
    interactions: Optional[pd.DataFrame] = field(default=None, repr=False)
    eos: str = "PengRobinson"
    viscosity: str = "LohrenzBrayClark"
    temperature: Optional[float] = None
    units: Optional[str] = None
    name: str = ""
    fraction_basis: str = "Mole"
    temperature_dependent_shift: bool = False
    diagnostics: Tuple[Diagnostic, ...] = field(default=(), repr=False)

    @classmethod
    def _from_core(cls, raw: Dict[str, Any], diagnostics: Tuple[Diagnostic, ...]) -> "Fluid":
        index = pd.Index(raw["names"], name="component", dtype=object)
        components = pd.DataFrame(raw["properties"], index=index, columns=list(_PROPERTIES))
        components.insert(0, "fraction", raw["fractions"])
        components["non_hydrocarbon"] = raw["non_hydrocarbon"]
        components["reference_conditions"] = raw["reference_conditions"]
        interactions = pd.DataFrame(raw["interactions"], index=index, columns=index)
        return cls(
            components=_frames.with_units(components, _UNITS),
            interactions=_frames.with_units(interactions, dict.fromkeys(index, "1")),
            eos=raw["eos"],
            viscosity=raw["viscosity"],
            temperature=raw.get("temperature"),
            units=raw.get("units"),
            name=raw["name"],
            fraction_basis=raw["fraction_basis"],
            temperature_dependent_shift=raw["temperature_dependent_shift"],
            diagnostics=diagnostics,
        )

    def _to_core(self) -> Dict[str, Any]:
        frame = _frames.require_frame(self.components, "components")
        _frames.require_columns(frame, "components", ["fraction"], _COLUMNS)
        names = _frames.names_of(frame.index, "components")
        return {
            "name": self.name,
            "eos": self.eos,
            "viscosity": self.viscosity,
            "fraction_basis": self.fraction_basis,
            "temperature_dependent_shift": bool(self.temperature_dependent_shift),
            "names": names,
            "fractions": _frames.numbers(frame["fraction"], "column 'fraction' of components"),
            "properties": _frames.numbers(
                frame.reindex(columns=list(_PROPERTIES)), "components", may_be_missing=True
            ),
            "non_hydrocarbon": np.array(
                frame.get("non_hydrocarbon", np.zeros(len(names))), dtype=bool
            ),
            "reference_conditions": list(
                frame.get("reference_conditions", ["Fahrenheit60"] * len(names))
            ),
            "interactions": self._square(names),
        }

    def _square(self, names: "list[str]") -> _frames.Array:
        """The coefficients in the components' order. Half of a matrix stands for the whole."""
        n = len(names)
        if self.interactions is None:
            return np.full((n, n), np.nan)
        frame = _frames.require_frame(self.interactions, "interactions")
        for side, index in (("rows", frame.index), ("columns", frame.columns)):
            if sorted(map(str, index)) != sorted(names):
                raise FluidBenchError(
                    f"the {side} of interactions are {', '.join(map(str, index))}, and the "
                    f"components {', '.join(names)}"
                )
        square = _frames.numbers(frame.loc[names, names], "interactions", may_be_missing=True)
        both = ~np.isnan(square) & ~np.isnan(square.T)
        if (differs := both & (square != square.T)).any():
            i, j = np.argwhere(differs)[0]
            raise FluidBenchError(
                f"interactions has {square[i, j]} for {names[i]} with {names[j]}, and "
                f"{square[j, i]} the other way round"
            )
        return np.where(np.isnan(square), square.T, square)
