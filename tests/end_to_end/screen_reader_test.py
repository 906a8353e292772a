#!/usr/bin/env python3
"""What a screen reader says of every window of the built program: screen_reader_test.py PROGRAM"""

import os
from unittest import mock

from heard_changes import HeardChanges
from program_case import ProgramCase, run
from quillon_window import BOTH_ERPS, SYSTEM_ONE, SYSTEM_TWO, QuillonWindow, has_state, name_of, text_of, wait_for
from spoken_controls import Atspi, controls_of, everything_below, labels_of, unlabelled
from window_titles import ABOUT, EDITOR, HELP, LOAD, MAIN, PRINT, SAVE, SPLASH, TABLE, UPDATE

# Key of the command, window that it opens, number of its controls without the entries of lists, key that closes it.
WINDOWS = [
    ("ctrl+r", PRINT, 9, "Escape"),
    ("ctrl+m", EDITOR, 43, "Escape"),
    ("ctrl+t", TABLE, 4, "alt+c"),
    ("ctrl+i", ABOUT, 3, "Escape"),
    ("F1", HELP, 6, "Escape"),
    ("ctrl+o", LOAD, 4, "Escape"),
]
# With the three of a list box: the box, its text and its list.
CONTROLS_OF_THE_MAIN_WINDOW = 70

RESULTS = [
    ("SWR Power Attenuation", "W"),
    ("SWR Attenuation in dB", "dB"),
    ("Coax Loss in dB", "dB"),
    ("Coax Power Loss", "W"),
    ("Antenna Gain in dBd", "dBd"),
    ("Antenna Power Gain", "W"),
    ("Antenna System Gain in dB", "dB"),
    ("Antenna Feedpoint Power", "W"),
    ("Antenna System ERP", "W"),
]
AT_START = ("0.00", "0.0000", "0.00", "0.00", "0.00", "0.00", "0", "0.00", "0.00")
# A VSWR of 1.1 takes 0.01 dB and no power, two connectors take 0.01304 dB, also at 144.2 MHz: theirs stays as it was.
CHOSEN_ONE = ("0.00", "0.0100", "0.71", "14.89", "5.00", "184.01", "4.28", "85.11", "269.12")
CHOSEN_TWO = ("0.00", "0.0100", "1.51", "29.23", "12.10", "1077.12", "10.58", "70.77", "1147.89")
# 70.77 % of 200 W arrive.
WITH_200_WATTS = ("0.00", "0.0100", "1.51", "58.46", "12.10", "2154.24", "10.58", "141.54", "2295.78")
# 1.2 lets 0.9997 of 85.11 W through, 85.0845 W.
WITH_VSWR = ("0.03", "0.0353", "0.71", "14.89", "5.00", "183.95", "4.28", "85.08", "269.04")
# 0.355 dB go by the row of 0.4 dB, 0.9124: 91.24 W arrive, 91.2126 W pass.
WITH_50_FEET = ("0.03", "0.0353", "0.36", "8.76", "5.00", "197.20", "4.63", "91.21", "288.41")
# Two connectors more, 0.01304 dB.
WITH_CONNECTORS = ("0.03", "0.0353", "0.36", "8.76", "5.00", "197.20", "4.62", "91.21", "288.41")

# Control, keys, and what is read of System 1 and System 2 from then on.
CHANGES = [
    ("System 1 VSWR, tenths", ("Up",), WITH_VSWR, CHOSEN_TWO),
    ("System 1 coax length, feet", "50", WITH_50_FEET, CHOSEN_TWO),
    ("System 1 number of connectors", "4", WITH_CONNECTORS, CHOSEN_TWO),
    ("System 2 power, watts", "200", WITH_CONNECTORS, WITH_200_WATTS),
]


def spoken(system, values):
    return [f"{caption}, System {system}: {value} {unit}" for (caption, unit), value in zip(RESULTS, values, strict=True)]


class SplashListener(QuillonWindow):
    """Listens to the splash window before it is ended."""

    def _end_splash(self):
        wait_for("the program on the accessibility bus", self._application)
        splash = wait_for("the splash window", lambda: self._active(SPLASH) and self.window(SPLASH))
        self.splash = (splash.get_role(), controls_of(splash), labels_of(splash))
        super()._end_splash()


class Labels(ProgramCase):
    """Every control of every window has a label."""

    def setUp(self):
        super().setUp()
        no_service = mock.patch.dict(os.environ, {"CUPS_SERVER": str(self.folder / "none.sock")})
        no_service.start()
        self.addCleanup(no_service.stop)

    def check(self, window, title, least):
        controls = controls_of(window.window(title))
        with self.subTest(title):
            self.assertEqual(unlabelled(controls), [])
            self.assertGreaterEqual(len([control for control in controls if not control.is_entry]), least)

    def check_message(self, window, title, text, answer):
        window.wait_for_dialog(title)
        self.check(window, title, 2)
        self.assertIn(text, labels_of(window.window(title)))
        window.press(answer)

    def test_of_the_windows_as_they_open(self):
        with SplashListener(self.program) as window:
            role, controls, labels = window.splash
            self.assertEqual((role, controls), (Atspi.Role.DIALOG, []))
            self.assertIn("This application is designed for demonstration purposes only.", labels)
            self.check(window, MAIN, CONTROLS_OF_THE_MAIN_WINDOW)
            for key, title, count, close in WINDOWS:
                window.press(key)
                window.wait_for_dialog(title)
                self.check(window, title, count)
                self.assertIn(window.window(title).get_role(), (Atspi.Role.DIALOG, Atspi.Role.FRAME), title)
                window.press(close)
                window.wait_for_no_dialog()

    def test_of_the_windows_in_use(self):
        with QuillonWindow(self.program) as window:
            window.choose_system(1, **SYSTEM_ONE)
            window.tab_to("System 2 coax brand")
            window.choose("System 2 coax brand", SYSTEM_TWO["coax"][0])
            window.wait_for_focus("System 2 coax type")
            # The list that has opened is a window of its own.
            self.check(window, MAIN, CONTROLS_OF_THE_MAIN_WINDOW)
            window.choose("System 2 coax type", SYSTEM_TWO["coax"][1])
            for part, entry in zip(("brand", "model", "band"), SYSTEM_TWO["antenna"], strict=True):
                window.choose(f"System 2 antenna {part}", entry)
            window.wait_for_names(*BOTH_ERPS)
            self.check(window, MAIN, CONTROLS_OF_THE_MAIN_WINDOW)
            self.save(window)
            window.press("ctrl+o")
            window.wait_for_dialog(LOAD)
            self.check(window, LOAD, 4)
            window.press("Escape")
            window.wait_for_no_dialog()
            self.print(window)
            self.edit(window)

    def save(self, window):
        for time in ("first", "again"):
            window.press("ctrl+s")
            window.wait_for_dialog(SAVE)
            self.check(window, SAVE, 3)
            window.press("alt+s")
            if time == "again":
                text = "The Selected System Already Exists. Do You Want to Update it?"
                self.check_message(window, UPDATE, text, "alt+n")
            window.wait_for_focus("Close", SAVE)
            window.press("Return")
            window.wait_for_no_dialog()

    def print(self, window):
        window.press("ctrl+r")
        window.wait_for_dialog(PRINT)
        window.press("alt+p")
        window.wait_for_dialog("Printer Error")
        self.check(window, "Printer Error", 2)
        window.press("Return")
        window.wait_for_dialog(PRINT)
        window.press("Escape")
        window.wait_for_no_dialog()

    def edit(self, window):
        window.press("ctrl+m")
        window.wait_for_dialog(EDITOR)
        window.type("hy-gain\r")
        window.wait_for_focus("Antenna model", EDITOR)
        window.type("th7dx\r")
        window.wait_until_usable("160 Meters", EDITOR)
        self.check(window, EDITOR, 43)
        window.tab_to("160 Meters", EDITOR)
        window.press("space")
        window.press("Escape")
        window.wait_for_no_dialog()

    def test_of_messages(self):
        with QuillonWindow(self.program) as window:
            window.type("x")
            self.check_message(window, "Input Error", "Please Enter Only Numbers!", "Return")
            window.wait_for_no_dialog()
            window.press("ctrl+s")
            self.check_message(window, "Saved Systems", "There is no system configured to save!", "Return")
            window.wait_for_dialog(SAVE)
            window.press("Escape")
            window.wait_for_no_dialog()
            window.press("ctrl+m")
            window.wait_for_dialog(EDITOR)
            window.press("alt+b")
            window.wait_for_focus("New antenna manufacturer", EDITOR)
            window.type("HY-GAIN")
            window.press("Return")
            text = "File HY-GAIN already exists. Overwrite it?"
            self.check_message(window, "File Already Exists!", text, "Escape")
            window.wait_for_dialog(EDITOR)


class Results(ProgramCase):
    """The nine results of both systems, the better side of each, and a power that is too high."""

    def expect(self, window, one, two):
        window.wait_for_names(*spoken(1, one), *spoken(2, two))
        said = [name for name in window.names() if ", System " in name]
        self.assertCountEqual(said, spoken(1, one) + spoken(2, two))

    def test_are_read_as_caption_value_and_unit_after_each_change(self):
        with QuillonWindow(self.program) as window:
            self.expect(window, AT_START, AT_START)
            window.choose_system(1, **SYSTEM_ONE)
            self.expect(window, CHOSEN_ONE, AT_START)
            window.choose_system(2, **SYSTEM_TWO)
            self.expect(window, CHOSEN_ONE, CHOSEN_TWO)
            for control, keys, one, two in CHANGES:
                window.tab_to(control)
                for key in keys:
                    window.press(key)
                self.expect(window, one, two)

    def test_a_spin_control_is_read_as_the_figure_that_it_sets(self):
        with QuillonWindow(self.program) as window:
            for system in (1, 2):
                spin = next(element for element in everything_below(window.window(MAIN))
                            if name_of(element) == f"System {system} power, coarse")
                window.tab_to(f"System {system} power, coarse")
                self.assertEqual(self.value(spin), 100)
                window.press("Up")
                wait_for("110 W", lambda: self.value(spin) == 110, lambda: self.value(spin))

    @staticmethod
    def value(element):
        element.clear_cache()
        return Atspi.Value.get_current_value(element)

    def marks(self, window):
        """What stands at the sides of the rows, by rows."""
        pictures = [element for element in everything_below(window.window(MAIN)) if element.get_role() == Atspi.Role.IMAGE]
        for picture in pictures:
            picture.clear_cache()
        return [(picture.get_description(), picture.get_name()) for picture in pictures if picture.get_name()]

    def test_and_their_better_sides_are_announced(self):
        with QuillonWindow(self.program) as window, HeardChanges() as heard:
            window.choose_both_systems()
            self.assertIn(("Antenna Feedpoint Power", "System 1 better"), self.marks(window))
            window.tab_to("System 2 power, watts")
            heard.forget()
            window.type("200")
            self.expect(window, CHOSEN_ONE, WITH_200_WATTS)
            wait_for("the new side", lambda: "System 2 better" in heard.texts(), heard.texts)
            changed = {text for old, text in zip(spoken(2, CHOSEN_TWO), spoken(2, WITH_200_WATTS), strict=True) if old != text}
            self.assertEqual(len(changed), 4)
            self.assertLessEqual(changed | {"Antenna Feedpoint Power"}, set(heard.texts()))
            self.assertFalse([text for text in heard.texts() if text.startswith("Antenna Gain in dBd, System 2")])
            self.assertEqual(self.marks(window), [
                ("SWR Power Attenuation", "equal"), ("SWR Power Attenuation", "equal"),
                ("SWR Attenuation in dB", "equal"), ("SWR Attenuation in dB", "equal"),
                ("Coax Loss in dB", "System 1 better"),
                ("Coax Power Loss", "System 1 better"),
                ("Antenna Gain in dBd", "System 2 better"),
                ("Antenna Power Gain", "System 2 better"),
                ("Antenna System Gain in dB", "System 2 better"),
                ("Antenna Feedpoint Power", "System 2 better"),
                ("Antenna System ERP", "System 2 better"),
            ])

    def test_a_power_in_red_is_told_in_words(self):
        with QuillonWindow(self.program) as window, HeardChanges() as heard:
            for system in (1, 2):
                window.tab_to(f"System {system} power, watts")
                box = next(element for element in everything_below(window.window(MAIN))
                           if name_of(element) == f"System {system} power, watts")
                self.assertTrue(has_state(box, Atspi.StateType.FOCUSED))
                window.press("Tab")
                window.press("shift+Tab")
                window.type("1500")
                wait_for("1500 W", lambda: text_of(box) == "1500", lambda: text_of(box))
                self.assertEqual(self.description(box), "")
                window.press("BackSpace")
                heard.forget()
                window.type("1")
                wait_for("1501 W", lambda: "over 1500 W" in heard.texts(), heard.texts)
                self.assertEqual(self.description(box), "over 1500 W")
                window.press("BackSpace")
                wait_for("150 W", lambda: self.description(box) == "", lambda: self.description(box))

    @staticmethod
    def description(element):
        element.clear_cache()
        return element.get_description()


if __name__ == "__main__":
    run()
