#!/usr/bin/env python3
"""A host in its smallest form: its device is an array of bytes. It reads the device into the
control, edits by name and in a window, writes back what changed, and looks at the array."""

import sys

import quorvel

BLOCK, BLOCKS = 16, 225


class Device(quorvel.Events):
    def __init__(self) -> None:
        self.memory = bytearray(BLOCK * BLOCKS)
        self.memory[15] = BLOCKS  # block 1, byte 15: how many there are
        self.memory[184 * BLOCK : 184 * BLOCK + 3] = b"\4\7T"  # block 185: cameras, code, name

    def request_blk(self, control: quorvel.Control, number: int) -> None:
        start = (number - 1) * BLOCK
        control.fill_data_blk(bytes([number]) + self.memory[start : start + BLOCK])

    def download_data(self, control: quorvel.Control, packet: bytes) -> None:
        if packet[0] <= BLOCKS:  # 255 ends a send
            start = (packet[0] - 1) * BLOCK
            self.memory[start : start + BLOCK] = packet[1 : 1 + BLOCK]
        control.trigger_upload_timer()


def main() -> int:
    device = Device()
    with quorvel.Platform() as platform, quorvel.Control(platform, device) as control:
        control.custom(quorvel.Command.DEVICE, 48, 1)  # device family, a caption of a DVR
        control.save_connected_info(b"\0\4\7T")

        control.start_receive()
        control["CamInfo(1).title"] = "Yard"
        control.custom(quorvel.Command.MENU, 1)
        platform.run_until_idle()
        platform.user.choose_menu("mnu_CSetup")
        platform.user.type("m_CameraTitle(0)", "Front door")
        platform.user.click("cmd_OK")
        control.start_send(modified_only=True)
        platform.run_until_idle()

        differences = control.differences(device.memory)
    titles = [device.memory[at : at + 12].rstrip(b" \0").decode("cp1252") for at in (0, BLOCK)]
    print(f"quorvel {quorvel.library_version()}: {', '.join(titles)}")
    return 0 if titles == ["Front door", "Yard"] and not differences else 1


if __name__ == "__main__":
    sys.exit(main())
