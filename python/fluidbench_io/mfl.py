"""MFL fluid files."""

from typing import NamedTuple

import numpy as np
import pandas as pd

from . import _core, _frames
from ._errors import unpack
from ._files import Readable, as_file
from .fluid import Fluid


class Mfl(NamedTuple):
    """The fluid of an MFL file, and its streams: a row a stream, counted from 1, and a column a
    component, with the amounts as the file has them."""

    fluid: Fluid
    streams: pd.DataFrame


def read_mfl(path: Readable) -> Mfl:
    """Reads an MFL file.

        >>> fluid, streams = read_mfl("examples/data/six-component-oil.mfl")
        >>> streams.loc[1, "C1"]
        0.5
    """
    with as_file(path) as file:
        raw, findings = unpack(_core.read_mfl(file.path))
        findings = file.named(findings)
    findings.require_success(f"{file.title} can't be read as an MFL file.")
    findings.warn()
    fluid = Fluid._from_core(raw, findings.diagnostics)
    amounts = np.array(raw["streams"], dtype=float).reshape(-1, len(raw["names"]))
    streams = pd.DataFrame(
        amounts,
        index=pd.RangeIndex(1, len(amounts) + 1, name="stream"),
        columns=fluid.components.index,
    )
    units = dict.fromkeys(streams.columns, "as in the file")
    return Mfl(fluid, _frames.with_units(streams, units))
