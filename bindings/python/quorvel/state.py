"""What a control is doing, and what its host keeps of it."""

from __future__ import annotations

from dataclasses import dataclass

from .enums import Transfer


@dataclass(frozen=True)
class State:
    has_image: bool
    transfer: Transfer
    combined: bool  # the combined exchange is selected
    done: int  # blocks of the transfer, and how many there are
    total: int


@dataclass(frozen=True)
class Properties:
    enabled: bool = True
    host_comm_id: int = 0
    font_family: str | None = None  # None: the platform's font, whatever stands below
    font_points: float = 0.0
    font_bold: bool = False
    font_italic: bool = False
