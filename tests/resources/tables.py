"""Reads the translation tables."""

import pathlib
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
FOLDER = ROOT / "resources" / "i18n"
LOCALES = ("en", "de", "fr", "es", "it", "pt_BR", "nl", "pl", "sv", "tr", "uk", "ja", "ko", "zh_CN", "ar")


def tablePath(locale):
    return FOLDER / f"calvero_{locale}.ts"


def readTable(locale):
    return ElementTree.parse(tablePath(locale)).getroot()


def pairs(table):
    """The (key, text) pairs in the order of the file."""
    return [(message.findtext("source"), message.findtext("translation")) for message in table.iter("message")]
