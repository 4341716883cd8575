"""Finds and loads the shared library."""

import os
import sys
from ctypes import CDLL, c_char_p

from .._version import VERSION


def _numbers(version: str) -> tuple[int, ...]:
    return tuple(int(number) for number in version.split("."))


def _installed_name() -> str:
    """The name under which the system knows the library; before 1.0 minor versions stand apart."""
    major, minor, _ = _numbers(VERSION)
    number = f"{major}.{minor}" if major == 0 else str(major)
    if sys.platform == "win32":
        return "libquorvel_c.dll"
    if sys.platform == "darwin":
        return f"libquorvel_c.{number}.dylib"
    return f"libquorvel_c.so.{number}"


def fits(library: str, package: str = VERSION) -> bool:
    """Whether a library of that version has what the package calls."""
    has, needs = _numbers(library), _numbers(package)
    return has[:2] == needs[:2] if needs[0] == 0 else has[0] == needs[0] and has[1] >= needs[1]


def load() -> CDLL:
    path = os.environ.get("QUORVEL_LIBRARY", "")
    try:
        library = CDLL(path or _installed_name())
    except OSError as error:
        advice = "" if path else "; install it, or name its file in QUORVEL_LIBRARY"
        raise ImportError(f"Quorvel's C library cannot be loaded: {error}{advice}") from None
    if not hasattr(library, "quorvel_version"):
        raise ImportError(f"{path} is not Quorvel's C library")
    library.quorvel_version.restype = c_char_p
    version = library.quorvel_version().decode()
    if not fits(version):
        raise ImportError(f"Quorvel's C library has version {version}, this package {VERSION}")
    return library
