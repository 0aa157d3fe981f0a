#!/usr/bin/env python3
"""Every page's sample document validates against the page's own JSON Schema,
checked by a validator of its own (python3-jsonschema, draft 2020-12), and the
same document altered to break a type, a range or a length does not.

    validate.py MW_RENDER
"""
import copy
import json
import subprocess
import sys

from jsonschema import Draft202012Validator

render = sys.argv[1]


def run(*args):
    return subprocess.run([render, *args], check=True, capture_output=True, text=True).stdout


def leaves(doc, schema, path=()):
    """(path, schema) of every value of the document the schema describes."""
    kind = schema.get("type")
    if kind == "object":
        for key, sub in schema.get("properties", {}).items():
            if key in doc:
                yield from leaves(doc[key], sub, path + (key,))
    elif kind == "array" and "prefixItems" in schema:
        for i, (item, sub) in enumerate(zip(doc, schema["prefixItems"])):
            yield from leaves(item, sub, path + (i,))
    elif "const" not in schema:
        yield path, schema


def altered(doc, path, value):
    out = copy.deepcopy(doc)
    node = out
    for step in path[:-1]:
        node = node[step]
    node[path[-1]] = value
    return out


def breakers(schema):
    """Values that break the leaf's schema, each with what it breaks."""
    kind = schema.get("type")
    if kind == "integer":
        yield "a text for an integer", "7"
        if "minimum" in schema:
            yield "a fraction", schema["minimum"] + 0.5
        if schema.get("maximum", 2**53) < 2**53:
            yield "above the range", schema["maximum"] + 1
            yield "below the range", schema["minimum"] - 1
    elif kind == "number":
        yield "a text for a number", "0.5"
    elif kind == "string":
        yield "a number for a text", 7
        if "maxLength" in schema:
            yield "a text too long", "x" * (schema["maxLength"] + 1)
    elif kind == "array":
        yield "an object for an array", {}


failures = 0
checked = 0
pages = [line.split()[0] for line in run("--list").splitlines() if line.split()[1] != "reply"]
for name in pages:
    doc = json.loads(run(name))
    schema = json.loads(run("--schema", name))
    Draft202012Validator.check_schema(schema)
    validator = Draft202012Validator(schema)
    errors = list(validator.iter_errors(doc))
    if errors:
        failures += 1
        print(f"{name}: its own document does not validate: {errors[0].message} at {list(errors[0].path)}")
        continue
    extra = dict(doc, zzNoSuchKey=1)
    if validator.is_valid(extra):
        failures += 1
        print(f"{name}: a key the page does not have validates")
    all_leaves = list(leaves(doc, schema))
    step = max(1, len(all_leaves) // 40)
    for path, leaf in all_leaves[::step]:
        for why, value in breakers(leaf):
            checked += 1
            if validator.is_valid(altered(doc, path, value)):
                failures += 1
                print(f"{name}: {why} at {'/'.join(map(str, path))} validates")

print(f"{len(pages)} schemas, {checked} altered documents: {len(pages) * 2 + checked - failures} passed, {failures} failed")
sys.exit(1 if failures else 0)
