#!/usr/bin/env python3
"""Runs scenario files through the driver.

    run.py DRIVER FILE
    run.py --record DRIVER FILE     prints the file with what the driver replies now in place of each "like"

A scenario is a file of JSON lines. Each line is {"do": REQUEST, "expect": EXPECTATION, "why": TEXT};
"expect" and "why" are optional. Empty lines and lines that begin with "#" are ignored. "$HOME" in a request is
replaced by a temporary folder. A reply must be {"ok": true, ...} unless the expectation says otherwise. Objects
are compared by the keys of the expectation, lists as a whole, all other values exactly.

    {"near": X, "within": D}   a number within D of X
    {"has": [A, B]}            a list with an element that fits A and a later one that fits B
    {"count": N}               a list of N elements
    {"at": {"-1": A}}          a list whose element at that index (from the end if negative) fits A
    {"contains": TEXT}         a text that contains TEXT
    {"like": A}                A, with numbers that may differ by rounding; for whole pictures and states
"""
import json
import subprocess
import sys
import tempfile


ROUNDING = 1e-6


def mismatch(expected, found, path):
    """Returns a description of the mismatch in `found`, or None."""
    if isinstance(expected, dict):
        keys = set(expected)
        if keys == {"near", "within"}:
            fits = isinstance(found, (int, float)) and abs(found - expected["near"]) <= expected["within"]
            return None if fits else f"{path}: {found!r} is not near {expected['near']!r}"
        if keys == {"like"}:
            return mismatch(with_rounding(expected["like"]), found, path)
        if keys == {"contains"}:
            fits = isinstance(found, str) and expected["contains"] in found
            return None if fits else f"{path}: {found!r} does not contain {expected['contains']!r}"
        if keys == {"has"}:
            rest = list(found) if isinstance(found, list) else []
            for wanted in expected["has"]:
                while rest and mismatch(wanted, rest[0], path):
                    rest.pop(0)
                if not rest:
                    return f"{path}: {found!r} lacks {wanted!r}"
                rest.pop(0)
            return None
        if keys == {"count"}:
            fits = isinstance(found, list) and len(found) == expected["count"]
            return None if fits else f"{path}: {len(found) if isinstance(found, list) else found!r} elements, not {expected['count']}"
        if keys == {"at"}:
            for place, wanted in expected["at"].items():
                try:
                    element = found[int(place)]
                except (IndexError, TypeError, KeyError):
                    return f"{path}: nothing at {place}"
                wrong = mismatch(wanted, element, f"{path}[{place}]")
                if wrong:
                    return wrong
            return None
        if not isinstance(found, dict):
            return f"{path}: {found!r} is no object"
        for key, wanted in expected.items():
            if key not in found:
                return f"{path}.{key} is missing"
            wrong = mismatch(wanted, found[key], f"{path}.{key}")
            if wrong:
                return wrong
        return None
    if isinstance(expected, list):
        if not isinstance(found, list) or len(found) != len(expected):
            return f"{path}: {found!r}, not {expected!r}"
        for i, wanted in enumerate(expected):
            wrong = mismatch(wanted, found[i], f"{path}[{i}]")
            if wrong:
                return wrong
        return None
    same = expected == found and isinstance(expected, bool) == isinstance(found, bool)
    return None if same else f"{path}: {found!r}, not {expected!r}"


def with_rounding(value):
    """The expectation of a value that was recorded with rounded numbers."""
    if isinstance(value, dict):
        return {key: with_rounding(part) for key, part in value.items()}
    if isinstance(value, list):
        return [with_rounding(part) for part in value]
    return {"near": value, "within": ROUNDING} if isinstance(value, float) else value


def rounded(value):
    if isinstance(value, dict):
        return {key: rounded(part) for key, part in value.items()}
    if isinstance(value, list):
        return [rounded(part) for part in value]
    return round(value, 6) if isinstance(value, float) else value


def recorded(expected, found):
    """The expectation with the parts below "like" replaced by what was found."""
    if not isinstance(expected, dict):
        return expected
    if set(expected) == {"like"}:
        return {"like": rounded(found)}
    return {key: recorded(part, found[key]) for key, part in expected.items()}


def main():
    records = sys.argv[1:2] == ["--record"]
    driver, file = sys.argv[2:] if records else sys.argv[1:]
    steps = []
    with open(file, encoding="utf-8") as lines:
        for number, line in enumerate(lines, 1):
            if line.strip() and not line.startswith("#"):
                steps.append((number, json.loads(line)))
    if not steps:
        sys.exit(f"{file}: no step")
    # "raw" sends a malformed line.
    requests = "".join((step["raw"] if "raw" in step else json.dumps(step["do"])) + "\n" for _, step in steps)
    with tempfile.TemporaryDirectory() as home:
        requests = requests.replace("$HOME", home)
        run = subprocess.run([driver], input=requests.encode("utf-8", "surrogatepass"), capture_output=True, check=False)
    replies = run.stdout.decode("utf-8").splitlines()
    if records:
        for (_, step), reply in zip(steps, replies):
            if "expect" in step:
                step["expect"] = recorded(step["expect"], json.loads(reply))
            print(json.dumps(step, ensure_ascii=False, separators=(",", ":")))
        return
    problems = []
    if run.returncode != 0:
        problems.append(f"the driver ended with {run.returncode}: {run.stderr.decode('utf-8', 'replace')}")
    if len(replies) != len(steps):
        problems.append(f"{len(replies)} replies to {len(steps)} requests")
    for (number, step), reply in zip(steps, replies):
        expected = {"ok": True, **step.get("expect", {})}
        wrong = mismatch(expected, json.loads(reply), "reply")
        if wrong:
            problems.append(f"{file}:{number}: {wrong} ({step.get('why', 'no reason given')})")
    if problems:
        sys.exit("\n".join(problems))
    print(f"{file}: {len(steps)} steps")


main()
