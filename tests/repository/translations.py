#!/usr/bin/env python3
"""Whether every text that the sources mark as translatable has its translation, and nothing else has.

The context of a text is the QML file it stands in, or the class that a C++ file is named after, or what
stands with it: Class::tr("text"), translate("Context", "text"). Texts that come from data, such as the
labels of categories, are listed with the context they are looked up in:
QT_TRANSLATE_NOOP("Context", "text").
"""

import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

FOLDERS = ("platform", "presentation", "map", "detail", "app")

# The table of the language that the texts are written in: it holds those that have to differ.
CORRECTIONS = "vasker_en"

# A literal, perhaps in several pieces; what stands before it may name the context.
LITERAL = r'((?:"(?:[^"\\]|\\.)*"\s*)+)'
TEXT = re.compile(r"\b(?:(\w+)::)?(?:qsTr|tr|QT_TR_NOOP)\(\s*" + LITERAL)
TEXT_IN_CONTEXT = re.compile(r'\b(?:translate|QT_TRANSLATE_NOOP)\(\s*"([^"]+)",\s*' + LITERAL)
PIECE = re.compile(r'"((?:[^"\\]|\\.)*)"')


def marked_texts(root):
    """(context, text) of every marked text, with the file that it stands in."""
    found = {}
    for folder in FOLDERS:
        for file in sorted((root / folder).rglob("*")):
            if file.suffix not in (".qml", ".cpp", ".h"):
                continue
            source = file.read_text(encoding="utf-8")
            prefix = "" if file.suffix == ".qml" else "vasker::"
            texts = [(prefix + (own or file.stem), text) for own, text in TEXT.findall(source)]
            for context, literal in texts + TEXT_IN_CONTEXT.findall(source):
                text = "".join(PIECE.findall(literal)).replace('\\"', '"')
                found.setdefault((context, text), file.relative_to(root))
    return found


def faults(root):
    """What is wrong with the translations below `root`, in words."""
    marked = marked_texts(root)
    for table in sorted((root / "resources/translations").glob("*.ts")):
        name = table.relative_to(root)
        translated = set()
        for context in ElementTree.parse(table).getroot().iter("context"):
            for message in context.iter("message"):
                key = (context.findtext("name"), message.findtext("source"))
                translation = message.find("translation")
                text = "" if translation is None else "".join(translation.itertext()).strip()
                if not text or translation.get("type"):
                    yield f'{name}: {key[0]}: "{key[1]}" is not translated'
                if key in translated:
                    yield f'{name}: {key[0]}: "{key[1]}" stands twice'
                translated.add(key)
                if key not in marked:
                    yield f'{name}: {key[0]}: "{key[1]}" stands in no source'
        for key, file in marked.items():
            if key not in translated and table.stem != CORRECTIONS:
                yield f'{file}: "{key[1]}" is missing in {name}, context {key[0]}'


def main():
    root = Path(sys.argv[1])
    if not marked_texts(root):
        sys.exit(f"no texts below {root}")
    wrong = list(faults(root))
    print("\n".join(wrong))
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
