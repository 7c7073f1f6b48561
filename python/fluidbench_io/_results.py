"""Lists that a read gives."""

from typing import Iterable, List, Tuple, TypeVar

from ._errors import Diagnostic

Item = TypeVar("Item")


class Results(List[Item]):
    """A list of what a file holds, with the reader's `diagnostics`."""

    def __init__(self, items: Iterable[Item] = (), diagnostics: Tuple[Diagnostic, ...] = ()) -> None:
        super().__init__(items)
        self.diagnostics = diagnostics
