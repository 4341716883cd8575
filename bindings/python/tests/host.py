"""A host whose device is an array of blocks, which answers from inside the events."""

from typing import Any, Callable, Optional

import quorvel

BLOCK = 16


class Host(quorvel.Events):
    def __init__(self, platform: Optional[quorvel.Platform] = None, blocks: int = 225) -> None:
        self.device = bytearray(BLOCK * blocks)
        self.device[15] = blocks
        self.device[184 * BLOCK : 184 * BLOCK + 3] = b"\4\7T"  # cameras, model code, model name
        self.ends: list[str] = []
        self.act: dict[str, Callable[[], Any]] = {}  # by event, before it is handled
        self.platform = platform or quorvel.Platform()
        self.control = quorvel.Control(self.platform, self)
        self.control.custom(quorvel.Command.DEVICE, 48, 1)
        self.control.save_connected_info(b"\0\4\7T")

    def request_blk(self, control: quorvel.Control, number: int) -> None:
        self.act.get("request_blk", lambda: None)()
        block = self.device[(number - 1) * BLOCK : number * BLOCK]
        control.fill_data_blk(bytes([number]) + block)

    def download_data(self, control: quorvel.Control, packet: bytes) -> None:
        self.act.get("download_data", lambda: None)()
        if len(packet) == 18 and packet[0] * BLOCK <= len(self.device):
            self.device[(packet[0] - 1) * BLOCK : packet[0] * BLOCK] = packet[1:17]
        control.trigger_upload_timer()

    def upload_succeeded(self, control: quorvel.Control) -> None:
        self.act.get("upload_succeeded", lambda: None)()

    def ended(
        self,
        control: quorvel.Control,
        transfer: quorvel.Transfer,
        end: quorvel.TransferEnd,
        cause: str,
    ) -> None:
        self.ends.append(f"{transfer.name} {end.name} {cause}".strip())
        self.act.get("ended", lambda: None)()

    def open(self, item: str) -> None:
        self.control.custom(quorvel.Command.MENU, 1)
        self.platform.run_until_idle()
        self.platform.user.choose_menu(item)
