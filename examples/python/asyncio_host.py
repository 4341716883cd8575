#!/usr/bin/env python3
"""Hosts in an event loop: several devices at the ends of slow lines, each with a control of its
own, are read, edited and written at the same time. One of them does not answer."""

import asyncio
import sys
from typing import Callable, Coroutine

import quorvel

BLOCK, BLOCKS = 16, 225


class Line:
    """A line to a device, on which everything takes its time."""

    def __init__(self, latency: float) -> None:
        self.latency = latency
        self.is_silent = False
        self.memory = bytearray(BLOCK * BLOCKS)
        self.memory[15] = BLOCKS  # block 1, byte 15: how many there are
        self.memory[184 * BLOCK : 184 * BLOCK + 3] = b"\4\7T"  # block 185: cameras, code, name

    async def read(self, number: int) -> bytes:
        await asyncio.sleep(3600 if self.is_silent else self.latency)
        start = (number - 1) * BLOCK
        return bytes([number]) + self.memory[start : start + BLOCK]

    async def write(self, packet: bytes) -> None:
        await asyncio.sleep(self.latency)
        if packet[0] <= BLOCKS:  # 255 ends a send
            start = (packet[0] - 1) * BLOCK
            self.memory[start : start + BLOCK] = packet[1 : 1 + BLOCK]


class Clock:
    """Has the clock of a platform go with the event loop's. It stops at each event, so that the
    loop gets its turn: a busy computer is no reason to miss an answer."""

    def __init__(self, platform: quorvel.Platform) -> None:
        self.platform = platform
        self.changed = asyncio.Event()

    async def run(self) -> None:
        loop = asyncio.get_running_loop()
        while True:
            begin = loop.time()
            due = self.platform.next_due
            try:  # to the next event, or until one may be due earlier
                await asyncio.wait_for(self.changed.wait(), None if due is None else due / 1000)
            except asyncio.TimeoutError:
                pass
            self.changed.clear()
            passed = round((loop.time() - begin) * 1000)
            due = self.platform.next_due
            self.platform.advance(passed if due is None else min(passed, due))


class Device(quorvel.Events):
    def __init__(self, clock: Clock, line: Line) -> None:
        self.clock, self.line = clock, line
        self.control = quorvel.Control(clock.platform, self)
        self.control.custom(quorvel.Command.DEVICE, 48, 1)  # device family, a caption of a DVR
        self.control.save_connected_info(b"\0\4\7T")
        self.tasks: set[asyncio.Task[None]] = set()
        self.end: asyncio.Future[None]

    async def receive(self) -> None:
        await self.transfer(self.control.start_receive)

    async def send(self) -> None:
        await self.transfer(lambda: self.control.start_send(modified_only=True))

    async def transfer(self, start: Callable[[], None]) -> None:
        self.end = asyncio.get_running_loop().create_future()
        start()
        self.clock.changed.set()
        try:
            await self.end
        except asyncio.CancelledError:
            self.control.cancel_transfer()
            raise
        finally:
            for task in self.tasks:
                task.cancel()

    def run(self, work: Coroutine[None, None, None]) -> None:
        task = asyncio.get_running_loop().create_task(work)
        self.tasks.add(task)
        task.add_done_callback(self.done)

    def done(self, task: "asyncio.Task[None]") -> None:
        self.tasks.discard(task)
        error = None if task.cancelled() else task.exception()
        if error is not None and not self.end.done():
            self.end.set_exception(error)

    # Events, which return at once. The answers come later.

    def request_blk(self, control: quorvel.Control, number: int) -> None:
        async def answer() -> None:
            control.fill_data_blk(await self.line.read(number))

        self.run(answer())

    def download_data(self, control: quorvel.Control, packet: bytes) -> None:
        async def acknowledge() -> None:
            await self.line.write(packet)
            control.trigger_upload_timer()
            self.clock.changed.set()  # the next packet is due soon

        self.run(acknowledge())

    def ended(
        self,
        control: quorvel.Control,
        transfer: quorvel.Transfer,
        end: quorvel.TransferEnd,
        cause: str,
    ) -> None:
        if self.end.done():
            return
        if end == quorvel.TransferEnd.FINISHED:
            self.end.set_result(None)
        else:
            self.end.set_exception(quorvel.Error(cause))


async def edit(device: Device, title: str) -> str:
    await asyncio.wait_for(device.receive(), 60)
    device.control["CamInfo(0).title"] = title
    await asyncio.wait_for(device.send(), 60)
    return device.line.memory[:12].rstrip(b" \0").decode("cp1252")


async def give_up(device: Device) -> str:
    try:
        await asyncio.wait_for(device.receive(), 0.2)
    except asyncio.TimeoutError:
        return device.control.state.transfer.name
    return ""


async def main() -> int:
    with quorvel.Platform() as platform:
        clock = Clock(platform)
        ticking = asyncio.get_running_loop().create_task(clock.run())
        devices = [Device(clock, Line(latency / 1000)) for latency in (0.5, 1, 2, 0)]
        devices[3].line.is_silent = True
        titles = ["Gate", "Tür", "Yard"]
        edits = [edit(device, title) for device, title in zip(devices, titles)]
        seen = await asyncio.gather(*edits, give_up(devices[3]))
        ticking.cancel()
        for device in devices:
            device.control.close()
    print(", ".join(seen))
    return 0 if seen == [*titles, "NO_TRANSFER"] else 1


if __name__ == "__main__":
    sys.exit(asyncio.run(main()))
