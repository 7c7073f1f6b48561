"""What Python reads and writes, held to what the tool says of the same files."""

import io
import json
import os
import subprocess

import numpy as np
import pandas as pd
import pytest
from conftest import DATA

import fluidbench_io as fb

TOOL = os.environ.get("FLUIDBENCH_TOOL")
pytestmark = pytest.mark.skipif(TOOL is None, reason="the tool isn't built")


def run(*arguments):
    call = [TOOL, *map(str, arguments)]
    return subprocess.run(call, capture_output=True, encoding="utf-8", check=True).stdout


def shown(file_format, path):
    """What the tool has of a file, in model units, with digits enough to read them back."""
    return json.loads(run(file_format, "show", path, "--json"))


COMPONENT = {
    "fraction": "fraction",
    "molecularWeight": "molecular_weight",
    "tcrit": "critical_temperature",
    "pcrit": "critical_pressure",
    "vcrit": "critical_volume",
    "vcritViscosity": "critical_volume_viscosity",
    "zcrit": "critical_z_factor",
    "acf": "acentric_factor",
    "parachor": "parachor",
    "eosVolumeShift": "volume_shift",
    "omegaA": "omega_a",
    "omegaB": "omega_b",
}


def assert_same_fluid(fluid, said):
    names = [component["name"] for component in said["components"]]
    assert list(fluid.components.index) == names
    for member, column in COMPONENT.items():
        values = np.array([component[member] for component in said["components"]], dtype=float)
        np.testing.assert_array_equal(fluid.components[column], values, err_msg=column)
    assert [fluid.eos, fluid.viscosity, fluid.fraction_basis, fluid.name] == [
        said[key] for key in ("eos", "viscosityCorrelation", "componentFractionType", "name")
    ]
    coefficients = fluid.interactions.fillna(0.0)
    for pair in said["interactionCoefficients"]:
        assert coefficients.loc[pair["first"], pair["second"]] == pair["value"] != 0.0
    assert np.count_nonzero(coefficients) == 2 * len(said["interactionCoefficients"])


@pytest.mark.parametrize("units", ["metric", "field"])
def test_decks(units, tmp_path):
    typed = DATA / "reservoir-oil-field.dat"
    fluid = fb.read_deck(typed)
    assert_same_fluid(fluid, shown("deck", typed))
    fluid.components.loc["C20", "critical_pressure"] *= 0.92
    deck = tmp_path / "deck.dat"
    fb.write_deck(fluid, deck, temperature=344.25, units=units)
    said, back = shown("deck", deck), fb.read_deck(deck)
    assert_same_fluid(back, said)
    assert (back.units, back.temperature) == (said["unitsOfDeck"], said["reservoirTemperature"])
    assert said["components"][-1]["pcrit"] == pytest.approx(
        fluid.components.loc["C20", "critical_pressure"], rel=1e-9
    )


def test_mfl_file():
    path = DATA / "six-component-oil.mfl"
    fluid, streams = fb.read_mfl(path)
    said = shown("mfl", path)
    assert_same_fluid(fluid, said)
    assert streams.to_numpy().tolist() == said["streams"]


def rows_of(records):
    """The records of a table as the columns of Python's frames, the number of the record first."""
    rows = [
        (number, *entry)
        for number, record in enumerate(records, 1)
        for entry in zip(
            *(record[key] for key in ("pressure", "property", "formationVolumeFactor", "viscosity"))
        )
    ]
    return np.array(rows, dtype=float)


def test_black_oil(tmp_path):
    table = fb.read_black_oil(DATA / "reservoir-black-oil.csv")
    table.oil["viscosity"] *= 1.05
    table.regions["saturation_pressure"] = 150e5
    path = tmp_path / "scaled.csv"
    fb.write_black_oil(table, path, form="csv", high_precision=True)
    (said,) = shown("blackoil", path)["regions"]
    tables = (
        ("liveOilData", table.oil, "gas_oil_ratio"),
        ("wetGasData", table.gas, "oil_gas_ratio"),
    )
    for key, frame, ratio in tables:
        columns = ["record", "pressure", ratio, "formation_volume_factor", "viscosity"]
        np.testing.assert_allclose(frame[columns], rows_of(said[key]), rtol=1e-10)
    region = table.regions.iloc[0]
    assert said["oilDensity"] == region["oil_density"]
    assert said["gasDensity"] == region["gas_density"]
    assert said["saturationPointPressure"] == region["saturation_pressure"]


def test_envelopes(tmp_path):
    plots = fb.read_envelopes(DATA / "separator-train-envelopes.txt")
    path = tmp_path / "envelopes.csv"
    fb.write_envelopes(plots, path)
    said = shown("envelope", path)["plots"]
    assert len(said) == len(plots) > 1
    for plot, expected in zip(fb.read_envelopes(path), said):
        assert len(plot) == len(expected["lines"])
        for line, other in zip(plot, expected["lines"]):
            assert line.points["temperature"].tolist() == other["temperature"]
            assert line.points["pressure"].tolist() == other["pressure"]
            if line.kind == "vapour_fraction":
                assert line.fraction == other["phaseFraction"]


def test_downhole_analysis():
    path = DATA / "north-field_DFA.txt"
    with pytest.warns(fb.FluidBenchWarning):
        stations = fb.read_dfa(path).stations
    columns = {
        "depths": "depth",
        "pressures": "pressure",
        "temperatures": "temperature",
        "densities": "density",
        "gasOilRatios": "gas_oil_ratio",
        "stationValues": "station_value",
        "compositions": ["C1", "C2", "C3-C5", "C6+", "CO2"],
    }
    for well in shown("dfa", path)["wells"]:
        rows = stations[stations["well"] == well["name"]]
        for member, column in columns.items():
            np.testing.assert_array_equal(rows[column], np.array(well[member], dtype=float))


def converted(file_format, sample, path, *options):
    """A sample with commas as the keyword file that the tool makes of it."""
    run(file_format, "convert", DATA / sample, path, *options)
    return path.read_text(), shown(file_format, DATA / sample)


def written(write, table, **options):
    text = io.StringIO()
    write(table, text, **options)
    return text.getvalue()


@pytest.mark.parametrize("units", ["metric", "field"])
def test_k_values(units, tmp_path):
    path = tmp_path / "k.inc"
    text, said = converted("kvalues", "six-component-k-values.csv", path, "--to-units", units)
    (table,) = fb.read_k_values(path)
    (said,) = said["tables"]
    assert list(table.values.columns) == said["components"]
    assert table.temperature == pytest.approx(said["temperature"], abs=1e-6)
    np.testing.assert_allclose(table.values.reset_index(), said["records"], rtol=1e-7, atol=1e-8)
    assert written(fb.write_k_values, table, units=units) == text


THERMAL = {
    "molecularWeights": "molecular_weight",
    "criticalTemperatures": "critical_temperature",
    "criticalPressures": "critical_pressure",
    "referenceDensities": "reference_density",
    "acentricFactors": "acentric_factor",
    "heatVaps": "heat_of_vaporisation",
    "cRefs": "compressibility",
    "thermEx1s": "thermal_expansion",
    "crookstonD": "crookston_d",
    "crookstonE": "crookston_e",
}


@pytest.mark.parametrize("units", ["metric", "field"])
def test_thermal_data(units, tmp_path):
    path = tmp_path / "thermal.inc"
    text, said = converted("thermal", "six-component-thermal.csv", path, "--to-units", units)
    table = fb.read_thermal(path)
    assert list(table.components.index) == said["componentNames"]
    assert table.standard_pressure == pytest.approx(said["standardPressure"])
    for member, column in THERMAL.items():
        np.testing.assert_allclose(
            table.components[column], said[member], rtol=1e-4, err_msg=column
        )
    # Twice through numbers of so many digits changes none of them.
    again = fb.read_thermal(io.StringIO(written(fb.write_thermal, table, units=units)))
    pd.testing.assert_frame_equal(again.components, table.components, rtol=1e-9)


@pytest.mark.parametrize("table", ["compositions", "saturation"])
def test_depth_tables(table, tmp_path):
    path = tmp_path / "depth.inc"
    text, said = converted("depth", "depth-run.csv", path, "--table", table)
    by_depth = {stage["depth"]: stage for stage in said["stages"]}
    tables = fb.read_depth_tables(path)
    for read in tables:
        for depth, values in read.values.iterrows():
            stage = by_depth[round(depth, 6)]
            expected = stage["composition"]
            if table == "saturation":
                expected = [stage["saturationPressure"]]
            np.testing.assert_allclose(values, expected, rtol=1e-5)
    assert written(fb.write_depth_tables, tables) == text
