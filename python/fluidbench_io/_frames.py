"""Data frames of columns with units, and what a frame has to hold that is written."""

import difflib
from typing import Dict, Iterable, List, Mapping, Optional, Sequence

import numpy as np
import numpy.typing as npt
import pandas as pd

from ._errors import FluidBenchError

Array = npt.NDArray[np.float64]
Units = Mapping[str, str]


def with_units(frame: pd.DataFrame, units: Units) -> pd.DataFrame:
    """The frame itself, with its columns' units in `attrs`."""
    frame.attrs["units"] = dict(units)
    return frame


def by(
    index: Array, name: str, unit: str, values: Array, columns: Sequence[str], value_unit: str = "1"
) -> pd.DataFrame:
    """Values by the pressure or the depth along the index."""
    frame = pd.DataFrame(values, index=pd.Index(index, name=name), columns=list(columns))
    return with_units(frame, {name: unit, **dict.fromkeys(columns, value_unit)})


def require_frame(frame: object, what: str) -> pd.DataFrame:
    if not isinstance(frame, pd.DataFrame):
        raise TypeError(f"{what} has to be a pandas.DataFrame, not {type(frame).__name__}")
    return frame


def require_columns(
    frame: pd.DataFrame, what: str, needed: Iterable[str], possible: Iterable[str]
) -> None:
    """Columns stand in any order. One that nobody knows is a slip of the pen, not more data."""
    require_unique(frame.columns, f"columns of {what}")
    known = list(possible)
    for column in frame.columns:
        if column not in known:
            close = difflib.get_close_matches(str(column), known, 1)
            hint = f"; did you mean '{close[0]}'?" if close else f"; it has {', '.join(known)}"
            raise FluidBenchError(f"{what} has no column '{column}'{hint}")
    missing = [column for column in needed if column not in frame.columns]
    if missing:
        raise FluidBenchError(f"{what} lacks the column '{missing[0]}'")


def require_unique(names: Iterable[object], what: str) -> None:
    seen = set()
    for name in names:
        if name in seen:
            raise FluidBenchError(f"two {what} are called '{name}'")
        seen.add(name)


def names_of(index: Iterable[object], what: str) -> List[str]:
    """The texts of an index: not empty, no two the same."""
    names: List[str] = []
    for name in index:
        if not isinstance(name, str):
            raise TypeError(f"{what} have str for names, not {type(name).__name__}: {name!r}")
        names.append(name)
    if not names:
        raise FluidBenchError(f"there are no {what}")
    require_unique(names, what)
    return names


def numbers(values: object, what: str, may_be_missing: bool = False) -> Array:
    """Values as numbers; NaN only where a number may be missing, and never an infinity."""
    array = np.asarray(values)
    if array.dtype.kind not in "fiu":
        try:
            # Objects become numbers where each is one; texts don't, whatever they spell.
            if array.dtype.kind == "O" and not any(
                isinstance(value, (str, bytes, bool)) for value in array.ravel()
            ):
                array = pd.to_numeric(pd.Series(array.ravel())).to_numpy(float).reshape(array.shape)
            else:
                raise TypeError
        except (TypeError, ValueError):
            raise TypeError(f"{what} has to hold numbers, not {array.dtype}") from None
    result = np.ascontiguousarray(array, dtype=np.float64)
    wrong = np.isinf(result) if may_be_missing else ~np.isfinite(result)
    if wrong.any():
        place = tuple(int(i) for i in np.argwhere(wrong)[0])
        where = f"row {place[0]}" + (f", column {place[1]}" if len(place) > 1 else "")
        raise FluidBenchError(f"{what} has {result[place]} in {where}, where a number must be")
    return result


def number(value: object, what: str) -> float:
    """One finite number."""
    if isinstance(value, bool) or not isinstance(value, (int, float, np.integer, np.floating)):
        raise TypeError(f"{what} has to be a number, not {type(value).__name__}")
    if not np.isfinite(value):
        raise FluidBenchError(f"{what} has to be a number, not {value}")
    return float(value)


def component_names(given: Optional[Sequence[str]], count: int) -> List[str]:
    """The names that the caller gives for so many columns, or else their numbers."""
    if given is None:
        return [str(i + 1) for i in range(count)]
    names = names_of(given, "components")
    if len(names) != count:
        raise FluidBenchError(f"the file has {count} components, and {len(names)} are named")
    return names


def columns_of(frame: pd.DataFrame, what: str, names: Sequence[str]) -> Dict[str, Array]:
    """Columns without gaps, by name."""
    return {name: numbers(frame[name], f"column '{name}' of {what}") for name in names}


def choice(value: object, what: str, choices: Iterable[str]) -> str:
    """One of some words."""
    known = tuple(choices)
    if value not in known:
        raise ValueError(f"{what} has to be one of {', '.join(map(repr, known))}, not {value!r}")
    return str(value)


METRIC_OR_FIELD = ("metric", "field")
