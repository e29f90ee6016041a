#!/usr/bin/env python3
"""Tests tools/check-plain-text on single statements.

    check_plain_text_test.py CHECK_PLAIN_TEXT
"""
import os
import subprocess
import sys
import tempfile
import unittest

PLAIN = """
    widget->setToolTip(plainToolTip(name));
    widget->setToolTip(tr("Opacity"));
    widget->setToolTip({});
    QToolTip::showText(place, tr("Last colours"), this);
    case Qt::ToolTipRole: return plainToolTip(name);
    menu->addAction(action);
    menu->addAction(plainTitle(name));
    auto* button = box->addButton(QDialogButtonBox::Cancel);
    auto* opened = new QMenu(&window);
    auto* item = new QAction(icon(), tr("Copy"), menu);
    window->setWindowTitle(QCoreApplication::translate("Vantorel", "Colour"));
    auto* label = new PlainLabel(name);
    // setToolTip(name) and new QLabel in a comment
"""

FOREIGN = [
    "widget->setToolTip(name);",
    "const QString tip = name; widget->setToolTip(tip);",
    'widget->setToolTip(tr("Add %1").arg(name));',
    "setToolTip(qStringFrom(text));",
    "QToolTip::showText(place, color.text(), this);",
    "case Qt::ToolTipRole: return name;",
    "setItemData(0, name, Qt::ToolTipRole);",
    "menu->addAction(name);",
    'menu->addAction(tr("Remove ") + name);',
    "submenu->setTitle(qStringFrom(item.title));",
    "auto* action = new QAction(name, this);",
    "window->setWindowTitle(name);",
    "auto* label = new QLabel(name);",
    "class Note : public QLabel {};",
    "label->setTextFormat(Qt::RichText);",
    "QMessageBox::warning(this, {}, name);",
    "widget->setStatusTip(name);",
]


class CheckPlainTextTest(unittest.TestCase):
    def errors(self, statement, path="top/Top.cpp"):
        with tempfile.TemporaryDirectory() as sources:
            for name, text in {"CMakeLists.txt": "vantorel_layer(ground)\nvantorel_layer(top QT USES ground)\n",
                               "top/First.cpp": "", path: f"void show(const QString& name)\n{{\n{statement}\n}}"}.items():
                os.makedirs(os.path.dirname(os.path.join(sources, name)), exist_ok=True)
                with open(os.path.join(sources, name), "w", encoding="utf-8") as file:
                    file.write(text)
            done = subprocess.run([CHECK, sources], stderr=subprocess.PIPE, text=True, check=False)
            self.assertEqual(done.returncode, 1 if done.stderr else 0)
            return done.stderr

    def test_plain_texts(self):
        self.assertEqual(self.errors(PLAIN), "")

    def test_texts_that_could_be_markup(self):
        errors = self.errors("\n".join(FOREIGN))
        for line, statement in enumerate(FOREIGN, 3):
            with self.subTest(statement):
                self.assertIn(f"top/Top.cpp:{line}: ", errors)

    def test_only_layers_with_qt_show_texts(self):
        self.assertEqual(self.errors(FOREIGN[0], "ground/Ground.cpp"), "")


if __name__ == "__main__":
    CHECK = sys.argv.pop(1)
    unittest.main()
