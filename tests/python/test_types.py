"""The type checker's view of the package, and what the stubs say of the core."""

import inspect
import os
import subprocess
import sys
from pathlib import Path

import pytest
from conftest import PROJECT

import fluidbench_io as fb

PACKAGE = Path(fb.__file__).parent
CHECKS = [
    ["-m", "mypy", "--config-file", PROJECT / "python" / "mypy.ini", "--no-incremental", PACKAGE],
    ["-m", "mypy.stubtest", "fluidbench_io._core", "--ignore-missing-stub", "--mypy-config-file",
     PROJECT / "python" / "mypy.ini", "--allowlist", "of-pybind11"],
]


@pytest.mark.parametrize("arguments", CHECKS)
def test_a_type_checker_accepts_the_package(arguments, tmp_path):
    (tmp_path / "of-pybind11").write_text("fluidbench_io._core.DfaImport(.__init__)?\n")
    run = subprocess.run(
        [sys.executable, *arguments],
        cwd=tmp_path,
        env={**os.environ, "MYPYPATH": str(PACKAGE.parent)},
        text=True,
        capture_output=True,
    )
    assert run.returncode == 0, run.stdout + run.stderr


def test_every_public_function_has_a_docstring_with_an_example():
    for name in fb.__all__:
        thing = getattr(fb, name)
        assert inspect.getdoc(thing), name
        if inspect.isfunction(thing):
            assert ">>>" in thing.__doc__, name
