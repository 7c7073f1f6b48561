"""What a downhole fluid analysis exports."""

from dataclasses import dataclass, field
from typing import Optional, Sequence, Tuple

import numpy as np
import numpy.typing as npt
import pandas as pd

from . import _core, _frames
from ._errors import Diagnostic, FluidBenchError, unpack
from ._files import Input, Readable, opened
from .fluid import Fluid

_COMPONENTS = tuple(_core.DFA_COMPONENTS)


@dataclass(eq=False)
class Dfa:
    """The stations of all wells, those of a well in ascending depth.

    `stations` and `stations_in_file_units` have the same rows and columns. The first has

        well, station (counted from 1), depth (m), pressure (Pa), temperature (K), density (kg/m3),
        gas_oil_ratio (m3/m3), station_value (as in the file), and the mass fractions C1, C2, C3-C5,
        C6+ and CO2

    and the second depth in ft, pressure in psi, temperature in F, density in g/cc and gas_oil_ratio
    in scf/stb. A pressure that wasn't measured is NaN. In model units a negative value is zero.
    Units are in ``attrs["units"]``.

        >>> job = read_dfa("examples/data/north-field_DFA.txt")
        >>> job.stations.groupby("well")["pressure"].max()
    """

    stations: pd.DataFrame
    stations_in_file_units: pd.DataFrame
    diagnostics: Tuple[Diagnostic, ...] = field(default=(), repr=False)
    _wells: Optional[_core.DfaImport] = field(default=None, repr=False)
    _well_of_row: Sequence[int] = field(default=(), repr=False)

    def raw_fluid(self, row: int) -> Fluid:
        """The measured fluid of a row of `stations`: C1, C2 and CO2 with the properties of the
        component library, C3toC5 and C6+ without any. Its fractions are mass fractions."""
        if self._wells is None or not 0 <= row < len(self._well_of_row):
            raise FluidBenchError(f"there is no station in row {row} of a file that was read")
        station = int(self.stations_in_file_units["station"].iloc[row]) - 1
        raw = self._wells.raw_fluid(self._well_of_row[row], station)
        return Fluid._from_core(raw, self.diagnostics)


def _frame(
    names: Sequence[str],
    well_of_row: npt.NDArray[np.int64],
    quantities: Sequence[Tuple[str, str]],
    block: _frames.Array,
    composition: _frames.Array,
) -> pd.DataFrame:
    frame = pd.DataFrame(block, columns=[name for name, _ in quantities])
    frame.insert(0, "well", np.array(names, dtype=object)[well_of_row])
    frame.insert(1, "station", pd.Series(well_of_row).groupby(well_of_row).cumcount() + 1)
    frame[list(_COMPONENTS)] = composition
    return _frames.with_units(frame, {**dict(quantities), **dict.fromkeys(_COMPONENTS, "1")})


def read_dfa(path: Readable, ft: Optional[Readable] = None) -> Dfa:
    """Reads the main file of a job and its pressures.

    The pressures are in the file `ft`. Unless it is given, it stands beside the main file, whose
    name has "FT.txt" in place of its last seven characters: job_DFA.txt leads to job_FT.txt. With a
    file object for the main file, `ft` has to be given.

    Raises `FluidBenchError` where a file can't be read or lacks its header.

        >>> read_dfa("north.txt", ft="north-pressures.txt").stations["pressure"].mean()
    """
    main = Input(path)
    failure = f"{main.title} can't be read as an export of a downhole fluid analysis."
    if ft is not None:
        with opened(main) as read_main, opened(Input(ft)) as read_ft:
            answer = _core.read_dfa_streams(read_main, read_ft, main.name, Input(ft).name)
    elif isinstance(main.source, bytes):
        answer = _core.read_dfa(main.source)
    else:
        raise FluidBenchError("a file object has no FT file beside it: give ft=")
    wells, findings = unpack(answer)
    findings.require_success(failure)
    if wells is None:
        raise findings.fail(failure)
    findings.warn()
    names, well_of_row, in_file, in_model, composition = wells.stations()
    return Dfa(
        _frame(names, well_of_row, _core.DFA_MODEL_UNITS, in_model, composition),
        _frame(names, well_of_row, _core.DFA_FILE_UNITS, in_file, composition),
        findings.diagnostics,
        wells,
        well_of_row.tolist(),
    )
