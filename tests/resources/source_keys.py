"""Collects the localisation keys that the C++ sources look up."""

import re

FOLDERS = ("app", "methods", "volumes", "wipe", "remote", "window")
# The look-ups themselves, the one function of the core that hands its key on to them, and the mark of a key in a table.
LOOKUPS = frozenset({"localised", "localise", "textFor", "setPhase", "textKey"})
CATALOGUE = "methods/method_catalogue.cpp"

TOKEN = re.compile(
    r'//[^\n]*|/\*.*?\*/'
    r'|(?:u8|[uUL])?R"(?P<fence>[^(\s"]*)\((?P<raw>.*?)\)(?P=fence)"'
    r'|"(?P<text>(?:\\.|[^"\\\n])*)"'
    r"|'(?:\\.|[^'\\\n])+'"
    r"|\d[\w.']*"
    r'|(?P<word>[A-Za-z_]\w*)'
    r'|(?P<mark>\S)', re.DOTALL)
ESCAPE = re.compile(r"\\(.)", re.DOTALL)
ESCAPED = {"n": "\n", "t": "\t", '"': '"', "'": "'", "\\": "\\"}


def tokens(source):
    """The (kind, value) pairs of C++ `source`; literals next to each other are one text, as for the compiler."""
    found = []
    for match in TOKEN.finditer(source):
        kind = match.lastgroup
        if kind is None:
            continue
        value = match[kind]
        if kind == "text":
            value = ESCAPE.sub(lambda escape: ESCAPED[escape[1]], value)
        elif kind == "raw":
            kind = "text"
        if kind == "text" and found and found[-1][0] == "text":
            value = found.pop()[1] + value
        found.append((kind, value))
    return found


def argumentTexts(following):
    """The texts up to the parenthesis that ends the call."""
    depth = 1
    for kind, value in following:
        if kind == "text":
            yield value
        depth += {"(": 1, ")": -1}.get(value, 0) if kind == "mark" else 0
        if depth == 0:
            return


def lookedUpKeys(source):
    """Every text within the parentheses of a look-up, so that both arms of a condition count."""
    found = tokens(source)
    return {text
            for at, token in enumerate(found[:-1])
            if token[0] == "word" and token[1] in LOOKUPS and found[at + 1] == ("mark", "(")
            for text in argumentTexts(found[at + 2:])}


def catalogueKeys(source):
    """The labelKey column: it follows the column with the method's word, and no other text follows one."""
    found = tokens(source)
    return [label[1]
            for word, comma, label in zip(found, found[1:], found[2:])
            if word[0] == label[0] == "text" and comma == ("mark", ",")]


def sourceKeys(root):
    """All keys of the tree at `root`. The empty key is left out: its text is empty without a table."""
    keys = set(catalogueKeys((root / CATALOGUE).read_text()))
    for folder in FOLDERS:
        for source in (root / folder).rglob("*"):
            if source.suffix in (".cpp", ".h"):
                keys |= lookedUpKeys(source.read_text())
    return keys - {""}
