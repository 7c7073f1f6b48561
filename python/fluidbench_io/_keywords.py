"""Reads of keyword files, which are all alike."""

from typing import Any, Callable, Tuple, Union

from . import _frames
from ._errors import Answer, Findings, unpack
from ._files import Input, Readable


def read_keywords(
    read: Callable[..., Answer],
    path: Union[Readable, Input],
    units: str,
    what: str,
    stacklevel: int = 4,
) -> Tuple[Any, Findings]:
    """What `read` of the core gives for the file; warns, or raises where it can't be read."""
    _frames.choice(units, "units", ("auto",) + _frames.METRIC_OR_FIELD)
    input = path if isinstance(path, Input) else Input(path)
    raw, findings = unpack(read(input.source, input.name, units))
    findings.require_success(f"{input.title} can't be read as {what}.")
    findings.warn(stacklevel)
    return raw, findings
