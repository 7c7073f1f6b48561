"""The simulator's log as a logger of Python's."""

import atexit
import logging

from . import _core

logging.getLogger("fluidbench_io").addHandler(logging.NullHandler())
_core.start_logging(logging.getLogger("fluidbench_io.simulator").log)
atexit.register(_core.stop_logging)
