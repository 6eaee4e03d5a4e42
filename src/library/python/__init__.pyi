from typing import Optional

import numpy as np
import numpy.typing as npt

__version__: str
__all__ = ["Converter", "__version__"]

class Converter:
    """Converts points between WGS84, the user ellipsoid, the TM grid and the UTM grid."""

    def __init__(self, parameters: str = "", known_points: Optional[str] = None) -> None:
        """ValueError, with line and reason, for a text that is wrong."""

    def convert(
        self, system: str, first: npt.ArrayLike, second: npt.ArrayLike, h: npt.ArrayLike = 0.0
    ) -> npt.NDArray[np.void]:
        """A structured array of the common shape; ValueError for an unknown system or shapes that don't fit."""

    def status_text(self, code: int) -> str:
        """What a status means; empty for 0."""
