"""The pages: templates with the names of figures, and the record of their values.

In a template `{{name}}` stands for a figure, `{{name+}}` for one with its sign, and `{{=10.405}}`
for a number that is given, not computed: a constant of the program, a code, a chosen place.
A number with a unit must be one of these; nothing is typed in by hand.
"""

import pathlib
import re
import unicodedata

HERE = pathlib.Path(__file__).resolve().parent
TOP = HERE.parents[1]
RECORD = HERE / "figures.txt"
PAGES = ("numbers.md", "numbers.ko.md")
MARK = re.compile(r"\{\{(=?)([^{}]+?)(\+?)\}\}")
UNIT = r"(?:mm|cm|km|m|ppm|seconds?|degrees?|minutes|metres|times|%|초|도|분|배|미터|회)"
# A number with a unit behind it.
BARE = re.compile(rf"(?<![\w.{{=])-?\d[\d.,]*(?:\s|-)?{UNIT}(?![A-Za-z0-9])")
# Figures that other texts repeat: whoever writes such a sentence states the same.
QUOTED_IN = ("docs/guide.ko.md", "src/desktop/resources/KelvoHelp.txt")
QUOTES = ((r"(\S+) m\(백령도\)에서", "height.run.land.least"), (r"(\S+) m\(독도\)까지", "height.run.land.most"),
          (r"X가 (\S+) m, *표고가", "panel.x"), (r"X가 \S+ m,\s*표고가\s+(\S+) m", "panel.height"))
HEAD = "<!-- Made by scripts/figures from scripts/figures.d/{name}.in: change that, then scripts/figures --write. -->\n"


def read_record(path=RECORD):
    values = {}
    for line in path.read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            name, _, value = line.partition(" ")
            values[name] = value
    return values


def write_record(values, path=RECORD):
    lines = ["# Every figure of docs/numbers.md and docs/numbers.ko.md, as scripts/figures --write computed it."]
    path.write_text("\n".join(lines + [f"{name} {values[name]}" for name in sorted(values)]) + "\n", encoding="utf-8")


def template(page):
    return (HERE / f"{page}.in").read_text(encoding="utf-8")


def names_in(page):
    return {name for given, name, _ in MARK.findall(template(page)) if not given}


def columns(text):
    return sum(2 if unicodedata.east_asian_width(letter) in "WF" else 1 for letter in text)


def filled(lines):
    """A paragraph or list item with its lines filled to 100 columns."""
    indent = " " * (len(lines[0]) - len(lines[0].lstrip(" -")))
    result = [lines[0][: len(indent)]]
    text = " ".join([lines[0][len(indent) :], *lines[1:]])
    # a number and its unit stay together
    for word in re.findall(r"\S*\d +(?:mm|km|m|ppm)(?![A-Za-z])\S*|\S+", text):
        blank = "" if result[-1].strip(" -") == "" else " "
        if blank and columns(result[-1]) + 1 + columns(word) > 100:
            result.append(indent + word)
        else:
            result[-1] += blank + word
    return result


def reflowed(text):
    """Values are longer and shorter than their names: fills the lines of plain text anew."""
    result, paragraph, code = [], [], False
    for line in [*text.split("\n"), ""]:
        fence = line.startswith("```")
        plain = not (code or fence or line == "" or re.match(r"    |#|\||!|<", line))
        if paragraph and (not plain or line.startswith("- ")):
            result += filled(paragraph)
            paragraph = []
        if plain:
            paragraph.append(line)
        else:
            result.append(line)
        code = code != fence
    return "\n".join(result[:-1])


def render(page, values):
    def value_of(match):
        given, name, sign = match.groups()
        value = name if given else values[name].replace(" +step", "\n  +step")
        return f"+{value}" if sign and float(value) > 0 else value

    return HEAD.format(name=page) + reflowed(MARK.sub(value_of, template(page)))


def unlike(computed, stated):
    """Whether a value, unrounded, is another one than its stated text. The last place may be one
    off where the value lies between two, as machines and PROJ's releases differ in the last bit."""
    if isinstance(computed, str):
        return computed != stated
    decimals = len(stated.partition(".")[2])
    return abs(computed - float(stated)) > 0.6 * 10.0**-decimals


def misquoted(values):
    found = []
    for name in QUOTED_IN:
        text = (TOP / name).read_text(encoding="utf-8")
        for pattern, figure in QUOTES:
            found += [f"{name} says {quoted}, {figure} is {values[figure]}"
                      for quoted in re.findall(pattern, text) if quoted != values[figure]]  # fmt: skip
    return found


def complaints(values, folder):
    """What is wrong with the pages in `folder`, one sentence each."""
    found = []
    for page in PAGES:
        text = template(page)
        unknown = sorted(names_in(page) - values.keys())
        if unknown:
            found += [f"{page}.in names a figure that nothing computes: {name}" for name in unknown]
            continue
        plain = re.sub(r"```.*?```|`[^`\n]*`|<!--.*?-->|\]\([^)]*\)", "", MARK.sub("", text), flags=re.S)
        for number in BARE.findall(plain):
            found.append(f"{page}.in states {number!r} by hand")
        written = folder / page
        if not written.exists() or written.read_text(encoding="utf-8") != render(page, values):
            found.append(f"docs/{page} isn't what scripts/figures --write makes of its template")
    found += [f"numbers.ko.md.in has a figure that numbers.md.in hasn't: {name}" for name in
              sorted(names_in(PAGES[1]) - names_in(PAGES[0]))]  # fmt: skip
    unused = sorted(values.keys() - names_in(PAGES[0]))
    found += [f"figures.txt has a figure that no page states: {name}" for name in unused]
    return found + misquoted(values)
