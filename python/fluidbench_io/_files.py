"""Paths and file objects, as the core takes them."""

import codecs
import contextlib
import io
import os
import stat
import tempfile
from typing import IO, Any, Callable, Iterator, NamedTuple, Union

from ._errors import Findings, FluidBenchError

Path = Union[str, "os.PathLike[str]"]
Readable = Union[Path, IO[str], IO[bytes]]
Writable = Union[Path, IO[str], IO[bytes]]


def _read_bytes(file: Any) -> Callable[[int], bytes]:
    def read(size: int) -> bytes:
        block = file.read(size)
        if isinstance(block, str):
            return block.encode("utf-8", "surrogateescape")
        if not isinstance(block, (bytes, bytearray, memoryview)):
            raise TypeError(
                f"the file object's read() has to give bytes or str, not {type(block).__name__}"
            )
        return bytes(block)

    return read


def _read_to_the_end(file: IO[bytes]) -> Callable[[int], bytes]:
    """The `read` of a file that closes itself at its end."""

    def read(size: int) -> bytes:
        block = b"" if file.closed else file.read(size)
        if not block:
            file.close()
        return block

    return read


class Input:
    """What a read takes: a path, which the core opens, or a file object, of which it takes the
    `read`. `source` and `name` are the core's arguments."""

    def __init__(self, given: Readable) -> None:
        self.source: Union[bytes, Callable[[int], bytes]]
        if isinstance(given, (str, os.PathLike)):
            self.source = os.fsencode(given)
            self.name = os.fspath(given)
        elif callable(getattr(given, "read", None)):
            self.source = _read_bytes(given)
            name = getattr(given, "name", "")
            self.name = name if isinstance(name, str) else ""
        else:
            raise TypeError(
                f"expected a path or a file object to read from, not {type(given).__name__}"
            )

    @property
    def title(self) -> str:
        """How messages call it."""
        return f"'{self.name}'" if self.name else "The file object"

    def peek(self, size: int) -> bytes:
        """The first bytes, of which a read still sees all. Nothing of a file that can't be opened:
        the read says why."""
        if isinstance(self.source, bytes):
            try:
                file = open(self.source, "rb", buffering=0)
            except OSError:
                return b""
            if stat.S_ISREG(os.fstat(file.fileno()).st_mode):
                with file:
                    return file.read(size)
            self.source = _read_to_the_end(file)  # a pipe gives its bytes once
        read = self.source
        head = b""
        while len(head) < size:
            block = read(size - len(head))
            if not block:
                break
            head += block
        rest = [head]
        self.source = lambda count: rest.pop() if rest and rest[0] else read(count)
        return head


@contextlib.contextmanager
def opened(input: Input) -> Iterator[Callable[[int], bytes]]:
    """The `read` of an input, also where that is a path."""
    if not isinstance(input.source, bytes):
        yield input.source
        return
    try:
        with open(input.source, "rb", buffering=0) as file:
            yield file.read
    except OSError as error:
        raise FluidBenchError(f"{input.title} can't be read: {error.strerror}") from error


class FileInput(NamedTuple):
    """A file with the text of an input."""

    path: bytes
    title: str  # how messages call it
    copy: str  # what they say in place of `name`, where the file is a copy
    name: str

    def named(self, findings: Findings) -> Findings:
        """What was said of a copy, said of the input."""
        return findings.renamed(self.copy, self.name) if self.copy else findings


@contextlib.contextmanager
def as_file(given: Readable) -> Iterator[FileInput]:
    """A file for readers that need one: a file object is copied to a temporary file."""
    input = Input(given)
    if isinstance(input.source, bytes):
        yield FileInput(input.source, input.title, "", input.name)
        return
    with tempfile.NamedTemporaryFile() as copy:
        while True:
            block = input.source(1 << 18)
            if not block:
                break
            copy.write(block)
        copy.flush()
        yield FileInput(os.fsencode(copy.name), input.title, copy.name, input.name)


def _write_text(file: Any) -> Callable[[bytes], None]:
    decoder = codecs.getincrementaldecoder("utf-8")("surrogateescape")

    def write(block: bytes) -> None:
        file.write(decoder.decode(block))

    return write


def _write_bytes(file: Any) -> Callable[[bytes], None]:
    def write(block: bytes) -> None:
        rest = memoryview(block)
        while rest:
            written = file.write(rest)  # a file without a buffer may take less than all
            rest = rest[len(rest) if written is None else written :]

    return write


def _mode_of_new_file() -> int:
    mask = os.umask(0)
    os.umask(mask)
    return 0o666 & ~mask


@contextlib.contextmanager
def _replacement(path: str) -> Iterator[IO[bytes]]:
    """A file beside that of the path, which takes its place when it is written whole."""
    try:
        mode = os.stat(path).st_mode
    except FileNotFoundError:
        mode = stat.S_IFREG | _mode_of_new_file()
    if not stat.S_ISREG(mode):  # a device or a pipe, which nothing can take the place of
        with open(path, "wb") as file:
            yield file
        return
    with contextlib.ExitStack() as on_failure:
        with tempfile.NamedTemporaryFile(
            dir=os.path.dirname(path), prefix=f".{os.path.basename(path)[:64]}.", delete=False
        ) as new:
            on_failure.callback(os.unlink, new.name)
            yield new.file
            new.flush()
            os.fsync(new.fileno())
            os.fchmod(new.fileno(), stat.S_IMODE(mode))
        os.replace(new.name, path)
        on_failure.pop_all()


@contextlib.contextmanager
def replacing(given: Writable) -> Iterator[Callable[[bytes], None]]:
    """A function that writes bytes to the file. A path's file is replaced when all is written; it
    stands as it was if anything fails."""
    if isinstance(given, (str, os.PathLike)):
        try:
            with _replacement(os.path.realpath(os.fspath(given))) as file:
                yield _write_bytes(file)
        except OSError as error:
            raise FluidBenchError(
                f"'{os.fspath(given)}' can't be written: {error.strerror}"
            ) from error
    elif isinstance(given, io.TextIOBase):
        yield _write_text(given)
    elif callable(getattr(given, "write", None)):
        yield _write_bytes(given)
    else:
        raise TypeError(f"expected a path or a file object to write to, not {type(given).__name__}")
