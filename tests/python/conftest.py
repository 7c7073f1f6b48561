"""What the tests share."""

import os
from pathlib import Path

import pandas as pd
import pytest

import fluidbench_io as fb

PROJECT = Path(os.environ["FLUIDBENCH_PROJECT"])
DATA = PROJECT / "examples" / "data"


@pytest.fixture(autouse=True)
def warnings_are_failures(recwarn):
    """A sound file gives no warning; a test that expects some says so."""
    yield
    assert [str(w.message) for w in recwarn if issubclass(w.category, fb.FluidBenchWarning)] == []


@pytest.fixture
def gas():
    """A fluid of two components, made of data frames."""
    return fb.Fluid(
        pd.DataFrame(
            {
                "critical_pressure": [45.99e5, 48.72e5],
                "fraction": [0.9, 0.1],
                "acentric_factor": [0.011, float("nan")],
            },
            index=["C1", "C2"],
        ),
        temperature=350.0,
    )


@pytest.fixture
def pvt():
    """Live oil of two records and one record of wet gas."""
    oil = pd.DataFrame(
        {
            "record": [1, 1, 2],
            "gas_oil_ratio": [30.0, 30.0, 60.0],
            "pressure": [45e5, 105e5, 85e5],
            "formation_volume_factor": [1.128, 1.1195, 1.212],
            "viscosity": [0.76e-3, 0.8056e-3, 0.58e-3],
        }
    )
    gas = pd.DataFrame(
        {
            "viscosity": [1.28e-5],
            "record": [1],
            "pressure": [60e5],
            "oil_gas_ratio": [5.2e-5],
            "formation_volume_factor": [0.0197],
        }
    )
    return fb.BlackOil.of_one_region(oil, gas, oil_density=800.0, gas_density=1.05)
