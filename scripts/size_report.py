"""What takes the room in the shared object: `nm -S -C` output on stdin,
grouped by page (its description, walk, page object and exported functions)
and by archive (what renders, applies requests, builds schemas, and the
rest of the kit). Prints the largest of each."""
import collections
import re
import sys

PAGE = re.compile(r"(?:walk_|describe_|page_|row_)(\w+?)(?:\(|:|\b)|^(?:ware_)?(?:get|set|schema)_(\w+)_json$")
ARCHIVES = (("render", "::Out::"), ("set request", "::In::"), ("set request", "::Session::"),
            ("schema", "::Shape::"))

pages, archives = collections.Counter(), collections.Counter()
for line in sys.stdin:
    fields = line.rstrip("\n").split(None, 3)
    if len(fields) < 4 or fields[2] not in "tTrRdD":
        continue
    size, name = int(fields[1], 16), fields[3]
    match = PAGE.search(name)
    if match:
        pages[match.group(1) or match.group(2)] += size
        continue
    for archive, marker in ARCHIVES:
        if marker in name:
            archives[archive] += size
            break
    else:
        archives["kit and core" if "mw::" in name else "other"] += size

def show(title, counter, most):
    print(f"  {title}:")
    for name, size in counter.most_common(most):
        print(f"    {size:8d}  {name}")

print(f"  pages: {sum(pages.values())} bytes in {len(pages)} pages")
show("largest pages", pages, 10)
show("archives and the rest", archives, 8)
