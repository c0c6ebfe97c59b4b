"""That the checks of the house find what they are there for, each tried on a small project of its own."""

import os
import subprocess
import sys
import tempfile
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))


class Project:
    """A folder with the given files, and what a check says of it."""

    def __init__(self, files):
        self._files = files

    def check(self, name):
        with tempfile.TemporaryDirectory() as root:
            for path, text in self._files.items():
                os.makedirs(os.path.dirname(os.path.join(root, path)), exist_ok=True)
                with open(os.path.join(root, path), "w", encoding="utf-8") as stream:
                    stream.write(text)
            answer = subprocess.run([sys.executable, os.path.join(HERE, name), root], text=True,
                                    stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        return answer.returncode, answer.stdout


class CheckTest(unittest.TestCase):
    check = ""

    def assert_clean(self, files):
        status, output = Project(files).check(self.check)
        self.assertEqual(status, 0, output)

    def assert_breach(self, files, *words):
        status, output = Project(files).check(self.check)
        self.assertEqual(status, 1, output)
        for word in words:
            self.assertIn(word, output)


class IncludesTests(CheckTest):
    check = "check-includes"

    def test_each_room_may_include_what_the_table_says(self):
        self.assert_clean({
            "src/base/Date.hpp": "#include <string>\n",
            "src/platform/ports/Clock.hpp": '#include "base/Date.hpp"\n',
            "src/platform/qt/QtTicker.cpp": '#include "platform/ports/Clock.hpp"\n#include <QTimer>\n',
            "src/core/BreakEngine.hpp": '#include "platform/ports/Clock.hpp"\n',
            "src/core/BreakHistory.hpp": '#include "base/Date.hpp"\n',
            "src/store/HistoryDatabase.cpp": '#include "core/BreakHistory.hpp"\n#include <SQLiteCpp/Database.h>\n',
            "src/ui/View/ViewContent.hpp": '#include "core/BreakEngine.hpp"\n',
            "src/ui/View/ViewModel.hpp": '#include "ViewContent.hpp"\n#include <QObject>\n',
            "src/shell/AppDelegate.hpp": '#include "ui/View/ViewContent.hpp"\n',
            "src/shell/desktop/KestrelfenApp.cpp": '#include "platform/qt/QtTicker.hpp"\n#include <QGuiApplication>\n',
            "simulator/main.cpp": '#include "platform/fake/FakeClock.hpp"\n#include "shell/AppDelegate.hpp"\n',
        })

    def test_base_includes_no_room(self):
        self.assert_breach({"src/base/Date.hpp": "\n" + '#include "core/Settings.hpp"\n'},
                           "src/base/Date.hpp:2:", "base may not include core/Settings.hpp")

    def test_ports_include_no_core(self):
        self.assert_breach({"src/platform/ports/Clock.hpp": '#include "core/Settings.hpp"\n'}, "platform/ports may not")

    def test_core_includes_no_platform(self):
        self.assert_breach({"src/core/Settings.cpp": '#include "platform/posix/JsonPreferences.hpp"\n'},
                           "core may not include platform/posix/JsonPreferences.hpp")

    def test_shell_includes_no_concrete_platform(self):
        for platform in ["fake", "linux", "macos", "posix", "qt"]:
            self.assert_breach({"src/shell/AppDelegate.cpp": f'#include "platform/{platform}/Any.hpp"\n'},
                               f"shell may not include platform/{platform}/Any.hpp")

    def test_one_platform_includes_no_other(self):
        self.assert_breach({"src/platform/linux/Any.cpp": '#include "platform/qt/QtTicker.hpp"\n'},
                           "platform/linux may not include platform/qt/QtTicker.hpp")

    def test_views_include_no_shell(self):
        self.assert_breach({"src/ui/View/ViewModel.cpp": '#include "shell/AppDelegate.hpp"\n'}, "ui may not include")

    def test_store_does_not_see_the_engine(self):
        self.assert_breach({"src/store/KestrelfenStore.cpp": '#include "core/BreakEngine.hpp"\n'},
                           "store may not include core/BreakEngine.hpp")

    def test_no_room_includes_the_simulator(self):
        self.assert_breach({"src/core/A.cpp": '#include "simulator/Words.hpp"\n'}, "may not include simulator/")

    def test_a_path_that_climbs_is_followed(self):
        self.assert_breach({"src/base/A.hpp": '#include "../core/B.hpp"\n', "src/core/B.hpp": ""},
                           "base may not include core/B.hpp")

    def test_logic_knows_no_toolkit(self):
        for name in ["QString", "QtCore/qglobal.h", "nlohmann/json.hpp", "xcb/xcb.h", "sqlite3.h"]:
            self.assert_breach({"src/core/A.cpp": f"#include <{name}>\n"}, f"<{name}> is not for core/A.cpp")

    def test_content_knows_no_toolkit(self):
        self.assert_breach({"src/ui/View/ViewContent.hpp": "#include <QString>\n"}, "<QString> is not for")

    def test_a_folder_without_a_rule_is_told(self):
        self.assert_breach({"src/attic/A.cpp": ""}, "src/attic/A.cpp:1: lies in no known room")

    def test_a_circle_of_folders_is_told(self):
        self.assert_breach({
            "src/ui/One/A.hpp": '#include "ui/Two/B.hpp"\n', "src/ui/Two/B.hpp": '#include "ui/Three/C.hpp"\n',
            "src/ui/Three/C.hpp": "\n" + '#include "ui/One/A.hpp"\n',
        }, "ui/One -> ui/Two -> ui/Three -> ui/One", "src/ui/Three/C.hpp:2: includes ui/One/A.hpp")

    def test_arrows_that_meet_again_are_no_circle(self):
        self.assert_clean({
            "src/ui/One/A.hpp": '#include "ui/Two/B.hpp"\n#include "ui/Three/C.hpp"\n',
            "src/ui/Two/B.hpp": '#include "ui/Three/C.hpp"\n', "src/ui/Three/C.hpp": "",
        })

    def test_comments_do_not_count(self):
        self.assert_clean({"src/base/A.hpp": '// #include "core/B.hpp"\n/*\n#include "core/B.hpp"\n*/\n'})

    def test_the_simulator_includes_no_tests(self):
        self.assert_breach({"src/base/A.hpp": "", "simulator/main.cpp": '#include "tests/support/Trace.hpp"\n'},
                           "the simulator may not include tests/support/Trace.hpp")

    def test_an_empty_project_is_no_success(self):
        self.assert_breach({"README.md": ""}, "holds no sources")


class CallsTests(CheckTest):
    check = "check-calls"

    def test_every_raw_clock_call_is_told(self):
        for call in ["std::chrono::system_clock::now()", "steady_clock::now()", "std::time(nullptr)", "time(NULL)",
                     "::time(&seconds)", "gettimeofday(&value, nullptr)", "clock_gettime(CLOCK_REALTIME, &value)",
                     "std::clock()", "QDateTime::currentDateTimeUtc()", "QDate::currentDate()",
                     "QTime::currentTime()", "QElapsedTimer timer"]:
            self.assert_breach({"src/core/A.cpp": f"\nauto a = [] {{ {call}; }};\n"}, "src/core/A.cpp:2:",
                               "reads the clock")

    def test_a_raw_clock_call_in_a_view_is_told(self):
        for call in ["Date.now()", "new Date()", "new Date"]:
            self.assert_breach({"src/ui/View/View.qml": f"Item {{ property var a: {call} }}\n"}, "reads the clock")

    def test_the_simulator_reads_no_clock(self):
        self.assert_breach({"simulator/A.cpp": "auto a = std::chrono::system_clock::now();\n"}, "simulator/A.cpp:1:")

    def test_platforms_read_the_clock(self):
        self.assert_clean({"src/platform/posix/PosixClock.cpp": "auto a = std::chrono::system_clock::now();\n"})

    def test_what_only_looks_like_a_clock_call_is_let_through(self):
        self.assert_clean({
            "src/core/A.cpp": "// time(nullptr)\n/* steady_clock::now() */\n"
                              'auto a = "Date.now() gettimeofday";\nauto b = platform.clock.now();\n'
                              "auto c = format.time(date);\nauto d = 1'000'000; auto e = x.time(nullptr);\n",
            "src/ui/View/View.qml": "Item { property var a: new Date(seconds) }\n",
        })

    def test_every_question_for_the_system_is_told(self):
        for question in ["#ifdef __linux__", "#if defined(__APPLE__)", "# ifndef _WIN32", "#elif defined(Q_OS_MACOS)",
                         "#if !defined(A) && defined(__FreeBSD__)"]:
            self.assert_breach({"src/platform/posix/A.cpp": f"int a;\n{question}\n#endif\n"},
                               "src/platform/posix/A.cpp:2:", "asks for the operating system")

    def test_a_view_asks_for_no_system(self):
        self.assert_breach({"src/ui/View/View.qml": "Item { visible: Qt.platform.os === 'linux' }\n"},
                           "asks for the operating system")

    def test_the_application_chooses_its_platform(self):
        self.assert_clean({"src/shell/desktop/KestrelfenApp.cpp": "#ifdef __linux__\n#endif\n"})

    def test_other_conditions_are_let_through(self):
        self.assert_clean({"src/core/A.hpp": "#if __cplusplus > 202002L\n#endif\n#ifdef NDEBUG\n#endif\n"})

    def test_an_empty_project_is_no_success(self):
        self.assert_breach({"README.md": ""}, "holds no sources")


HEADING = 'msgid ""\nmsgstr ""\n"Content-Type: text/plain; charset=UTF-8\\n"\n\n'


class TextsTests(CheckTest):
    check = "check-texts"

    def project(self, catalogue, source='auto text = translated("%1 of %2", values);\n'):
        with open(os.path.join(HERE, "../../scripts/texts"), encoding="utf-8") as stream:
            script = stream.read()
        files = {"scripts/texts": script, "src/ui/X.cpp": source, "po/LINGUAS": "de\n",
                 "po/de.po": HEADING + catalogue}
        with tempfile.TemporaryDirectory() as root:
            for path in ("scripts/texts", "src/ui/X.cpp"):
                os.makedirs(os.path.dirname(os.path.join(root, path)))
                with open(os.path.join(root, path), "w", encoding="utf-8") as stream:
                    stream.write(files[path])
            template = os.path.join(root, "template.pot")
            subprocess.run(["bash", os.path.join(root, "scripts/texts"), "--to", template], check=True)
            with open(template, encoding="utf-8") as stream:
                files["po/kestrelfen.pot"] = stream.read()
        return files

    def test_a_translation_may_put_values_in_another_order(self):
        self.assert_clean(self.project('msgid "%1 of %2"\nmsgstr "von %2 sind es %1"\n'))

    def test_a_text_without_a_translation_is_found(self):
        self.assert_breach(self.project('msgid "%1 of %2"\nmsgstr ""\n'), "'%1 of %2' is not translated")
        self.assert_breach(self.project(""), "lacks '%1 of %2'")

    def test_a_guess_is_found(self):
        self.assert_breach(self.project('#, fuzzy\nmsgid "%1 of %2"\nmsgstr "%1 von %2"\n'), "fuzzy")

    def test_a_lost_value_is_found(self):
        self.assert_breach(self.project('msgid "%1 of %2"\nmsgstr "%1 davon"\n'), "other places")

    def test_a_form_of_a_count_is_looked_at_too(self):
        source = 'auto text = translatedCount(n, "%1 day", "%1 days");\n'
        entry = 'msgid "%1 day"\nmsgid_plural "%1 days"\nmsgstr[0] "%1 Tag"\nmsgstr[1] "{}"\n'
        self.assert_clean(self.project(entry.format("%1 Tage"), source))
        self.assert_breach(self.project(entry.format("Tage"), source), "'Tage' has other places")

    def test_a_text_that_nobody_says_is_found(self):
        self.assert_breach(self.project('msgid "%1 of %2"\nmsgstr "%1/%2"\n\nmsgid "Old"\nmsgstr "Alt"\n'),
                           "nobody says 'Old'")

    def test_a_template_that_is_out_of_date_is_found(self):
        files = self.project('msgid "%1 of %2"\nmsgstr "%1 von %2"\n')
        files["src/ui/X.cpp"] += 'auto other = translated("New");\n'
        self.assert_breach(files, "run scripts/texts")


class LinksTests(CheckTest):
    check = "check-links"

    def test_what_exists_may_be_named(self):
        self.assert_clean({
            "docs/a.md": "[b](b.md) [the end](b.md#the-end) ![picture](../pictures/p.png) [out](mailto:x@y)\n",
            "docs/b.md": "# The end\n`src/x.cpp` `./test --quick` `build/bin/x` `tests/*.scn`\n\n    ./test\n",
            "pictures/p.png": "", "src/x.cpp": "", "test": "",
        })

    def test_a_link_to_nothing_is_found(self):
        self.assert_breach({"docs/a.md": "[b](b.md)\n"}, "docs/a.md: link to b.md does not exist")

    def test_a_heading_that_is_gone_is_found(self):
        self.assert_breach({"a.md": "[b](b.md#old)\n", "b.md": "# New\n"}, "no such heading")

    def test_a_path_that_is_gone_is_found(self):
        self.assert_breach({"a.md": "See `src/core/Old.cpp`.\n"}, "path src/core/Old.cpp")

    def test_a_command_that_is_gone_is_found(self):
        self.assert_breach({"a.md": "Do\n\n    scripts/old --now  # at once\n"}, "path scripts/old")


if __name__ == "__main__":
    unittest.main()
