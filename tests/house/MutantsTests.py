"""That the mutants of a source are those that are meant, and that a switch changes nothing until it is on."""

import os
import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts", "mutation"))

from mutants import mutants_of, with_switches  # noqa: E402


def body(statements, result="void"):
    return f"{result} run() {{\n    {statements}\n}}\n"


class MutantsTests(unittest.TestCase):
    def assert_changes(self, text, *expected):
        self.assertEqual(sorted(each.change for each in mutants_of("a.cpp", text)), sorted(expected))

    def test_a_comparison_is_turned_and_its_border_is_moved(self):
        self.assert_changes(body("auto x = a < b;"), "<  ->  <=", "<  ->  >=")
        self.assert_changes(body("auto x = a >= b;"), ">=  ->  >", ">=  ->  <")
        self.assert_changes(body("auto x = a == b;"), "==  ->  !=")

    def test_and_becomes_or_and_back(self):
        self.assert_changes(body("auto x = a && b;"), "&&  ->  ||")
        self.assert_changes(body("auto x = a || b;"), "||  ->  &&")

    def test_arithmetic_is_turned(self):
        self.assert_changes(body("auto x = a + b * c;"), "+  ->  -", "*  ->  /")
        self.assert_changes(body("auto x = ++y;"), "++  ->  --")

    def test_numbers_grow_by_one(self):
        self.assert_changes(body("auto x = f(0, 20.0, 1'200);"), "0  ->  1", "20.0  ->  21.0", "1'200  ->  1201")

    def test_calls_and_assignments_are_dropped(self):
        self.assert_changes(body("a.b(c)->d();"), "a.b(c)->d();  dropped")
        self.assert_changes(body("x_ = y;"), "x_ = y;  dropped")
        self.assert_changes(body("if (const auto a = f()) {\n        g();\n    }"), "g();  dropped")

    def test_a_declaration_is_not_dropped(self):
        self.assert_changes(body("std::vector<int> x(y);"))
        self.assert_changes("class A {\n    A(int x);\n};\n")

    def test_conditions_are_negated(self):
        self.assert_changes(body("if (a()) {\n    }"), "a()  negated")
        self.assert_changes(body("auto x = a() ? b : c;"), "a()  negated")
        self.assert_changes(body("if (!a) {\n    }"), "!  ->  nothing")
        self.assert_changes(body("if (a<B>() == c) {\n    }"), "==  ->  !=")

    def test_what_is_returned_is_negated_where_it_is_a_truth_value(self):
        self.assert_changes(body("return a();", "bool"), "a()  negated")
        self.assert_changes(body("return a();", "Name"))
        self.assert_changes(body("return true;", "bool"), "true  ->  false")

    def test_texts_comments_includes_assertions_and_log_lines_stay(self):
        self.assert_changes('#include "a < b"\n#define A (1 + 2)\n')
        self.assert_changes(body('const char* const x = "a < 1";  // a < 1\n    /* a && 1 */'))
        self.assert_changes(body("static_assert(a < 1);"))
        self.assert_changes(body('log_.info("a" + b(1));'))
        self.assert_changes(body('logTransition(a + b);'))

    def test_what_only_looks_like_an_operator_stays(self):
        self.assert_changes("template <typename A>\nstd::vector<A> f(const A* a, A&& b);\n")
        self.assert_changes(body('auto x = "a" + b;'))

    def test_a_mutant_tells_its_place(self):
        mutant = mutants_of("a.cpp", body("\n  auto x = a == b;"))[0]
        self.assertEqual((mutant.path, mutant.line, mutant.column), ("a.cpp", 3, 14))


class SwitchesTests(unittest.TestCase):
    def switched(self, text, *wanted):
        mutants = [each for each in mutants_of("a.cpp", text) if each.change in wanted]
        return with_switches(text, dict(enumerate(mutants, start=7)))

    def test_a_statement_stands_behind_its_switch(self):
        self.assertIn("if (mutation::on(7)) ; else f();", self.switched(body("f();"), "f();  dropped"))

    def test_a_number_stands_beside_its_successor(self):
        self.assertIn("x = (mutation::on(7) ? (1) : (0));", self.switched(body("auto x = 0;"), "0  ->  1"))

    def test_an_operator_takes_its_operands_along(self):
        self.assertIn("x = (mutation::on(7) ? (a + b(c) || d) : (a + b(c) && d));",
                      self.switched(body("auto x = a + b(c) && d;"), "&&  ->  ||"))
        self.assertIn("x = (mutation::on(7) ? (a - b(c)) : (a + b(c))) && d;",
                      self.switched(body("auto x = a + b(c) && d;"), "+  ->  -"))
        self.assertIn("(mutation::on(7) ? (x -= a ? b : c) : (x += a ? b : c));",
                      self.switched(body("x += a ? b : c;"), "+=  ->  -="))

    def test_a_condition_is_made_a_truth_value(self):
        self.assertIn("if ((mutation::on(7) ? static_cast<bool>(!(a())) : static_cast<bool>(a()))) {",
                      self.switched(body("if (a()) {\n    }"), "a()  negated"))
        self.assertIn("if ((mutation::on(7) ? static_cast<bool>(a()) : static_cast<bool>(!a())) || b) {",
                      self.switched(body("if (!a() || b) {\n    }"), "!  ->  nothing"))

    def test_switches_stand_within_one_another_and_move_no_line(self):
        text = body("f(a\n      + 1 == b);")
        switched = with_switches(text, dict(enumerate(mutants_of("a.cpp", text))))
        self.assertEqual(switched.count("mutation::on"), 4)
        self.assertEqual(switched.count("\n"), text.count("\n"))
        self.assertEqual(switched.count("("), switched.count(")"))


if __name__ == "__main__":
    unittest.main()
