"""The screen of a platform and its user."""

import datetime
import tempfile
import unittest

from host import Host

import quorvel


class Screen(unittest.TestCase):
    def setUp(self):
        self.host = Host()
        self.platform, self.user = self.host.platform, self.host.platform.user
        self.host.control.start_receive()

    def test_a_window(self):
        self.host.open("mnu_CSetup")
        self.user.type("m_CameraTitle(0)", "Tür")
        box = self.platform.widget("m_CameraTitle(0)")
        self.assertEqual((box.kind, box.value), (quorvel.WidgetKind.TEXT_BOX, "Tür"))
        pages = self.platform.widget("SSTab1").items
        self.assertEqual(pages, ("Camera Setup", "Camera AGC", "Other Settings"))
        self.assertEqual(self.platform.cell("MSFG_SnlGain", 1, 0), "1")
        names = [it.name for it in self.platform.widgets("frm_CameraSetup")]
        self.assertIn("cmd_OK", names)
        self.assertEqual([it.name for it in self.platform.windows()], ["frm_CameraSetup"])
        for act, result, words in [
            (lambda: self.user.click("cmdNone"), "NOT_FOUND", "has a control cmdNone"),
            (lambda: self.user.type("m_CameraTitle(9)", ""), "HIDDEN", "(9) is hidden"),
            (lambda: self.user.turn_page("SSTab1", 9), "NO_SUCH_PLACE", "has no such place"),
            (lambda: self.user.click("m_CameraTitle(0)"), "OTHER_KIND", "is nothing to click"),
        ]:
            with self.subTest(words), self.assertRaises(quorvel.Error) as refused:
                act()
            self.assertEqual(refused.exception.result.name, result)
            self.assertIn(words, str(refused.exception))
        self.user.click("cmd_OK")
        self.assertEqual(self.host.control["CamInfo(0).title"], "Tür")

    def test_a_grid(self):
        grid = "MSFG_SnlGain"
        self.host.open("mnu_CSetup")
        self.user.turn_page("SSTab1", 1)
        for act, column, selected in [
            (lambda: self.user.press(grid, 2, 1), ["50", "50", "50", "50"], (2, 2)),
            (lambda: self.user.select("lstSnlGain", 25), ["50", "75", "50", "50"], (2, 2)),
            (lambda: self.user.release(grid, 2, 4), ["50", "75", "75", "75"], (2, 4)),
            (lambda: self.user.press(grid, 1, 1), ["50", "75", "75", "75"], (1, 1)),
            (lambda: self.user.mark(grid, 3), ["50", "75", "75", "75"], (1, 3)),
            (lambda: self.user.select("lstSnlGain", 30), ["80", "80", "80", "75"], (1, 3)),
            (lambda: self.user.drag(grid, 1, 3, 4), ["80", "80", "80", "80"], (3, 4)),
            (lambda: self.user.paste(grid, "90\n91"), ["80", "80", "90", "91"], (3, 4)),
        ]:
            act()
            shown = self.platform.widget(grid)
            self.assertEqual([self.platform.cell(grid, row, 1) for row in range(1, 5)], column)
            self.assertEqual((shown.first_selected, shown.last_selected), selected)
        self.assertEqual((shown.rows, shown.columns, shown.header_rows), (5, 2, 1))
        with self.assertRaisesRegex(quorvel.RefusedError, "cannot be empty"):
            self.user.empty(grid)
        showing = [it.name for it in self.platform.widgets() if it.showing]
        self.assertEqual(
            showing, ["SSTab1", "MSFG_SnlGain", "lbSnlGain", "lstSnlGain", "cmd_OK", "cmd_Cancel"]
        )
        self.user.undo()
        self.user.redo("frm_CameraSetup")
        self.user.put_back(grid, to_device=True)
        with self.assertRaisesRegex(quorvel.RefusedError, "can be done again"):
            self.user.redo()
        self.user.close_window()
        with self.assertRaisesRegex(quorvel.NotFoundError, "no window is open"):
            self.platform.widgets()
        self.host.open("mnu_TimeDate")
        self.user.pick("Calendar", "2024-02-29")
        self.assertEqual(self.platform.widget("Calendar").value, "2024-02-29")

    def test_the_menu(self):
        with self.assertRaises(quorvel.NotFoundError):
            self.platform.menu()
        self.host.control.custom(quorvel.Command.MENU, 1)
        self.platform.run_until_idle()
        shown = {it.name: it for it in self.platform.menu()}
        self.assertTrue(shown["mnu_CSetup"].enabled)
        self.user.dismiss_menu()

    def test_message_boxes_and_files(self):
        with tempfile.TemporaryDirectory() as folder:
            path = f"{folder}/Gerät.bin"
            self.platform.answer_file(path)
            self.host.control.custom(quorvel.Command.SAVE)
            with open(path, "rb") as file:
                self.assertEqual(file.read(), self.host.control.image())
        (request,) = self.platform.take_file_requests()
        self.assertEqual((request.filter, request.saves), ("*.bin", True))
        self.assertEqual(self.platform.take_file_requests(), [])
        seen = []
        self.platform.on_message = lambda message: seen.append(message.kind)
        self.platform.answer_file(f"{path}.none")
        self.host.control.custom(quorvel.Command.RESTORE)
        (message,) = self.platform.take_messages()
        self.assertEqual((message.kind, seen), (quorvel.MessageKind.ERROR, [message.kind]))

    def test_clock_and_texts(self):
        self.platform.set_time(datetime.datetime(2024, 2, 29, 7, 45))
        self.assertIsNone(self.platform.next_due)
        self.platform.post(lambda: None, 300)
        self.assertEqual(self.platform.next_due, 300)
        self.platform.advance(200)
        self.assertEqual((self.platform.next_due, self.platform.elapsed), (100, 200))
        self.platform.offer_texts("Example.Texts", lambda number: f"Ü{number}")
        self.host.control.custom_with_string(quorvel.Command.TEXTS, "Example.Texts")
        self.host.open("mnu_CSetup")
        self.assertRegex(self.platform.windows()[-1].caption, r"^Ü\d+$")


if __name__ == "__main__":
    unittest.main()
