"""Black-oil tables."""

import io

import numpy as np
import pandas as pd
import pytest
from conftest import DATA, PROJECT

import fluidbench_io as fb

CSV = DATA / "reservoir-black-oil.csv"


def text_of(table, **options):
    text = io.StringIO()
    fb.write_black_oil(table, text, **options)
    return text.getvalue()


def test_sample_comes_in_model_units():
    table = fb.read_black_oil(CSV)
    assert list(table.oil.columns) == [
        "region",
        "record",
        "gas_oil_ratio",
        "pressure",
        "formation_volume_factor",
        "viscosity",
    ]
    assert table.oil.iloc[4].to_dict() == pytest.approx(
        {
            "region": 1,
            "record": 2,
            "gas_oil_ratio": 60.0,
            "pressure": 145e5,
            "formation_volume_factor": 1.2029,
            "viscosity": 0.6148e-3,
        }
    )
    assert table.oil["record"].dtype.kind == "i"
    assert table.gas.attrs["units"]["viscosity"] == "Pa.s"
    assert table.regions.loc[1, ["oil_density", "gas_density", "oil", "gas"]].tolist() == [
        800.0,
        1.05,
        "live",
        "wet",
    ]


@pytest.mark.parametrize("units", ["metric", "field"])
@pytest.mark.parametrize("form", ["csv", "keyword"])
def test_tables_come_back(pvt, form, units):
    back = fb.read_black_oil(io.StringIO(text_of(pvt, form=form, units=units)))
    pd.testing.assert_frame_equal(back.oil, pvt.oil, check_dtype=False, rtol=1e-6)
    pd.testing.assert_frame_equal(back.gas, pvt.gas, check_dtype=False, rtol=1e-3)
    assert back.regions["oil_density"].tolist() == pytest.approx([800.0])


def test_rows_go_into_the_tables_that_are_asked_for(pvt):
    text = text_of(pvt, tables="dead-dry")
    assert "PVDO\n" in text and "PVDG\n" in text and "PVTO" not in text
    with pytest.raises(ValueError, match="tables has to be one of 'live-wet'"):
        text_of(pvt, tables="wet")
    assert text_of(fb.BlackOil.of_one_region(oil=pvt.oil, tables="dead-wet")).count("PVDO\n") == 1


def test_all_regions_come_back():
    field = fb.read_black_oil(DATA / "two-region-black-oil.inc")
    back = fb.read_black_oil(io.StringIO(text_of(field)))
    pd.testing.assert_frame_equal(back.oil, field.oil, rtol=1e-6)
    pd.testing.assert_frame_equal(back.gas, field.gas, rtol=1e-3)
    assert back.regions["oil_density"].tolist() == pytest.approx([830.0, 805.0])
    with pytest.raises(fb.FluidBenchError, match="2: write table.region"):
        text_of(field, form="csv")
    field.oil["region"] = 3
    with pytest.raises(fb.FluidBenchError, match="oil has rows of a region 3"):
        text_of(field)


def test_bad_tables_are_refused(pvt, tmp_path):
    cases = [
        ("oil", lambda f: f.drop(columns="viscosity"), fb.FluidBenchError, "lacks the column"),
        ("oil", lambda f: f.assign(bo=1.0), fb.FluidBenchError, "no column 'bo'"),
        ("oil", lambda f: f.assign(viscosity=np.nan), fb.FluidBenchError, "nan in row 0"),
        ("gas", lambda f: f.assign(pressure="60 bar"), TypeError, "'pressure' of gas"),
        ("gas", lambda f: f.assign(record=np.inf), fb.FluidBenchError, "inf in row 0"),
        ("gas", lambda f: f.values, TypeError, "pandas.DataFrame, not ndarray"),
        ("regions", lambda f: f.assign(oil_density=np.nan), fb.FluidBenchError, "oil_density"),
        ("regions", lambda f: pd.concat([f, f]), fb.FluidBenchError, r"a row for each, not \[1, 1\]"),
    ]
    for attribute, change, exception, text in cases:
        spoiled = fb.BlackOil(pvt.oil, pvt.gas, pvt.regions)
        setattr(spoiled, attribute, change(getattr(pvt, attribute)))
        with pytest.raises(exception, match=text):
            fb.write_black_oil(spoiled, tmp_path / "pvt.inc")
    assert list(tmp_path.iterdir()) == []
    with pytest.raises(ValueError, match="form has to be one of"):
        text_of(pvt, form="excel")
    with pytest.raises(TypeError, match="not str"):
        fb.write_black_oil("pvt", tmp_path / "pvt.inc")


def test_what_a_reader_doubts_is_a_warning_that_stays():
    text = CSV.read_text().replace("30.00000000,105", "n/a,105")
    with pytest.warns(fb.FluidBenchWarning, match=r"line.csv:11: .*\[blackoil.not-a-number\]"):
        file = io.StringIO(text)
        file.name = "line.csv"
        table = fb.read_black_oil(file)
    (diagnostic,) = table.diagnostics
    assert (diagnostic.severity, diagnostic.line) == ("warning", 11)


@pytest.mark.parametrize("text", ["", "\0\1\2", "ODEN,1\n"])
def test_no_table_is_a_failure(text):
    with pytest.raises(fb.FluidBenchError, match="file object can't be read as black-oil") as none:
        fb.read_black_oil(io.StringIO(text))
    assert [d.severity for d in none.value.diagnostics]
