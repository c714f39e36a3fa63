#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""check_layers_test.py SCRIPT: the layering check must find each kind of wrong include, and only those."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = sys.argv.pop()

ARCHITECTURE = """# House

## Who may include whom

| room | may include |
|---|---|
| `low` | |
| `low/inner` | |
| `high` | `low` |

## Where foreign libraries stay

| headers | rooms |
|---|---|
| `sqlite3.h` `other/` | `low` |
"""


class CheckLayers(unittest.TestCase):
    def run_on(self, files):
        with tempfile.TemporaryDirectory() as folder:
            root = Path(folder)
            for name, text in {"ARCHITECTURE.md": ARCHITECTURE, **files}.items():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text(text, encoding="utf-8")
            return subprocess.run([sys.executable, SCRIPT, folder], capture_output=True, text=True, check=False)

    def assert_fine(self, files):
        result = self.run_on(files)
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def assert_found(self, files, error):
        result = self.run_on(files)
        self.assertEqual(result.returncode, 1)
        self.assertIn(error, result.stderr)

    def test_allowed_includes_pass(self):
        self.assert_fine({
            "low/a.h": "#include <sqlite3.h>\n#include <other/x.h>\n#include <vector>\n",
            "low/deeper/b.h": '#include "low/a.h"\n',
            "high/c.cpp": '#include "high/c.h"\n#include "low/deeper/b.h"\n',
            "tests/d.cpp": '#include "high/c.h"\n#include <sqlite3.h>\n',
        })

    def test_an_include_upwards_is_found(self):
        self.assert_found({"low/a.h": '\n#include "high/c.h"\n'}, "low/a.h:2: low may not include high")

    def test_a_room_within_a_room_is_a_room_of_its_own(self):
        self.assert_found({"high/c.h": '#include "low/inner/a.h"\n'}, "high may not include low/inner")

    def test_a_foreign_header_outside_its_rooms_is_found(self):
        self.assert_found({"high/c.h": "#  include <other/thing.h>\n"}, "high may not include other/thing.h")

    def test_a_folder_without_a_row_is_found(self):
        self.assert_found({"low/a.h": "", "attic/a.h": ""}, "attic/a.h: its folder is in no row")

    def test_an_include_that_is_not_named_from_the_root_is_found(self):
        self.assert_found({"low/a.h": '#include "b.h"\n'}, '"b.h" is not named from the root')

    def test_an_edge_that_nothing_uses_is_found(self):
        self.assert_found({"high/c.cpp": "", "low/a.h": ""}, "high may include low, and nothing does")

    def test_a_foreign_header_that_nothing_uses_is_found(self):
        self.assert_found({"low/a.h": ""}, "nothing in low includes <sqlite3.h")

    def test_a_link_that_no_include_uses_is_found(self):
        self.assert_found({
            "low/CMakeLists.txt": "quillbay_library(low_things SOURCES a.cpp)\n",
            "high/CMakeLists.txt": "quillbay_library(high_things SOURCES c.cpp\n    LINKS low_things Qt6::Core)\n",
            "high/c.cpp": "",
        }, "high links low and includes nothing of it")

    def test_an_include_that_is_not_linked_is_found(self):
        self.assert_found({
            "low/CMakeLists.txt": "quillbay_library(low_things SOURCES a.cpp)\n",
            "high/CMakeLists.txt": "quillbay_library(high_things SOURCES c.cpp LINKS Qt6::Core)\n",
            "high/c.cpp": '#include "low/a.h"\n',
        }, "high includes low and does not link it")

    def test_a_tree_without_code_is_no_success(self):
        self.assert_found({}, "no source file was found")


if __name__ == "__main__":
    unittest.main()
