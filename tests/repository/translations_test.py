#!/usr/bin/env python3
"""Small made-up trees, to see that a missing, unfinished or left-over translation is found."""

import tempfile
import unittest
from pathlib import Path

import translations

SOURCE = {"app/Hello.qml": 'Text { text: qsTr("Good day") }\n'}


def message(source, translation):
    return f"<message><source>{source}</source>{translation}</message>"


def faults(sources, context, *messages):
    """The faults of a tree with these sources and a table with one context."""
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        table = f"<TS><context><name>{context}</name>{''.join(messages)}</context></TS>"
        for path, text in {**sources, "resources/translations/x_fr.ts": table}.items():
            file = root / path
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8")
        return list(translations.faults(root))


class Translations(unittest.TestCase):
    whole = message("Good day", "<translation>Bonjour</translation>")

    def test_a_text_with_its_translation_passes(self):
        self.assertEqual(faults(SOURCE, "Hello", self.whole), [])
        source = {"map/view/Hello.cpp": 'return Hello::tr("Good "\n    "day").arg(1);\n'}
        self.assertEqual(faults(source, "vasker::Hello", self.whole), [])
        source = {"map/view/HelloEvents.cpp": 'return Hello::tr("Good day");\n'}
        self.assertEqual(faults(source, "vasker::Hello", self.whole), [])
        source = {"map/Words.cpp": 'QCoreApplication::translate("Hello", "Good day")\n'}
        self.assertEqual(faults(source, "Hello", self.whole), [])
        plural = message("Good day", "<translation><numerusform>Bonjour</numerusform></translation>")
        self.assertEqual(faults(SOURCE, "Hello", plural), [])

    def test_a_text_without_translation_is_found(self):
        self.assertIn("app/Hello.qml", faults(SOURCE, "Hello")[0])
        self.assertEqual(len(faults(SOURCE, "Another", self.whole)), 2)

    def test_an_unfinished_or_empty_translation_is_found(self):
        for translation in (
            '<translation type="unfinished">Bonjour</translation>',
            "<translation></translation>",
            "",
        ):
            with self.subTest(translation=translation):
                self.assertEqual(len(faults(SOURCE, "Hello", message("Good day", translation))), 1)

    def test_a_translation_of_no_text_and_one_that_stands_twice_are_found(self):
        left = message("Good night", "<translation>Bonne nuit</translation>")
        self.assertIn("no source", faults(SOURCE, "Hello", self.whole, left)[0])
        self.assertIn("twice", faults(SOURCE, "Hello", self.whole, self.whole)[0])

    def test_a_listed_text_is_one_of_the_context_beside_it(self):
        source = {"app/Hello.cpp": 'QT_TRANSLATE_NOOP("Category", "Good day"),\n'}
        self.assertEqual(faults(source, "Category", self.whole), [])
        self.assertEqual(len(faults(source, "Hello", self.whole)), 2)


if __name__ == "__main__":
    unittest.main()
