"""Velkor: models in IFC (ISO 16739) read, checked and classified.

    >>> import velkor
    >>> model = velkor.open("house.ifc")
    >>> [wall.Name for wall in model.by_entity("IfcWall")]

What cannot be done raises velkor.Error, whose `code` tells programs why.
"""

from . import _velkor
from ._velkor import *  # noqa: F403

__all__ = [name for name in dir(_velkor) if not name.startswith("_")]
for _name in __all__:
    if isinstance(getattr(_velkor, _name), type):
        getattr(_velkor, _name).__module__ = "velkor"
del _name, _velkor
