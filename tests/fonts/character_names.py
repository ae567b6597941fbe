"""Holds styled characters against Unicode's own names, of which each belongs to one character. Reads lines of style,
plain and styled character, parted by tabs; prints one line for each fault, and how many lines were right."""
import sys, unicodedata

DIGITS = "ZERO ONE TWO THREE FOUR FIVE SIX SEVEN EIGHT NINE".split()
# What Unicode calls the letters that it had before the mathematical ones, and the stand-ins of the small capitals.
OTHERWISE = {"MATHEMATICAL ITALIC SMALL H": "PLANCK CONSTANT", "LATIN LETTER SMALL CAPITAL Q": "GREEK SMALL LETTER ARCHAIC KOPPA",
             "LATIN LETTER SMALL CAPITAL S": "LATIN SMALL LETTER S", "LATIN LETTER SMALL CAPITAL X": "LATIN SMALL LETTER X"}
ONE_CASE = {"Negative Circled": "CAPITAL", "Squared": "CAPITAL", "Negative Squared": "CAPITAL", "Parenthesized": "SMALL"}


def expected(style, plain):
    kind = style.upper()
    if plain.isdigit():
        prefix = "DINGBAT " if style == "Negative Circled" and plain != "0" else ""
        return f"{prefix}{kind} DIGIT {DIGITS[int(plain)]}"
    if style == "Small Caps":
        return f"LATIN LETTER SMALL CAPITAL {plain.upper()}"
    case = ONE_CASE.get(style) or ("SMALL" if plain.islower() else "CAPITAL")
    return f"{kind} {case} {plain.upper()}" if kind.startswith("MATH") else f"{kind} LATIN {case} LETTER {plain.upper()}"


right = 0
for line in sys.stdin:
    style, plain, styled = line.rstrip("\n").split("\t")
    name = OTHERWISE.get(expected(style, plain), expected(style, plain))
    try:
        unicodedata.lookup(name)
    except KeyError:
        name = name.removeprefix("MATHEMATICAL ").replace("FRAKTUR", "BLACK-LETTER")
    if unicodedata.name(styled) != name:
        print(f"{style} {plain}: {unicodedata.name(styled)} instead of {name}")
    right += unicodedata.name(styled) == name
print(right, "right")
