"""The changes that scripts/mutation-check can make, each with the place where it stands."""

import pathlib
import re

TOP = pathlib.Path(__file__).resolve().parents[2]
FOLDERS = ("common", "geodesy", "correction", "conversion", "batch", "form", "plot", "panels", "exchange", "library", "convert",
           "shell", "cli")
# Text that stored copies hold, what another system compiles, and what runs when the program is built.
LEFT_OUT = ("batch/sample_data.cpp", "batch/run_notes.cpp", "common/windows_file_calls.cpp", "common/table/",
            "library/python/")

# Pairs of tokens that take each other's place.
OPERATORS = {
    "+": "-", "-": "+", "*": "/", "/": "*", "<": "<=", "<=": "<", ">": ">=", ">=": ">",
    "==": "!=", "!=": "==", "&&": "||", "||": "&&", "+=": "-=", "-=": "+=", "++": "--",
}  # fmt: skip
WORDS = {
    "sin": "cos", "cos": "sin", "true": "false", "false": "true", "min": "max", "max": "min",
    "first": "second", "second": "first", "Phi": "Lam", "Lam": "Phi", "X": "Y", "Y": "X",
    "TmX": "TmY", "TmY": "TmX", "UtmX": "UtmY", "WgsPhi": "WgsLam", "WgsLam": "WgsPhi",
    "UserPhi": "UserLam", "UserLam": "UserPhi", "DPhi": "DLam", "DLam": "DPhi", "break": "continue",
    "dPhi": "dLam", "dLam": "dPhi", "front": "back", "back": "front", "e2": "ep2",
}  # fmt: skip
TOKEN = re.compile(
    r"""(?P<text>u8?"(?:\\.|[^"\\])*"|"(?:\\.|[^"\\])*")|(?P<char>'(?:\\.|[^'\\])+')|(?P<comment>//.*)"""
    r"""|(?P<number>(?<![\w.])(?:0x[0-9a-fA-F]+|\d+\.?\d*(?:[eE][-+]?\d+)?)[UuLlFf]*)"""
    r"""|(?P<word>[A-Za-z_]\w*)|(?P<operator>\+\+|--|->|::|<<|>>|\+=|-=|\*=|/=|<=|>=|==|!=|&&|\|\||[-+*/<>])"""
)


class Change:
    """One change. `key` names it by its place: the function, the line within it and the column, so
    that lines elsewhere don't matter and two lines that read alike are two places."""

    def __init__(self, path, line, column, old, new, lines, place):
        self.path, self.line, self.column, self.old, self.new, self.lines = path, line, column, old, new, lines
        self.id = f"{path}:{line}:{column}:{old.strip()[:60]}=>{new.strip()[:60]}"
        self.key = f"{path}: {place}:{column}: {old.strip()} => {new.strip()}".strip()


def changed_number(text):
    """The same number one unit of its last place up."""
    body = re.match(r"0x[0-9a-fA-F]+|\d+\.?\d*", text).group()
    rest = text[len(body):]
    if body.startswith("0x"):
        return hex(int(body, 16) + 1) + rest
    digits = body.replace(".", "").rstrip(".")
    places = len(body.split(".")[1]) if "." in body else 0
    up = str(int(digits) + 1).rjust(len(digits), "0")
    if "." in body:
        up = up.rjust(places + 1, "0")
        up = up[: len(up) - places] + "." + up[len(up) - places:]
    return up + rest


def token_changes(line):
    for match in TOKEN.finditer(line):
        kind, text = match.lastgroup, match.group()
        before, after = line[: match.start()], line[match.end():]
        new = None
        if kind == "comment":
            return
        if kind == "number":
            new = changed_number(text)
        elif kind == "char" and len(text) == 3 and text[1].isalnum():
            new = f"'{chr(ord(text[1]) + 1)}'"
        elif kind == "word" and text in WORDS and not after.startswith("::"):
            new = WORDS[text]
        elif kind == "operator" and text in OPERATORS:
            spaced = before.endswith(" ") and after.startswith(" ")
            if spaced or text == "++" or (text == "-" and not before.rstrip().endswith(("return", "<"))):
                new = OPERATORS[text]
                if text == "-" and not spaced:
                    new = "+"
        if new is not None:
            yield match.start(), text, new


# A statement on one line that is no declaration: an assignment or a call.
STATEMENT = re.compile(
    r"^\s+(?:(?P<target>[A-Za-z_][\w.\[\]()>-]*?) *[-+*/]?= |(?!return|throw)[A-Za-z_][\w.:>-]*\()[^{]*;\s*(?://.*)?$")
# A call of a list, which touches nothing but it.
OF_A_LIST = re.compile(r"^\s+(?P<target>[A-Za-z_][\w.>-]*?)(?:\.|->)(?:push_back|emplace_back|clear|assign|resize)\(")
WORD = re.compile(r"[A-Za-z_]\w*")


def written_by(statement):
    """The name of what a statement changes; None where that can't be seen."""
    target = statement["target"] or (OF_A_LIST.match(statement.string) or {"target": None})["target"]
    return target and WORD.findall(target.split("[")[0])[-1]


def order_matters(first, second):
    """Whether one of two statements reads or writes what the other one writes."""
    names = [written_by(statement) for statement in (first, second)]
    if None in names:
        return True
    words = [set(WORD.findall(statement.string)) for statement in (first, second)]
    return names[0] in words[1] or names[1] in words[0]


HEAD = re.compile(r"^(?:struct|class|enum class)\s+(\w+)|^[A-Za-z_].*?([\w:~]+)\s*(?:\(|\[|=|\{)")


def places_of(lines):
    """For each line the name of what it stands in, and how far into it."""
    places, seen, name, first = [], {}, "top", 0
    for index, line in enumerate(lines):
        head = HEAD.match(line)
        if head and not line.startswith(("namespace", "using", "template", "static_assert", "return")):
            name = head.group(1) or head.group(2)
            seen[name] = seen.get(name, 0) + 1
            if seen[name] > 1:
                name += f"#{seen[name]}"
            first = index
        places.append(f"{name}+{index - first}")
    return places


def sources():
    """All of src/ but the window: what is compiled, and headers that hold more than names."""
    found = []
    for folder in FOLDERS:
        for path in sorted((TOP / "src" / folder).rglob("*")):
            name = str(path.relative_to(TOP / "src"))
            if name.startswith(LEFT_OUT) or path.suffix not in (".cpp", ".h"):
                continue
            if path.suffix == ".h" and not re.search(r"^\s+(?:return\b|for \()", path.read_text(encoding="utf-8"), re.M):
                continue
            found.append("src/" + name)
    return found


def changes_of(path):
    lines = (TOP / path).read_text(encoding="utf-8").split("\n")
    places = places_of(lines)
    for index, line in enumerate(lines):
        stripped = line.strip()
        if stripped.startswith(("#", "//", "namespace", "using", "template", "}")) or "static_assert" in line:
            continue
        if ".reserve(" in line:  # room made early changes no result
            continue
        for column, old, new in token_changes(line):
            changed = line[:column] + new + line[column + len(old):]
            yield Change(path, index + 1, column + 1, old, new, lines[:index] + [changed] + lines[index + 1:], places[index])
        whole = STATEMENT.match(line) if line.count("(") == line.count(")") else None
        if whole and lines[index - 1].rstrip().endswith((";", "{", "}")):
            yield Change(path, index + 1, 0, stripped, "", lines[:index] + [""] + lines[index + 1:], places[index])
            following = lines[index + 1]
            indent = re.match(r"\s*", line).group()
            next_one = STATEMENT.match(following)
            if next_one and re.match(r"\s*", following).group() == indent and order_matters(whole, next_one):
                swapped = lines[:index] + [following, line] + lines[index + 2:]
                yield Change(path, index + 1, 1, stripped, "after " + following.strip(), swapped, places[index])
