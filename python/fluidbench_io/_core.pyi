"""The C++ side. An answer is (result, messages, diagnostics), as _errors.unpack takes it."""

from typing import Any, Callable, Dict, List, Optional, Sequence, Tuple, Union

import numpy as np
import numpy.typing as npt

_Numbers = npt.NDArray[np.float64]
_Source = Union[bytes, Callable[[int], bytes]]
_Write = Callable[[bytes], None]
_Messages = List[Tuple[int, int, str]]
_Diagnostics = List[Tuple[int, str, int, str, str]]
_Answer = Tuple[Any, _Messages, _Diagnostics]

COMPONENT_PROPERTIES: List[Tuple[str, str]]
DFA_COMPONENTS: List[str]
DFA_FILE_UNITS: List[Tuple[str, str]]
DFA_MODEL_UNITS: List[Tuple[str, str]]
THERMAL_COLUMNS: List[Tuple[str, str]]

def start_logging(handler: Callable[[int, str], None]) -> None: ...
def stop_logging() -> None: ...
def read_deck(path: bytes, units: str) -> _Answer: ...
def write_deck(
    write: _Write, fluid: Dict[str, Any], temperature: float, units: str, runspec: bool
) -> _Answer: ...
def read_black_oil_csv(source: _Source, name: str) -> _Answer: ...
def read_black_oil_keywords(source: _Source, name: str, units: str) -> _Answer: ...
def write_black_oil(
    write: _Write,
    regions: List[Dict[str, Any]],
    csv: bool,
    units: str,
    oil: str,
    gas: str,
    high_precision: bool,
) -> _Answer: ...
def read_k_values(source: _Source, name: str, units: str) -> _Answer: ...
def write_k_values(
    write: _Write,
    components: Sequence[str],
    records: _Numbers,
    temperature: float,
    units: str,
    high_precision: bool,
) -> _Answer: ...
def read_thermal(source: _Source, name: str, units: str) -> _Answer: ...
def write_thermal(
    write: _Write,
    names: Sequence[str],
    values: Dict[str, _Numbers],
    standard_temperature: float,
    standard_pressure: float,
    units: str,
    high_precision: bool,
) -> _Answer: ...
def read_compositions(source: _Source, name: str, units: str) -> _Answer: ...
def write_compositions(
    write: _Write,
    pressures: _Numbers,
    vapour: _Numbers,
    liquid: _Numbers,
    units: str,
    high_precision: bool,
) -> _Answer: ...
def read_depth_tables(source: _Source, name: str, units: str) -> _Answer: ...
def write_depth_compositions(
    write: _Write, components: Sequence[str], depths: _Numbers, fractions: _Numbers, units: str
) -> _Answer: ...
def write_depth_saturation(
    write: _Write,
    depths: _Numbers,
    pressures: _Numbers,
    contact: Optional[float],
    bubble_first: bool,
    units: str,
) -> _Answer: ...
def write_depth_ratios(
    write: _Write,
    depths: _Numbers,
    ratios: _Numbers,
    contact: Optional[float],
    dissolved_first: bool,
    units: str,
) -> _Answer: ...
def read_envelopes(source: _Source, name: str) -> _Answer: ...
def write_envelopes(
    write: _Write,
    plots: List[List[Tuple[str, float, _Numbers, _Numbers]]],
    comma: bool,
) -> _Answer: ...

class DfaImport:
    def stations(
        self,
    ) -> Tuple[List[str], npt.NDArray[np.int64], _Numbers, _Numbers, _Numbers]: ...
    def raw_fluid(self, well: int, station: int) -> Dict[str, Any]: ...

def read_dfa(path: bytes) -> _Answer: ...
def read_dfa_streams(
    main: Callable[[int], bytes],
    pressures: Callable[[int], bytes],
    main_name: str,
    pressures_name: str,
) -> _Answer: ...
def read_mfl(path: bytes) -> _Answer: ...
