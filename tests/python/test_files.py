"""Paths and file objects, whole files, and the global lock."""

import io
import os
import stat
import threading
import warnings

import pytest
from conftest import DATA

import fluidbench_io as fb

CSV = DATA / "reservoir-black-oil.csv"
BYTES = CSV.read_bytes()


class Slow:
    """A file of bytes that gives and takes few at a time."""

    def __init__(self, content=b""):
        self.file = io.BytesIO(content)

    def read(self, size):
        return self.file.read(min(size, 7))

    def write(self, block):
        return self.file.write(bytes(block)[:7])


class Broken:
    """A file object that fails when it was used a few times."""

    def __init__(self, exception):
        self.exception = exception
        self.uses = 0

    def read(self, size):
        self.uses += 1
        if self.uses > 3:
            raise self.exception
        return b"ODEN,800\n"

    write = read


def test_paths_and_file_objects_give_the_same(tmp_path, monkeypatch):
    expected = fb.read_black_oil(CSV)
    monkeypatch.chdir(tmp_path)
    name = "öl-\udce9.csv"  # a byte that isn't UTF-8 in a file name
    with open(name, "wb") as file:
        file.write(b"\xef\xbb\xbf" + BYTES)
    with open(name, encoding="utf-8") as text, open(name, "rb") as raw:
        for given in (name, tmp_path / name, text, raw, io.BytesIO(BYTES), Slow(BYTES)):
            assert fb.read_black_oil(given).oil.equals(expected.oil)

    outputs = [tmp_path / "a", str(tmp_path / "b"), io.StringIO(), io.BytesIO(), Slow()]
    for output in outputs:
        fb.write_black_oil(expected, output)
    written = [(tmp_path / "a").read_bytes(), (tmp_path / "b").read_bytes()]
    written += [outputs[2].getvalue().encode(), outputs[3].getvalue(), outputs[4].file.getvalue()]
    assert written[0].startswith(b"-- DENSITY") and len(set(written)) == 1


def test_exceptions_of_a_file_object_pass_through(pvt):
    for exception in (RuntimeError("torn"), KeyboardInterrupt(), OSError(5, "bad sector")):
        with pytest.raises(type(exception)):
            fb.read_black_oil(Broken(exception))
    closed = io.StringIO("text")
    closed.close()
    for action in (fb.read_black_oil, fb.read_deck, fb.read_mfl,
                   lambda file: fb.write_black_oil(pvt, file)):
        with pytest.raises(ValueError, match="closed file"):
            action(closed)

    class Numbers(io.RawIOBase):
        read = staticmethod(lambda size: 3)

    with pytest.raises(TypeError, match="has to give bytes or str, not int"):
        fb.read_black_oil(Numbers())
    for action in (fb.read_black_oil, lambda file: fb.write_black_oil(pvt, file)):
        with pytest.raises(TypeError, match="a path or a file object"):
            action(3)


class ClosedUnderTheReader(io.BytesIO):
    def read(self, size=-1):
        block = super().read(20)
        self.close()
        return block


@pytest.mark.parametrize(
    "read, name",
    [
        (fb.read_deck, "reservoir-oil-field.dat"),
        (fb.read_black_oil, "two-region-black-oil.inc"),
        (fb.read_k_values, "two-temperatures-k-values.inc"),
        (fb.read_thermal, "two-component-thermal.inc"),
        (fb.read_depth_tables, "north-flank-depth.inc"),
        (fb.read_compositions, "north-flank-compositions.inc"),
        (fb.read_envelopes, "rich-gas-envelope.csv"),
        (fb.read_mfl, "six-component-oil.mfl"),
    ],
)
def test_every_reader_tells_what_it_cannot_read(read, name, tmp_path):
    with pytest.raises(ValueError, match="closed file"):
        read(ClosedUnderTheReader((DATA / name).read_bytes()))
    for nothing in (tmp_path / "nowhere", tmp_path, io.BytesIO(b"\0\xff/"), io.BytesIO()):
        with pytest.raises(fb.FluidBenchError, match="can't be read as") as told:
            read(nothing)
        assert told.value.messages or told.value.diagnostics
    if "units" in read.__annotations__:
        with pytest.raises(ValueError, match="units has to be one of 'auto', 'metric', 'field'"):
            read(DATA / name, units="imperial")


def test_a_failed_write_leaves_the_old_file(pvt, tmp_path):
    path = tmp_path / "pvt.inc"
    path.write_text("old")
    path.chmod(0o640)
    with pytest.raises(fb.FluidBenchError, match="'/dev/full' can't be written: No space left"):
        fb.write_black_oil(pvt, "/dev/full")
    with pytest.raises(fb.FluidBenchError, match="can't be written: Is a directory|written"):
        fb.write_black_oil(pvt, tmp_path)
    with pytest.raises(fb.FluidBenchError, match="can't be written: No such file"):
        fb.write_black_oil(pvt, tmp_path / "no" / "pvt.inc")
    link = tmp_path / "link"
    link.symlink_to("pvt.inc")
    assert path.read_text() == "old"
    fb.write_black_oil(pvt, link)
    assert link.is_symlink() and "PVTO" in path.read_text()
    assert stat.S_IMODE(path.stat().st_mode) == 0o640
    assert sorted(os.listdir(tmp_path)) == ["link", "pvt.inc"]


def test_other_threads_run_while_a_file_is_read(tmp_path):
    pipe = tmp_path / "pipe"
    os.mkfifo(pipe)
    tables = []
    # Opening a pipe waits for its other end, which this thread can be only if it isn't kept waiting.
    reader = threading.Thread(
        target=lambda: tables.append(fb.read_black_oil(pipe)), daemon=True
    )
    reader.start()
    with open(pipe, "wb") as file:
        file.write(BYTES)
    reader.join(60)
    assert tables and len(tables[0].oil) == 12


def test_warnings_can_be_made_failures():
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        with pytest.raises(fb.FluidBenchWarning):
            fb.read_black_oil(io.StringIO("PVTO, Rs\n\t,1,2,3\n\t,1,2,3,4\n"))
