"""How long Python takes to read a million black-oil rows into data frames, as a multiple of what C++
takes to read the same file. The two take turns, and the least processor times are compared.

    PYTHONPATH=build/release/python /usr/bin/python3 benchmarks/python/black_oil.py \\
        build/release/bin/ReadBlackOil [ROWS]
"""

import subprocess
import sys
import tempfile
import time
import warnings
from pathlib import Path

import numpy as np
import pandas as pd

import fluidbench_io as fb

ROWS_OF_A_RECORD = 10
TURNS = 7
BAR = 1.5


def sample(rows: int) -> fb.BlackOil:
    """Half of the rows are oil, half gas, sound and with digits that no short number has."""
    random = np.random.default_rng(5)
    records = rows // 2 // ROWS_OF_A_RECORD

    def ascending(first: float, last: float, count: int) -> np.ndarray:
        return np.sort(random.uniform(first, last, count))

    def frame(**columns: np.ndarray) -> pd.DataFrame:
        half = records * ROWS_OF_A_RECORD
        return pd.DataFrame(
            {
                "record": np.repeat(np.arange(records) + 1, ROWS_OF_A_RECORD),
                "formation_volume_factor": random.uniform(0.003, 2.0, half),
                "viscosity": random.uniform(1e-5, 3e-3, half),
                **columns,
            }
        )

    within = np.sort(random.uniform(0.0, 1.0, (records, ROWS_OF_A_RECORD)), axis=1)
    oil = frame(
        gas_oil_ratio=np.repeat(ascending(10.0, 300.0, records), ROWS_OF_A_RECORD),
        pressure=(ascending(20e5, 600e5, records)[:, None] + 1e7 * within).ravel(),
    )
    gas = frame(
        pressure=np.repeat(ascending(20e5, 600e5, records), ROWS_OF_A_RECORD),
        oil_gas_ratio=(1e-3 * within[:, ::-1]).ravel(),
    )
    return fb.BlackOil.of_one_region(oil, gas, oil_density=830.0, gas_density=1.0)


def main() -> None:
    program = sys.argv[1]
    rows = int(sys.argv[2]) if len(sys.argv) > 2 else 1_000_000
    warnings.simplefilter("error")  # telling of an unsound file would take its time
    with tempfile.TemporaryDirectory() as folder:
        path = Path(folder) / "rows.csv"
        fb.write_black_oil(sample(rows), path, form="csv")
        in_cpp, in_python = [], []
        for _ in range(TURNS):
            in_cpp.append(float(subprocess.check_output([program, path, "1"])))
            begin = time.process_time()
            table = fb.read_black_oil(path)
            in_python.append(time.process_time() - begin)
            assert len(table.oil) + len(table.gas) == rows
            del table
    print(f"read {rows} black-oil rows: C++ {min(in_cpp):.3f} s, Python {min(in_python):.3f} s")
    print(f"Python : C++ {min(in_python) / min(in_cpp):.2f}, to stay under {BAR}")


if __name__ == "__main__":
    main()
