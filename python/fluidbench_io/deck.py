"""Keyword decks of compositional fluids."""

from typing import Optional

from . import _core, _frames
from ._errors import FluidBenchError, unpack
from ._files import Readable, Writable, as_file, replacing
from .fluid import Fluid


def read_deck(path: Readable, units: str = "auto") -> Fluid:
    """Reads the fluid of a keyword deck.

    `units` are those of the deck: "metric" or "field", or found from its text with "auto". A file
    object is read whole first; what such a deck includes is looked for in the current folder.

    Raises `FluidBenchError` for a deck that can't be read.

        >>> fluid = read_deck("examples/data/reservoir-oil-field.dat")
        >>> fluid.components["critical_temperature"]["C1"]  # K
        190.55...
    """
    _frames.choice(units, "units", ("auto",) + _frames.METRIC_OR_FIELD)
    with as_file(path) as file:
        raw, findings = unpack(_core.read_deck(file.path, units))
        findings = file.named(findings)
    findings.require_success(f"{file.title} can't be read as a deck.")
    findings.warn()
    return Fluid._from_core(raw, findings.diagnostics)


def write_deck(
    fluid: Fluid,
    path: Writable,
    temperature: Optional[float] = None,
    units: str = "metric",
    runspec: bool = False,
) -> None:
    """Writes a fluid as a keyword deck.

    `temperature` is that of the reservoir in K, and the fluid's own unless given. `units` are those
    of the deck, "metric" or "field". `runspec` puts a RUNSPEC section at its head. A value that
    isn't there is written as a zero.

        >>> write_deck(read_deck("oil.dat"), "oil-metric.dat", temperature=344.3)
    """
    if not isinstance(fluid, Fluid):
        raise TypeError(f"fluid has to be a Fluid, not {type(fluid).__name__}")
    _frames.choice(units, "units", _frames.METRIC_OR_FIELD)
    if temperature is None:
        temperature = fluid.temperature
    if temperature is None:
        raise FluidBenchError("the fluid has no reservoir temperature: give temperature=, in K")
    kelvin = _frames.number(temperature, "temperature")
    raw = fluid._to_core()
    with replacing(path) as write:
        _, findings = unpack(_core.write_deck(write, raw, kelvin, units, bool(runspec)))
        findings.require_success("The deck can't be written.")
    findings.warn()
