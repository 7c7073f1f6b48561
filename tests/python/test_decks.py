"""Keyword decks, and fluids made of data frames."""

import io
import threading

import numpy as np
import pandas as pd
import pytest
from conftest import DATA

import fluidbench_io as fb

TYPED = DATA / "reservoir-oil-field.dat"
RANKINE = 5.0 / 9.0
PSI = 4.4482216152605 / 0.0254**2


def test_typed_deck_comes_in_model_units():
    fluid = fb.read_deck(TYPED)
    c1 = fluid.components.loc["C1"]
    assert c1["critical_pressure"] == pytest.approx(667.8 * PSI, rel=1e-12)
    assert c1["critical_temperature"] == pytest.approx(343.0 * RANKINE, rel=1e-12)
    assert np.isnan(c1["reference_density"])
    assert fluid.components.attrs["units"]["critical_pressure"] == "Pa"
    assert list(fluid.components["fraction"]) == [0.5, 0.03, 0.07, 0.2, 0.15, 0.05]
    assert fluid.interactions.loc["C20", "C3"] == fluid.interactions.loc["C3", "C20"] == 0.005
    assert (fluid.eos, fluid.viscosity, fluid.units) == (
        "PengRobinson",
        "LohrenzBrayClark",
        "field",
    )


@pytest.mark.parametrize("units", ["metric", "field"])
def test_a_fluid_comes_back(units, tmp_path):
    fluid = fb.read_deck(TYPED)
    fb.write_deck(fluid, tmp_path / "deck.dat", temperature=344.26, units=units, runspec=True)
    back = fb.read_deck(tmp_path / "deck.dat")
    assert back.units == units
    # A value that isn't there is written as a zero.
    known = fluid.components.drop(columns=["reference_conditions", "non_hydrocarbon"])
    pd.testing.assert_frame_equal(
        back.components[known.columns].fillna(0.0), known.fillna(0.0), rtol=1e-9
    )
    pd.testing.assert_frame_equal(back.interactions, fluid.interactions)


def test_units_are_told_where_a_deck_has_none(tmp_path):
    deck = tmp_path / "deck.dat"
    deck.write_text(
        "EOS\nPR /\nCNAMES\nC1 /\nMW\n16 /\nOMEGAA\n.457 /\nOMEGAB\n.0778 /\n"
        "TCRIT\n190 /\nPCRIT\n46 /\nACF\n.01 /\nZI\n1 /\n"
    )
    metric = fb.read_deck(deck, units="metric").components.loc["C1", "critical_pressure"]
    field = fb.read_deck(deck, units="field").components.loc["C1", "critical_pressure"]
    assert (metric, field) == (pytest.approx(46e5), pytest.approx(46 * PSI))


def test_frames_in_any_order_make_a_deck(gas):
    gas.interactions = pd.DataFrame({"C2": [np.nan, 0.0], "C1": [0.0, 0.01]}, ["C1", "C2"])
    deck = io.StringIO()
    fb.write_deck(gas, deck)
    # Zeros stand for the values that aren't there.
    with pytest.warns(fb.FluidBenchWarning, match=r"line \d+: .* MW .*\[deck.property-missing\]"):
        back = fb.read_deck(io.StringIO(deck.getvalue()))
    assert {diagnostic.code for diagnostic in back.diagnostics} == {"deck.property-missing"}
    assert list(back.components["critical_pressure"]) == pytest.approx([45.99e5, 48.72e5])
    assert back.interactions.loc["C1", "C2"] == 0.01


def set_fraction(fluid, value):
    fluid.components["fraction"] = value


def rename(fluid, *names):
    fluid.components.index = names


def test_bad_fluids_are_refused(gas, tmp_path):
    def components(change):
        return lambda fluid: setattr(fluid, "components", change(fluid.components))

    cases = [
        (components(lambda f: f.iloc[:0]), fb.FluidBenchError, "no components"),
        (components(lambda f: f.drop(columns="fraction")), fb.FluidBenchError, "'fraction'"),
        (components(lambda f: f.to_dict()), TypeError, "pandas.DataFrame, not dict"),
        (components(lambda f: f.rename(columns={"acentric_factor": "acentric"})),
         fb.FluidBenchError, "did you mean 'acentric_factor'"),
        (components(lambda f: f[["fraction", "fraction"]]), fb.FluidBenchError, "'fraction'"),
        (lambda f: set_fraction(f, [0.9, np.nan]), fb.FluidBenchError, "nan in row 1"),
        (lambda f: set_fraction(f, [0.9, np.inf]), fb.FluidBenchError, "inf in row 1"),
        (lambda f: set_fraction(f, [0.9, -0.1]), fb.FluidBenchError, "'C2', fraction"),
        (lambda f: set_fraction(f, ["0.9", "0.1"]), TypeError, "has to hold numbers"),
        (lambda f: set_fraction(f, [0.9, None]), fb.FluidBenchError, "nan in row 1"),
        (lambda f: rename(f, "C1", "C1"), fb.FluidBenchError, "are called 'C1'"),
        (lambda f: rename(f, "C1", ""), fb.FluidBenchError, "name"),
        (lambda f: rename(f, "C1", 2), TypeError, "not int"),
        (lambda f: f.components.__setitem__("critical_pressure", [-1.0, 1.0]),
         fb.FluidBenchError, "'C1', critical_pressure"),
        (lambda f: setattr(f, "eos", "vdW"), fb.FluidBenchError, "eos 'vdW' isn't one of"),
        (lambda f: setattr(f, "temperature", None), fb.FluidBenchError, "give temperature="),
        (lambda f: setattr(f, "temperature", "hot"), TypeError, "has to be a number, not str"),
        (lambda f: setattr(f, "interactions", pd.DataFrame([[0.0]], ["C1"], ["C1"])),
         fb.FluidBenchError, "the rows of interactions"),
        (lambda f: setattr(f, "interactions",
                           pd.DataFrame([[0, 1], [2, 0]], ["C1", "C2"], ["C1", "C2"])),
         fb.FluidBenchError, "the other way round"),
    ]
    deck = tmp_path / "deck.dat"
    deck.write_text("as it was")
    for spoil, exception, text in cases:
        spoiled = fb.Fluid(gas.components.copy(), temperature=350.0)
        spoil(spoiled)
        with pytest.raises(exception, match=text):
            fb.write_deck(spoiled, deck)
    assert deck.read_text() == "as it was"


def test_a_deck_that_cannot_be_read_says_why(tmp_path):
    with pytest.raises(fb.FluidBenchError, match="'nowhere.dat'") as missing:
        fb.read_deck("nowhere.dat")
    assert 3242 in [message.number for message in missing.value.messages]
    with pytest.raises(fb.FluidBenchError, match="can't be read as a deck"):
        fb.read_deck(tmp_path)
    with pytest.raises(ValueError, match="units has to be one of 'auto'"):
        fb.read_deck(TYPED, units="imperial")
    with pytest.raises(TypeError, match="not int"):
        fb.read_deck(3)


def test_the_simulators_log_is_a_logger_of_pythons(caplog):
    with pytest.raises(fb.FluidBenchError):
        fb.read_deck(io.StringIO("CNAMES\nC1 /\nMW\nheavy /\n"))
    (record,) = [r for r in caplog.records if r.levelname == "ERROR"]
    assert record.name == "fluidbench_io.simulator" and "'heavy'" in record.getMessage()


def test_threads_read_at_once():
    found = []
    threads = [
        threading.Thread(target=lambda: found.extend(fb.read_deck(TYPED) for _ in range(20)))
        for _ in range(4)
    ]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert len(found) == 80
    for fluid in found:
        pd.testing.assert_frame_equal(fluid.components, found[0].components)
