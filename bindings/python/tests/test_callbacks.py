"""What callbacks may do: raise, close what calls them, and be forgotten."""

import gc
import threading
import unittest
import weakref

from host import BLOCK, Host

import quorvel


def fail(words="no line"):
    raise ConnectionError(words)


class Callbacks(unittest.TestCase):
    def test_answers_from_inside_of_a_long_device(self):
        host = Host(blocks=255)
        host.control.start_receive()
        self.assertEqual(host.ends, ["RECEIVE FINISHED"])

    def test_an_answer_from_inside_may_begin_anew(self):
        """A dialog that opens inside a handler is served while the handler waits for it."""
        host = Host()
        host.act["upload_succeeded"] = host.act.clear  # once
        host.platform.at_modal = lambda window: host.platform.user.click("cmdOK") is None
        host.act["request_blk"] = lambda: [host.act.clear(), host.control.custom(10)]
        host.control.start_receive()
        self.assertEqual(
            host.ends, ["RECEIVE STOPPED Another receive has begun.", "RECEIVE FINISHED"]
        )

    def test_what_they_raise_comes_out_of_the_call(self):
        host = Host()
        for event, call in [
            ("request_blk", host.control.start_receive),
            ("upload_succeeded", host.control.start_receive),
            ("ended", host.control.start_receive),
        ]:
            host.act = {event: fail}
            with self.subTest(event), self.assertRaisesRegex(ConnectionError, "no line"):
                call()
        host.act = {}
        host.control.start_receive()
        host.act = {"download_data": fail}
        host.control.start_send()
        with self.assertRaises(ConnectionError):
            host.platform.run_until_idle()
        host.platform.post(fail)
        with self.assertRaises(ConnectionError):
            host.platform.advance(0)
        host.platform.on_log = lambda level, words: fail(words)
        with self.assertRaises(ConnectionError):
            host.control.trigger_upload_timer()

    def test_the_first_is_raised_and_the_others_are_logged(self):
        host = Host()
        host.platform.post(lambda: fail("one"))
        host.platform.post(lambda: fail("two"))
        with self.assertLogs("quorvel", "ERROR") as log, self.assertRaisesRegex(OSError, "one"):
            host.platform.run_until_idle()
        self.assertIn("ConnectionError: two", log.output[0])

        def interrupt():
            raise KeyboardInterrupt

        host.platform.post(fail)
        host.platform.post(interrupt)
        with self.assertLogs("quorvel", "ERROR"), self.assertRaises(KeyboardInterrupt):
            host.platform.run_until_idle()

    def test_a_modal_window_whose_user_raises_is_closed(self):
        host = Host()
        host.platform.at_modal = fail
        with self.assertRaisesRegex(OSError, "frm_ULFrMux"):
            host.control.custom(quorvel.Command.RECEIVE)
        self.assertEqual(host.platform.take_stalled(), ["frm_ULFrMux"])

    def test_they_may_close_what_calls_them(self):
        for event in ("request_blk", "upload_succeeded", "ended", "download_data"):
            host = Host()
            host.act[event] = lambda: [host.control.close(), host.platform.close()]
            with self.subTest(event):
                with self.assertRaisesRegex(quorvel.InvalidError, "is closed"):
                    host.control.start_receive()
                    if event != "download_data":
                        host.control.get("AlarmMode")
                    host.control.start_send()
                    host.platform.run_until_idle()
                self.assertTrue(host.control.closed)

    def test_what_nobody_refers_to_is_freed(self):
        platform = quorvel.Platform()
        host = Host(platform)
        host.control.start_receive()
        host.control.start_send()  # whose timer runs
        gone = [weakref.ref(host), weakref.ref(host.control)]
        del host
        collector = threading.Thread(target=gc.collect)
        collector.start()
        collector.join()
        self.assertEqual([it() for it in gone], [None, None])
        self.assertIsNone(platform.next_due)
        platform.run_until_idle()
        host = Host()
        gone = weakref.ref(host.platform)
        del host
        gc.collect()
        self.assertIsNone(gone())

    def test_a_control_outlives_its_closed_platform(self):
        with quorvel.Platform() as platform:
            host = Host(platform)
        host.control.start_receive()
        self.assertTrue(host.control.state.has_image)
        with self.assertRaisesRegex(quorvel.InvalidError, "the platform is closed"):
            platform.run_until_idle()
        host.control.close()
        host.control.close()

    def test_two_controls_in_one_another(self):
        """The answer that one gives inside the other's event is served at once."""
        one, two = Host(), Host()
        two.device[:3] = b"Two"
        one.act["request_blk"] = lambda: [one.act.clear(), two.control.start_receive()]
        one.control.start_receive()
        self.assertEqual([one.ends, two.ends], [["RECEIVE FINISHED"], ["RECEIVE FINISHED"]])
        self.assertEqual(two.control.image()[:BLOCK], bytes(two.device[:BLOCK]))

    def test_each_thread_has_its_own(self):
        titles = []

        def run(title):
            host = Host()
            host.control.start_receive()
            host.control["CamInfo(0).title"] = title
            with self.assertRaises(quorvel.NotFoundError) as refused:
                host.control[f"No{title}"]
            titles.append((host.control["CamInfo(0).title"], str(refused.exception)))

        threads = [threading.Thread(target=run, args=(title,)) for title in ("A", "B")]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        expected = [("A", "there is no setting NoA"), ("B", "there is no setting NoB")]
        self.assertEqual(sorted(titles), expected)


if __name__ == "__main__":
    unittest.main()
