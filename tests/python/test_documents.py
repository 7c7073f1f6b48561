"""The tour of docs/python.md and the script in examples/, as their readers run them."""

import doctest
import os
import re
import subprocess
import sys

import pytest
from conftest import DATA, PROJECT

import fluidbench_io as fb


def test_tour_does_what_it_shows(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    (tmp_path / "examples").symlink_to(PROJECT / "examples")
    (tmp_path / "typo.dat").write_text("CNAMES\nC1 /\nMW\nheavy /\n")
    page = (PROJECT / "docs" / "python.md").read_text(encoding="utf-8")
    blocks = re.findall(r"^```python\n(.*?)^```", page, re.M | re.S)
    tour = doctest.DocTestParser().get_doctest("\n".join(blocks), {}, "python.md", None, 0)
    said = []
    runner = doctest.DocTestRunner(optionflags=doctest.NORMALIZE_WHITESPACE)
    runner.run(tour, out=said.append)
    assert runner.tries > 15 and runner.failures == 0, "".join(said)


def test_example_tunes_and_draws(tmp_path):
    subprocess.run(
        [sys.executable, PROJECT / "examples" / "tune_fluid.py", tmp_path],
        check=True,
        capture_output=True,
        env={**os.environ, "MPLCONFIGDIR": str(tmp_path / "matplotlib")},
    )
    typed = fb.read_deck(DATA / "reservoir-oil-field.dat").components["critical_pressure"]
    tuned = fb.read_deck(tmp_path / "tuned.dat").components["critical_pressure"]
    assert (tuned / typed).tolist() == pytest.approx([1.0] * 5 + [0.92])
    read = fb.read_black_oil(DATA / "two-region-black-oil.inc").region(1).oil["viscosity"]
    scaled = fb.read_black_oil(tmp_path / "scaled.inc").oil["viscosity"]
    assert (scaled / read).tolist() == pytest.approx([1.05] * len(read), rel=1e-6)
    picture = (tmp_path / "tuned-fluid.svg").read_text()
    assert picture.count("#c00000") > 6  # what was tuned is drawn
