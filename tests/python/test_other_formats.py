"""K-values, thermal data, depth tables, envelopes, downhole analysis and MFL files."""

import io

import numpy as np
import pandas as pd
import pytest
from conftest import DATA

import fluidbench_io as fb


def written(write, *arguments, **options):
    text = io.StringIO()
    write(*arguments, text, **options)
    return text.getvalue()


def refused(cases, write):
    """Each case is a table, the exception and its words."""
    for table, exception, words in cases:
        with pytest.raises(exception, match=words):
            written(write, table)


K_VALUES = pd.DataFrame({"C1": [20.9, 10.5], "C3": [1.07, 0.54]}, index=[25e5, 50e5])


def test_k_values():
    text = written(fb.write_k_values, fb.KValues(K_VALUES, temperature=344.0))
    assert "25.00000000" in text and "344.00000000" in text and "C1 " in text
    assert "psi" in written(fb.write_k_values, fb.KValues(K_VALUES), units="field")
    refused(
        [
            (fb.KValues(K_VALUES.iloc[:, :0]), fb.FluidBenchError, "no components"),
            (fb.KValues(K_VALUES[["C1", "C1"]]), fb.FluidBenchError, "are called 'C1'"),
            (fb.KValues(K_VALUES.replace(0.54, np.nan)), fb.FluidBenchError, "row 1, column 1"),
            (fb.KValues(K_VALUES.set_axis(["a", "b"])), TypeError, "index of values"),
            (fb.KValues(K_VALUES, temperature=-3.0), fb.FluidBenchError, "in K"),
            (K_VALUES, TypeError, "a KValues, not DataFrame"),
        ],
        fb.write_k_values,
    )


def thermal(**columns):
    names = [name for name, _ in fb._core.THERMAL_COLUMNS if not name.startswith("crookston")]
    frame = pd.DataFrame({name: [1.0, 2.0] for name in names}, index=["C1", "C3"])
    return fb.Thermal(frame.assign(**columns), 288.7, 101325.0)


def test_thermal_data():
    table = thermal(critical_temperature=[190.5, 369.8])
    text = written(fb.write_thermal, table)
    assert "TCRIT\n" in text and "190.5000000000000000" in text and "'C3'" in text
    fit = {f"crookston_{letter}": [0.5, 0.25] for letter in "abcde"}
    assert len(written(fb.write_thermal, thermal(**fit))) > len(text)
    lacking = thermal()
    lacking.components = lacking.components.drop(columns="z_factor")
    refused(
        [
            (thermal(crookston_a=1.0), fb.FluidBenchError, "only crookston_a of"),
            (thermal(z=1.0), fb.FluidBenchError, "no column 'z'"),
            (lacking, fb.FluidBenchError, "lacks the column 'z_factor'"),
            (thermal(fraction=np.nan), fb.FluidBenchError, "nan in row 0"),
            (fb.Thermal(thermal().components, "15 C", 1e5), TypeError, "standard_temperature"),
        ],
        fb.write_thermal,
    )


def test_typed_keywords_come_in_model_units():
    first, second = fb.read_k_values(DATA / "two-temperatures-k-values.inc")
    assert first.values.loc[first.values.index[0], "C3"] == 0.52
    assert second.values.index[2] == pytest.approx(2000.0 * 6894.757293)
    assert second.temperature == pytest.approx(344.2611)
    names = ["C1", "C3", "C6"]
    bubble, ratio, fractions = fb.read_depth_tables(
        DATA / "north-flank-depth.inc", components=names
    )
    assert bubble.values["bubble_point"].tolist() == pytest.approx([165e5, 154e5, 149.4e5])
    assert bubble.values.attrs["units"] == {"depth": "m", "bubble_point": "Pa"}
    assert (ratio.keyword, ratio.values["gas_oil_ratio"][2590.0]) == ("RSVD", 104.7)
    assert fractions.values.loc[2590.0].to_dict() == {"C1": 0.56, "C3": 0.26, "C6": 0.18}
    with pytest.raises(fb.FluidBenchError, match="the file has 3 components, and 2 are named"):
        fb.read_depth_tables(DATA / "north-flank-depth.inc", components=names[:2])
    field = fb.read_black_oil(DATA / "two-region-black-oil.inc")
    assert field.oil["region"].tolist() == [1] * 4 + [2] * 4
    assert field.region(2).oil.iloc[1][["record", "pressure"]].tolist() == pytest.approx([1, 150e5])
    assert field.gas.attrs == field.region(2).gas.attrs


@pytest.mark.parametrize("units", ["metric", "field"])
def test_compositions_come_back(units):
    (table,) = fb.read_compositions(DATA / "north-flank-compositions.inc")
    text = written(fb.write_compositions, table, units=units, high_precision=True)
    (back,) = fb.read_compositions(io.StringIO(text))
    for phase in ("vapour", "liquid"):
        frame = getattr(table, phase)
        pd.testing.assert_frame_equal(getattr(back, phase).sort_index(), frame.sort_index())
    refused(
        [
            (fb.Compositions(None, None), fb.FluidBenchError, "no phase"),
            (fb.Compositions(table.vapour, table.liquid.iloc[:1]), fb.FluidBenchError, "other"),
            (table.vapour, TypeError, "a Compositions, not DataFrame"),
        ],
        fb.write_compositions,
    )


def depth_table(keyword, column, values, depths):
    return fb.DepthTable(keyword, pd.DataFrame({column: values}, index=depths))


GAS = depth_table("PDVD", "dew_point", [155e5, 160e5], [2440.0, 2470.0])
OIL = depth_table("PBVD", "bubble_point", [165e5, 159e5], [2500.0, 2530.0])


def test_depth_tables():
    assert "        2470\t160\n/\n-- Units: bar\nPBVD" in written(fb.write_depth_tables, [GAS, OIL])
    vapour = depth_table("RVVD", "oil_gas_ratio", [1e-4, 0.0], [2440.0, 2470.0])
    dissolved = depth_table("RSVD", "gas_oil_ratio", [150.0, 0.0], [2500.0, 2530.0])
    text = written(fb.write_depth_tables, [vapour, dissolved])
    assert "2440\t0.0001\n        2470\t0\n/\n" in text and "2500\t150\n        2530\t0\n/" in text
    composition = fb.DepthTable("ZMFVD", pd.DataFrame({"C1": [0.9], "C2": [0.1]}, index=[1000.0]))
    assert "3280.84 0.9\n             0.1\n" in written(
        fb.write_depth_tables, [composition], units="field"
    )
    refused(
        [
            ([], fb.FluidBenchError, "no rows"),
            ([OIL, GAS], fb.FluidBenchError, "PBVD and PDVD don't share a file"),
            ([OIL, OIL], fb.FluidBenchError, "has to lie below"),
            ([GAS, OIL, OIL], fb.FluidBenchError, "has 2 of PDVD at most"),
            ([depth_table("PVTO", "x", [1.0], [1.0])], ValueError, "keyword has to be one of"),
            ([depth_table("PBVD", "x", [1.0], [1.0])], fb.FluidBenchError, "no column 'x'"),
            ([depth_table("PBVD", "bubble_point", [np.nan], [1.0])], fb.FluidBenchError, "nan"),
            (["PBVD"], TypeError, "DepthTable, not str"),
        ],
        fb.write_depth_tables,
    )


@pytest.mark.parametrize(
    "name, separator", [("rich-gas-envelope.csv", "comma"), ("separator-train-envelopes.txt", "tab")]
)
def test_envelopes_come_back(name, separator):
    plots = fb.read_envelopes(DATA / name)
    first = plots[0][0]
    assert (first.kind, list(first.points.columns)) == ("bubble", ["temperature", "pressure"])
    assert first.points.attrs["units"]["pressure"] == "Pa"
    assert {line.fraction for line in plots[0] if line.kind == "vapour_fraction"} > {0.0} - {0.0}
    assert written(fb.write_envelopes, plots, separator=separator) == (DATA / name).read_text()


def test_bad_envelopes_are_refused(tmp_path):
    for text in ("", "Flash:\n" * 9, "\0"):
        with pytest.raises(fb.FluidBenchError, match="can't be read as phase envelopes"):
            fb.read_envelopes(io.StringIO(text))
    points = pd.DataFrame({"pressure": [1e5], "temperature": [300.0]})
    refused(
        [
            ([[fb.EnvelopeLine("melting", points)]], ValueError, "kind has to be one of"),
            ([[fb.EnvelopeLine("dew", points, 1.5)]], fb.FluidBenchError, "between 0 and 1"),
            ([[fb.EnvelopeLine("dew", points[["pressure"]])]], fb.FluidBenchError, "lacks"),
            ([[points]], TypeError, "EnvelopeLine, not DataFrame"),
        ],
        fb.write_envelopes,
    )


MAIN = DATA / "north-field_DFA.txt"
FT = DATA / "north-field_FT.txt"


def test_downhole_analysis():
    with pytest.warns(fb.FluidBenchWarning, match="pressure"):
        job = fb.read_dfa(MAIN)
    stations = job.stations
    assert stations["well"].value_counts().to_dict() == {"NORTH 1": 7, "NORTH 2": 5}
    row = stations.index[stations["pressure"].isna()][0]  # its row is missing in the FT file
    assert stations.loc[row, ["well", "station"]].tolist() == ["NORTH 2", 4]
    assert job.stations_in_file_units.loc[0, ["depth", "pressure", "C1"]].tolist() == [
        9812.0,
        4591.5,
        0.138,
    ]
    assert stations.loc[0, "depth"] == pytest.approx(9812.0 * 0.3048)
    fluid = job.raw_fluid(0)
    assert fluid.fraction_basis == "Mass" and fluid.components.loc["C1", "fraction"] == 0.138
    with pytest.raises(fb.FluidBenchError, match="no station in row 12"):
        job.raw_fluid(12)
    with pytest.warns(fb.FluidBenchWarning), open(MAIN, "rb") as main, open(FT) as ft:
        assert fb.read_dfa(main, ft=ft).stations.equals(stations)


def test_half_an_analysis_is_refused(tmp_path):
    for main, ft, words in (
        (tmp_path / "a_DFA.txt", None, "can't be read as an export"),
        (io.BytesIO(MAIN.read_bytes()), None, "give ft="),
        (MAIN, tmp_path / "a_FT.txt", "a_FT.txt' can't be read: No such file"),
        (MAIN, io.StringIO("no header"), "can't be read as an export"),
    ):
        with pytest.raises(fb.FluidBenchError, match=words):
            fb.read_dfa(main, ft=ft)


def test_mfl_file():
    fluid, streams = fb.read_mfl(DATA / "six-component-oil.mfl")
    assert fluid.name == "Six-component oil"
    assert fluid.components.loc["C6", "critical_pressure"] == pytest.approx(30.1232e5)
    assert streams.loc[2].tolist() == [0.77, 0.2, 0.03, 0.0, 0.0, 0.0]
    with pytest.raises(fb.FluidBenchError, match="The file object can't be read as an MFL file"):
        fb.read_mfl(io.StringIO("MFL 2\n"))
