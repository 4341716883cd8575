"""Settings by name, their values, and what is refused."""

import array
import contextlib
import io
import pathlib
import re
import unittest

from host import Host

import quorvel


class Settings(unittest.TestCase):
    def setUp(self):
        self.host = Host()
        self.control = self.host.control
        self.control.start_receive()

    def test_values(self):
        titles = {"Tür": '"T\\xFCr"', '"€"\\': '"\\x22\\x80\\x22\\x5C"', "": '""', "yes": '"yes"'}
        for title, listed in titles.items():
            self.control["CamInfo(0).title"] = title
            self.assertEqual(self.control.get("CamInfo(0).title"), listed)
            self.assertEqual(self.control["CamInfo(0).title"], title)
        self.assertIs(self.control["CamInfo(0).disable"], True)
        self.control["CamInfo(0).disable"] = False
        self.assertEqual(self.control.get("CamInfo(0).disable"), "no")
        self.control["AlarmMode"] = "Timed Out"
        self.assertEqual(self.control["AlarmMode"], 2)
        self.control["MultiDwell"] = 10
        self.assertEqual(self.control.get("MultiDwell"), "10 s")
        self.assertEqual(self.control["MultiDwell"], 10)
        self.assertEqual([quorvel.parse_value(it) for it in ('"\\x81"', "no")], ["\x81", False])
        self.assertEqual(self.control.modified_blocks(), [1, 33, 59])

    def test_answers(self):
        self.assertTrue(self.control.set("AlarmMode", "1"))
        self.assertFalse(self.control.set("AlarmMode", "Transparent"))
        description = self.control.describe("AlarmMode")
        self.assertEqual(description.codes, {0: "Latched", 1: "Transparent", 2: "Timed Out"})
        self.assertEqual(description.places, (quorvel.Place(59, 10, 1, 255, False),))
        self.assertEqual((description.blocks, description.codes_only), ((59,), True))
        read_only = next(it.name for it in self.control.descriptions() if not it.writable)
        for name, value, error, words in [
            ("NoSuch", 1, KeyError, "NoSuch: no such setting"),
            ("AlarmMode", 3, ValueError, "AlarmMode: not a value of this setting"),
            ("AlarmMode", 1.5, TypeError, "'float' object cannot be interpreted as an integer"),
            ("CamInfo(0).title", "x" * 14, quorvel.NotAValueError, "CamInfo(0).title: not a"),
            (read_only, 1, quorvel.ReadOnlyError, f"{read_only}: read-only"),
        ]:
            with self.subTest(name=name, value=value), self.assertRaises(error) as refused:
                self.control[name] = value
            self.assertIn(words, str(refused.exception))
        with self.assertRaises(quorvel.NoImageError) as refused:
            quorvel.Control()["AlarmMode"]
        self.assertEqual(refused.exception.result, quorvel.Result.NO_IMAGE)
        self.assertNotIn("AlarmMode", quorvel.Control())
        self.assertNotIn("NoSuch", self.control)

    def test_lists(self):
        self.control["CamInfo(1).title"] = "Yard"
        listed = dict(self.control.settings("caminfo(?).TITLE"))
        self.assertEqual(len(listed), 4)
        self.assertEqual(listed["CamInfo(1).title"], '"Yard"')
        self.assertEqual(list(self.control), [name for name, _ in self.control.settings()])
        (difference,) = self.control.differences(self.host.device)
        self.assertEqual((difference.value, difference.blocks), ('"Yard"', (2,)))
        damaged = self.control.edited_image()[: 58 * 16] + b"\0" * 10 + b"\7"
        damaged += self.control.edited_image()[len(damaged) :]
        self.control.load_settings(damaged)
        self.assertIn(
            quorvel.Finding("AlarmMode", "7", "not 0 = Latched, 1 = Transparent, 2 = Timed Out"),
            self.control.findings(),
        )

    def test_history(self):
        self.control["AlarmMode"] = 2
        self.assertEqual((self.control.undo_text, self.control.redo_text), ("AlarmMode", ""))
        self.control.undo()
        self.assertEqual((self.control["AlarmMode"], self.control.redo_text), (0, "AlarmMode"))
        self.control.redo()
        self.assertEqual(self.control["AlarmMode"], 2)
        with self.assertRaisesRegex(quorvel.Error, "nothing can be done again"):
            self.control.redo()

    def test_files(self):
        other = quorvel.Control()
        with self.assertRaisesRegex(quorvel.Error, "255 blocks and holds 2"):
            other.load_settings(b"\xff" * 40)
        self.assertEqual(other.save_settings(), b"")
        self.control["CamInfo(0).title"] = "Gate"
        file = array.array("H", self.control.save_settings())
        self.assertEqual(other.load_settings(file), "")
        self.assertEqual(other["CamInfo(0).title"], "Gate")
        other.load_defaults(16, 6, "TÜ", "2")
        self.assertEqual(other.image()[184 * 16 : 184 * 16 + 4], b"\x10\6T\xdc")

    def test_the_document(self):
        document = pathlib.Path(__file__).parents[3] / "docs/hosting.md"
        (example,) = re.findall(r"```python\n(.*?)```", document.read_text(), re.DOTALL)
        names = {}
        with contextlib.redirect_stdout(io.StringIO()) as told:
            exec(example, names)
        self.assertEqual(told.getvalue().splitlines()[0], 'CamInfo(0).title "Front door"')
        self.assertEqual(names["file"][:12], b"Front door  ")

    def test_nothing_is_cut_off(self):
        for call, error in [
            (lambda: self.control.custom(2**32 + 10), OverflowError),
            (lambda: setattr(self.control, "host_comm_id", 256), OverflowError),
            (lambda: self.control.set_properties(quorvel.Properties(host_comm_id=2**32)), OverflowError),
            (lambda: self.control.fill_data_blk(17), TypeError),
            (lambda: self.control.set("AlarmMode", "1\0"), ValueError),
            (lambda: self.control.load_defaults(16, 6, "TX16", ""), ValueError),
            (lambda: self.control.custom(13), quorvel.UnsupportedError),
            (lambda: self.control.save_connected_info(b"123"), quorvel.InvalidError),
        ]:
            with self.assertRaises(error):
                call()

    def test_properties(self):
        self.control.host_comm_id = 255
        self.assertTrue(self.control.properties_changed)
        kept = self.control.keep_properties()
        self.assertEqual((kept.enabled, kept.host_comm_id), (True, 255))
        other = quorvel.Control()
        other.set_properties(quorvel.Properties(False, 7, "Schön", 12.5, font_bold=True))
        self.assertEqual(
            other.keep_properties(), quorvel.Properties(False, 7, "Schön", 12.5, True, False)
        )
        with self.assertRaises(quorvel.RefusedError):
            other.click()


if __name__ == "__main__":
    unittest.main()
