#!/usr/bin/env python3
"""Tests of mutate.py: where faults fit, which are chosen, and that none is left behind."""

import pathlib
import shutil
import sys
import tempfile
import time
import unittest
from unittest import mock

import mutate
import mutations

SOURCE = '''#include "a<b.h"
// if (comment) return 1;
void Door::Open(int width) {
  if (!shut_ && width > 3) {
    Turn("two > 1", true);
    ++turns_;
  } else if (width == 0)
    return;
  for (int i = 0; i < width; ++i) Push(i + 1);
  const int half = width / 2;
  area.left = half;
}
'''


def made_by(operator, text):
    """The lines that an operator makes of a text, without blanks around them."""
    found = []
    for mutant in mutations.mutants_of(text):
        if mutant.operator == operator:
            found.append(mutant.apply(text).splitlines()[mutant.line(text) - 1].strip())
    return found


def is_alive(process):
    try:
        status = pathlib.Path("/proc", process, "stat").read_text(encoding="latin-1")
    except OSError:
        return False
    return status.rpartition(")")[2].split()[0] not in "ZX"


class BlankTest(unittest.TestCase):
    def test_only_code_is_left_in_its_place(self):
        text = 'a = "x\\"y"; // b\n#define C 1\n/* d\ne */ f(\'"\', 1\'000);\n'
        code = mutations.blank(text)
        self.assertEqual(len(code), len(text))
        self.assertEqual(code.count("\n"), text.count("\n"))
        self.assertEqual(code.split(), ["a", "=", '"', '";', "f(\"", '",', "1'000);"])

    def test_raw_strings_are_blanked_to_their_end(self):
        self.assertNotIn("if", mutations.blank('x = R"(if (a) "b")"; y'))


class OperatorTest(unittest.TestCase):
    def test_conditions_are_negated(self):
        self.assertEqual(made_by("negate condition", SOURCE),
                         ["if (!(!shut_ && width > 3)) {", "} else if (!(width == 0))"])

    def test_conditions_that_declare_are_left(self):
        self.assertEqual(made_by("negate condition", "if (auto x = F(); x) G();"), [])
        self.assertEqual(made_by("negate condition", "if (Ref x = F()) G();"), [])

    def test_negations_are_dropped(self):
        self.assertEqual(made_by("drop negation", SOURCE), ["if (shut_ && width > 3) {"])
        self.assertEqual(made_by("drop negation", "if (a != b) c();"), [])

    def test_comparisons_change_outside_of_strings(self):
        self.assertEqual(made_by("compare otherwise", SOURCE),
                         ["if (!shut_ && width >= 3) {", "} else if (width != 0)",
                          "for (int i = 0; i <= width; ++i) Push(i + 1);"])

    def test_brackets_of_templates_are_no_comparison(self):
        text = "template <class T>\nstd::vector<int> a;\nauto e = b->c << d;\n"
        self.assertEqual(mutations.mutants_of(text), [])

    def test_both_must_hold_becomes_one(self):
        self.assertEqual(made_by("and for or", SOURCE), ["if (!shut_ || width > 3) {"])
        self.assertEqual(made_by("and for or", "void F(T&& t);"), [])

    def test_arithmetic_changes(self):
        self.assertEqual(made_by("plus for minus", SOURCE),
                         ["for (int i = 0; i < width; ++i) Push(i - 1);"])
        self.assertEqual(made_by("times for divided", SOURCE), ["const int half = width * 2;"])
        self.assertEqual(made_by("times for divided", "T * p;\n")[:1], ["T / p;"])

    def test_steps_turn_round(self):
        self.assertEqual(made_by("step otherwise", "++a;\nb -= 2;\n"), ["--a;", "b += 2;"])

    def test_numbers_grow_by_one(self):
        self.assertEqual(made_by("one more", "a = 9;\nb = 0.5;\nc1 = 1'000;\nd = x[3U];\n"),
                         ["a = 10;", "b = 1.5;", "d = x[4U];"])

    def test_true_and_false_trade_places(self):
        self.assertEqual(made_by("true for false", SOURCE), ['Turn("two > 1", false);'])

    def test_statements_that_act_are_dropped(self):
        self.assertEqual(made_by("drop statement", SOURCE),
                         ["{}", "{}", "{}", "for (int i = 0; i < width; ++i) {}", "{}"])

    def test_declarations_stay(self):
        for text in ("int a = 1;", "Door door(3);", "const auto& b = c;", "return d;",
                     "using E = F;", "Door* door = nullptr;"):
            self.assertEqual(made_by("drop statement", text), [], text)

    def test_neighbours_that_act_trade_places(self):
        text = "{\n  a.B();\n  c = d;\n}\n"
        self.assertEqual([mutant.apply(text) for mutant in mutations.mutants_of(text)
                          if mutant.operator == "swap statements"],
                         ["{\n  c = d;\n  a.B();\n}\n"])

    def test_no_neighbour_is_taken_out_of_its_condition(self):
        self.assertEqual(made_by("swap statements", "{\n  if (x) a();\n  b();\n}\n"), [])
        self.assertEqual(made_by("swap statements", "{\n  a();\n  // why\n  if (x) b();\n}\n"), [])

    def test_a_fault_stands_in_the_line_that_it_names(self):
        for mutant in mutations.mutants_of(SOURCE):
            changed = mutant.apply(SOURCE)
            self.assertNotEqual(changed, SOURCE)
            line = mutant.line(SOURCE)
            self.assertEqual(changed.splitlines()[:line - 1], SOURCE.splitlines()[:line - 1])


class ChoiceTest(unittest.TestCase):
    SOURCES = {"b.cpp": SOURCE, "a.cpp": SOURCE}

    def test_a_seed_gives_the_same_faults_in_the_order_of_their_places(self):
        first = mutate.chosen(self.SOURCES, 8, 5)
        self.assertEqual(first, mutate.chosen(self.SOURCES, 8, 5))
        self.assertEqual(len(set(first)), 8)
        places = [(path, mutant.start) for path, mutant in first]
        self.assertEqual(places, sorted(places))
        self.assertNotEqual(first, mutate.chosen(self.SOURCES, 8, 6))

    def test_no_more_are_chosen_than_there_are(self):
        everything = mutate.chosen(self.SOURCES, 10000, 1)
        self.assertEqual(len(everything), 2 * len(mutations.mutants_of(SOURCE)))

    def difference(self, operator):
        mutant = next(m for m in mutations.mutants_of(SOURCE) if m.operator == operator)
        return mutate.difference(SOURCE, mutant)

    def test_the_difference_is_the_lines_that_the_fault_stands_in(self):
        self.assertEqual(self.difference("and for or"),
                         ["-  if (!shut_ && width > 3) {", "+  if (!shut_ || width > 3) {"])
        self.assertEqual(self.difference("swap statements"),
                         ['-    Turn("two > 1", true);', "-    ++turns_;",
                          "+    ++turns_;", '+    Turn("two > 1", true);'])


class CopyTest(unittest.TestCase):
    def setUp(self):
        folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, folder)
        self.tree = folder / "tree"
        self.copy = folder / "copy"
        (self.tree / "src").mkdir(parents=True)
        (self.tree / "src/a.cpp").write_text(SOURCE)
        (self.tree / "src/b.cpp").write_text("b\n")

    def refresh(self):
        mutate.refresh(self.tree, self.copy, ["src/a.cpp", "src/b.cpp"])

    def test_what_is_equal_keeps_its_time_and_the_rest_is_made_so(self):
        self.refresh()
        before = (self.copy / "src/a.cpp").stat().st_mtime_ns
        (self.copy / "src/b.cpp").write_text("a fault of a run that was stopped\n")
        (self.copy / "src/old.cpp").write_text("no longer in the tree\n")
        (self.copy / "build").mkdir()
        (self.copy / "build/made").touch()
        self.refresh()
        self.assertEqual((self.copy / "src/a.cpp").stat().st_mtime_ns, before)
        self.assertEqual((self.copy / "src/b.cpp").read_text(), "b\n")
        self.assertFalse((self.copy / "src/old.cpp").exists())
        self.assertTrue((self.copy / "build/made").exists())

    def test_a_fault_is_taken_out_also_when_the_run_is_stopped(self):
        self.refresh()
        target = self.copy / "src/a.cpp"
        seen = []

        def stop():
            seen.append(target.read_text())
            raise KeyboardInterrupt

        faults = mutate.chosen({"src/a.cpp": SOURCE}, 1, 1)
        with mock.patch.object(mutate, "COPY", self.copy), self.assertRaises(KeyboardInterrupt):
            list(mutate.plant_all(mock.Mock(fate=stop), {"src/a.cpp": SOURCE}, faults))
        self.assertEqual(seen, [mutate.QUIET + faults[0][1].apply(SOURCE)])
        self.assertEqual(target.read_text(), SOURCE)
        self.assertEqual((self.tree / "src/a.cpp").read_text(), SOURCE)


class RunTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)

    def run_command(self, *command, seconds=30, limited=False):
        return mutate.run(command, seconds, self.folder / "log", self.folder, limited)

    def test_the_exit_code_is_told_and_the_output_kept(self):
        self.assertEqual(self.run_command("sh", "-c", "echo hello; exit 3"), 3)
        self.assertEqual((self.folder / "log").read_text(), "hello\n")

    def test_a_command_that_goes_on_for_ever_ends_with_all_that_it_started(self):
        self.assertIsNone(self.run_command("sh", "-c", "sleep 60 & echo $! > child; sleep 60",
                                           seconds=0.5))
        child = (self.folder / "child").read_text().strip()
        deadline = time.monotonic() + 10
        while is_alive(child) and time.monotonic() < deadline:
            time.sleep(0.01)  # a process takes a moment to die
        self.assertFalse(is_alive(child))

    def test_memory_has_an_end(self):
        self.assertNotEqual(self.run_command(sys.executable, "-c", "bytearray(8 << 30)",
                                             limited=True), 0)


if __name__ == "__main__":
    unittest.main()
