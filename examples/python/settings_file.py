#!/usr/bin/env python3
"""Makes a settings file from the factory defaults of a model, without a device."""

import quorvel

with quorvel.Control() as control:
    control.load_defaults(16, 6, "TX16", "2")  # or load_settings(bytes), or a device
    control["CamInfo(0).title"] = "Front door"
    control["AlarmMode"] = "Timed Out"
    control["MultiDwell"] = 10
    for name, value in control.settings("CamInfo(*).title"):
        print(name, value)
    assert control.describe("AlarmMode").codes == {0: "Latched", 1: "Transparent", 2: "Timed Out"}
    file = control.save_settings()

print(f"a file of {len(file)} bytes")
