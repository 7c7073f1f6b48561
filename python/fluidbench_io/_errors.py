"""What an operation says beside its result: messages, diagnostics, exceptions and warnings."""

import warnings
from dataclasses import dataclass, replace
from typing import Any, Sequence, Tuple

_SEVERITIES = ("note", "warning", "error")

RawMessage = Tuple[int, int, str]
RawDiagnostic = Tuple[int, str, int, str, str]
# What an operation of the core gives: its result, and what it said.
Answer = Tuple[Any, Sequence[RawMessage], Sequence[RawDiagnostic]]


@dataclass(frozen=True)
class Message:
    """A message of an operation's report: its severity ("note", "warning" or "error"), its number
    in the toolbox's table, and its sentence."""

    severity: str
    number: int
    text: str

    def __str__(self) -> str:
        return self.text


@dataclass(frozen=True)
class Diagnostic:
    """A remark of a reader about one place of a text.

    `severity` is "note", "warning" or "error"; `line` counts from 1 and is 0 where no line applies;
    `code` stays the same from version to version, and docs/diagnostics.md lists all.
    """

    severity: str
    file: str
    line: int
    code: str
    sentence: str

    def __str__(self) -> str:
        line = f"{self.file}:{self.line}" if self.file else f"line {self.line}"
        place = line if self.line else self.file
        return f"{place}: {self.severity}: {self.sentence} [{self.code}]".lstrip(": ")


class FluidBenchError(ValueError):
    """A file can't be read or written, or a table isn't what a file can hold.

    `messages` are those of the operation's report, `diagnostics` what a reader said with file and
    line. Both are empty where Python itself refused.
    """

    __module__ = "fluidbench_io"  # where its users find it

    def __init__(
        self,
        text: str,
        messages: Sequence[Message] = (),
        diagnostics: Sequence[Diagnostic] = (),
    ) -> None:
        super().__init__(text)
        self.messages = tuple(messages)
        self.diagnostics = tuple(diagnostics)


class FluidBenchWarning(UserWarning):
    """Something of a file didn't reach the result, or may mean something else."""

    __module__ = "fluidbench_io"


@dataclass(frozen=True)
class Findings:
    """The messages and diagnostics of one operation."""

    messages: Tuple[Message, ...]
    diagnostics: Tuple[Diagnostic, ...]

    def texts(self, severity: str) -> Tuple[str, ...]:
        """The sentences of that severity, the diagnostics first: they have the place."""
        return tuple(str(d) for d in self.diagnostics if d.severity == severity) + tuple(
            m.text for m in self.messages if m.severity == severity
        )

    def renamed(self, old: str, new: str) -> "Findings":
        """The same about a file of another name."""
        return Findings(
            tuple(replace(m, text=m.text.replace(old, new)) for m in self.messages),
            tuple(
                replace(
                    d, file=d.file.replace(old, new), sentence=d.sentence.replace(old, new)
                )
                for d in self.diagnostics
            ),
        )

    def fail(self, text: str) -> FluidBenchError:
        """The exception for a failure in that many words, and what was said about it."""
        said = self.texts("error")
        return FluidBenchError("\n".join((text,) + said), self.messages, self.diagnostics)

    def require_success(self, text: str) -> None:
        """Raises the exception if there was an error."""
        if self.texts("error"):
            raise self.fail(text)

    def warn(self, stacklevel: int = 3) -> None:
        """Passes warnings on; at `stacklevel` 3 to the caller of the function that calls this."""
        for text in self.texts("warning"):
            warnings.warn(text, FluidBenchWarning, stacklevel=stacklevel)


def unpack(answer: Answer) -> Tuple[Any, Findings]:
    """The result of an operation of the core, and what it said."""
    result, messages, diagnostics = answer
    return result, Findings(
        tuple(Message(_SEVERITIES[m[0]], *m[1:]) for m in messages),
        tuple(Diagnostic(_SEVERITIES[d[0]], *d[1:]) for d in diagnostics),
    )
