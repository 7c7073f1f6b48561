#!/usr/bin/env python3
"""Shows Doxygen what a reader of the headers sees.

A comment in a header stands for all declarations below it, up to an empty line: a setter with its
getters, say. Doxygen takes it for the first one alone, so the others get a group around them. A
heading sets the stand-in's own operations apart, so each of them gets a remark. And nobody comments
the copying and moving of a class, which its declaration tells. No line is added or taken away, so
that places in messages stay right.
"""

import re
import sys

SPECIAL = re.compile(
    r"\s*(?:explicit )?(?:(\w+)\(|(\w+)& operator=\()"
    r"(?P<taken>const (?:\1|\2)&|(?:\1|\2)&&)(?: other)?\)(?: noexcept)?"
    r"(?: = (?P<body>\w+))?(?:;| \{.*\})$"
)
OWN_BEGIN = re.compile(r"\s*// The stand-in's own operation")
OWN_END = re.compile(r"(public|protected|private):|\};")
NOT_A_GROUP = re.compile(r"\s*(class|struct|enum|template|namespace|using|friend|#|//)")


def special_member(line):
    """The comment of a copying or moving member, or None for any other line."""
    match = SPECIAL.match(line)
    if not match:
        return None
    kind = "move" if match["taken"].endswith("&&") else "copy"
    if match["body"] == "delete":
        return f" ///< No {kind}."
    return " ///< Moves." if kind == "move" else " ///< Copies."


def indentation(line):
    return len(line) - len(line.lstrip())


def group_end(lines, begin):
    """One past the declarations that begin there; `begin` itself unless they are two or more."""
    if begin == len(lines) or NOT_A_GROUP.match(lines[begin]) or lines[begin].endswith(","):
        return begin
    depth = indentation(lines[begin])
    end = begin
    declarations = 0
    while end < len(lines) and lines[end].strip() and indentation(lines[end]) >= depth:
        line = lines[end].strip()
        if line.startswith("//") or special_member(lines[end]):
            break
        if indentation(lines[end]) == depth and not line.startswith("}"):
            declarations += 1
        end += 1
    return end if declarations > 1 else begin


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        lines = file.read().split("\n")
    ahead = [""] * (len(lines) + 1)
    behind = [special_member(line) or "" for line in lines]
    own = False
    at = 0
    while at < len(lines):
        own = not OWN_END.match(lines[at]) and (own or bool(OWN_BEGIN.match(lines[at])))
        comment = at
        while lines[at].lstrip().startswith("///"):
            at += 1
        if at == comment:
            at += 1
            continue
        if own:
            behind[at - 1] += " The stand-in's own."
        end = group_end(lines, at)
        if end > at:
            ahead[comment] += "/**@{*/ "
            ahead[end] += "/**@}*/ "
            at = end
    sys.stdout.write("\n".join(a + line + b for a, line, b in zip(ahead, lines, behind)))


main()
