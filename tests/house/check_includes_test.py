#!/usr/bin/env python3
"""The include check finds each kind of fault in a small tree made for it, and none in a sound one."""
import tempfile
import unittest
from pathlib import Path

from check_includes import MAY_INCLUDE, faults

SOUND = {
    "src/engine/Value.h": "#include <string>\n",
    "src/engine/Value.cpp": '#include "engine/Value.h"\n',
    "src/app/Units.h": '#include "engine/Value.h"\n',
    "src/files/SafeReplace.cpp": "#include <unistd.h>\n",
    "src/app/main/Form.h": '#include "app/Units.h"\n',
    "src/desktop/kit/View.cpp": '#include <QWidget>\n#include "app/main/Form.h"\n#include "View.moc"\n',
    "src/desktop/main/Other.h": '#include "desktop/kit/View.h"\n',
    "src/desktop/kit/View.h": "",
    "tests/desktop/ViewTest.cpp": '#include <QTest>\n#include "desktop/main/Other.h"\n',
    "tests/engine/ValueTest.cpp": '#include <gtest/gtest.h>\n#include "engine/Value.h"\n// #include <QString>\n',
}
# files added to the sound tree, and the ends of the lines that they must bring
CASES = [
    ({}, []),
    ({"src/engine/Bad.cpp": '#include "app/Units.h"'}, ["src/engine/Bad.cpp:1: engine may not include app"]),
    ({"src/platform/Bad.h": '#pragma once\n#include "engine/Value.h"'}, ["Bad.h:2: platform may not include engine"]),
    ({"src/print/Bad.h": '#include "rating/Series.h"'}, ["print may not include rating"]),
    ({"src/section/Bad.h": '#include "print/Print.h"'}, ["section may not include print"]),
    ({"src/program/Bad.h": '#include "desktop/kit/View.h"'}, ["program may not include desktop/kit"]),
    ({"src/app/Bad.h": '#include "app/main/Form.h"'}, ["app may not include app/main"]),
    ({"src/desktop/kit/Bad.h": '#include "desktop/main/Other.h"'}, ["desktop/kit may not include desktop/main"]),
    ({"src/app/Bad.h": '#include "../desktop/kit/View.h"'}, ["does not begin with a folder of src"]),
    ({"src/app/Bad.h": "#  include <unistd.h>"}, ["app stands on the standard library alone, not <unistd.h>"]),
    ({"src/files/SafeReplace.cpp": "#include <pthread.h>"}, ["on the standard library alone, not <pthread.h>"]),
    ({"src/app/Bad.h": "#include HEADER"}, ["an include names its header in <> or quotes"]),
    ({"tests/console/Bad.cpp": "#include <QtWidgets/QLabel>"}, ["Qt belongs to the desktop alone"]),
    ({"tests/support/Bad.h": '#include "QString"'}, ["Qt belongs to the desktop alone"]),
    ({"bench/Bad.cpp": "#include <qcustomplot.h>"}, ["Qt belongs to the desktop alone"]),
    ({"src/program/Bad.h": "#include <QString>"}, ["not <QString>", "Qt belongs to the desktop alone"]),
    ({"src/extra/Bad.h": ""}, ["no rule says what extra may include"]),
    ({"src/app/Units.h": '#include "app/Units.h"'}, ["a circle: app/Units.h -> app/Units.h"]),
    ({"src/engine/A.h": '#include "engine/B.h"', "src/engine/B.h": '#include "engine/C.h"',
      "src/engine/C.h": '#include "engine/A.h"'}, ["a circle: engine/A.h -> engine/B.h -> engine/C.h -> engine/A.h"]),
]


def faults_with(added):
    with tempfile.TemporaryDirectory() as folder:
        for name, text in {**SOUND, **added}.items():
            file = Path(folder) / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8")
        return faults(Path(folder))


class CheckIncludes(unittest.TestCase):
    def test_each_fault_is_found_and_told_once(self):
        for added, ends in CASES:
            with self.subTest(added=added):
                found = faults_with(added)
                self.assertEqual(len(found), len(ends), found)
                for line, end in zip(found, ends):
                    self.assertTrue(line.endswith(end), line)

    def test_the_rules_themselves_lead_only_downwards(self):
        below = {}
        for folder, others in MAY_INCLUDE.items():  # listed from the bottom up
            self.assertLessEqual(set(others), set(below), folder)
            below[folder] = others


if __name__ == "__main__":
    unittest.main()
