#!/usr/bin/env python3
"""Tests tools/check-layers on small trees, each with one mistake.

    check_layers_test.py CHECK_LAYERS
"""
import os
import subprocess
import sys
import tempfile
import unittest

TREE = {
    "CMakeLists.txt": "vantorel_layer(ground)\nvantorel_layer(middle USES ground)\n"
                      "vantorel_layer(middle/top QT\n  USES middle LIBRARIES Qt6::Svg)\n",
    "README.md": "| folder | uses |\n|---|---|\n| `ground/` | a | - |\n| `middle/` | b | ground |\n"
                 "| `middle/top/` | c | middle |\n",
    "ground/Ground.h": "#include <string>\n",
    "middle/Middle.h": '#include "ground/Ground.h"\n#include "Generated.h"\n',
    "middle/top/Top.cpp": '#include "middle/Middle.h"\n#include "middle/top/Top.h"\n',
}


class CheckLayersTest(unittest.TestCase):
    def errors(self, **changes):
        with tempfile.TemporaryDirectory() as folder:
            for path, text in {**TREE, **changes}.items():
                path = os.path.join(folder, path)
                os.makedirs(os.path.dirname(path), exist_ok=True)
                with open(path, "w", encoding="utf-8") as file:
                    file.write(text)
            done = subprocess.run([CHECK, folder], stderr=subprocess.PIPE, text=True, check=False)
            self.assertEqual(done.returncode, 1 if done.stderr else 0)
            return done.stderr

    def test_a_tree_in_order(self):
        self.assertEqual(self.errors(), "")

    def test_an_include_of_a_higher_layer(self):
        errors = self.errors(**{"ground/Ground.h": '#include "middle/Middle.h"\n'})
        self.assertIn('ground/Ground.h: includes "middle/Middle.h", but ground does not use middle', errors)

    def test_use_is_not_inherited(self):
        errors = self.errors(**{"middle/top/Other.h": '  #  include "ground/Ground.h"\n'})
        self.assertIn("middle/top does not use ground", errors)

    def test_a_layer_that_is_named_but_not_included(self):
        self.assertIn("middle names ground, but does not include it", self.errors(**{"middle/Middle.h": ""}))

    def test_a_layer_that_is_used_before_it_is_listed(self):
        errors = self.errors(**{"CMakeLists.txt": "vantorel_layer(middle USES ground)\nvantorel_layer(ground)\n"
                                                  "vantorel_layer(middle/top USES middle)\n"})
        self.assertIn("middle uses ground, which is not listed above it", errors)

    def test_an_unlisted_folder(self):
        self.assertIn("other/Other.h: its folder is not a layer", self.errors(**{"other/Other.h": ""}))

    def test_a_readme_that_differs(self):
        table = TREE["README.md"]
        self.assertIn("README.md: middle uses ground, not -",
                      self.errors(**{"README.md": table.replace("| ground |", "| - |")}))
        self.assertIn("README.md: its table lists", self.errors(**{"README.md": table.replace("top", "bottom")}))

    def test_a_list_without_layers(self):
        self.assertIn("lists no layers", self.errors(**{"CMakeLists.txt": "# vantorel_layer(a)\n"}))


if __name__ == "__main__":
    CHECK = sys.argv.pop(1)
    unittest.main()
