#!/usr/bin/env python3
"""A full clang-format configuration (as `clang-format-19 --dump-config` writes it, on standard input)
with the options that change more than white space set as Style Tarnel's plugins force them, so that
clang-format and a revision are compared on white space alone. Prints the result."""
import sys

FORCED = {
    "DisableFormat": "false",
    "SortIncludes": "Never",
    "IncludeBlocks": "Preserve",
    "SortUsingDeclarations": "Never",
    "InsertBraces": "false",
    "RemoveBracesLLVM": "false",
    "FixNamespaceComments": "false",
    "ReflowComments": "false",
    "QualifierAlignment": "Leave",
    "RemoveSemicolon": "false",
    "RemoveParentheses": "Leave",
    "IntegerLiteralSeparator": "{ Binary: 0, BinaryMinDigits: 0, Decimal: 0, DecimalMinDigits: 0, Hex: 0, HexMinDigits: 0 }",
    "InsertTrailingCommas": "None",
    "JavaScriptQuotes": "Leave",
    "BreakStringLiterals": "false",
    "InsertNewlineAtEOF": "false",
    "ObjCPropertyAttributeOrder": "[]",
    "Standard": "Latest",
}

out, skipping = [], False
for line in sys.stdin.read().splitlines():
    top = line[:1].isalpha() and ":" in line
    if top:
        key = line.split(":", 1)[0].strip()
        skipping = key in FORCED
        if skipping:
            out.append(f"{key}: {FORCED[key]}")
            continue
        if key == "KeepEmptyLines":
            out.append(line)
            continue
    elif skipping and line.startswith((" ", "\t")):
        continue
    else:
        skipping = False
    if line.strip().startswith("AtEndOfFile:") and out and any(l.startswith("KeepEmptyLines:") for l in out[-3:]):
        line = line.split(":", 1)[0] + ": true"
    out.append(line)
print("\n".join(out))
