#!/usr/bin/env python3
"""The README's table of read-only pages says what the catalog says.

    readme_read_only.py README.md MW_RENDER

Every page mw-render --list marks read-only stands in the table with its
reason, and the table names no other page.
"""
import re
import subprocess
import sys

readme, render = sys.argv[1], sys.argv[2]
listed = {}
for line in subprocess.run([render, '--list'], check=True, capture_output=True, text=True).stdout.splitlines():
    m = re.match(r'(\S+)\s+read-only\s+.*\(read-only: (.*)\)$', line)
    if m:
        listed[m.group(1)] = m.group(2)

text = open(readme, encoding='utf-8').read()
start = text.index('**Read-only pages.**')
table = text[start:text.index('\n\n', text.index('|---|---|', start))]
documented = {}
for row in table.splitlines():
    cells = [c.strip() for c in row.strip().strip('|').split('|')]
    if len(cells) != 2 or cells[0].startswith('---') or cells[0].startswith('why'):
        continue
    for name in re.findall(r'`([^`]+)`', cells[1]):
        documented[name] = cells[0]

problems = []
for name, reason in listed.items():
    if documented.get(name) != reason:
        problems.append('%s: README says %r, the catalog %r' % (name, documented.get(name), reason))
for name in documented:
    if name not in listed:
        problems.append('%s: in the README table but not read-only in the catalog' % name)
count = re.search(r'these (\d+) status and report pages', table)
if count is None or int(count.group(1)) != len(listed):
    problems.append('the README counts %s read-only pages, the catalog has %d' %
                    (count.group(1) if count else 'no', len(listed)))
print('\n'.join(problems) if problems else '%d read-only pages, all in the README with their reasons' % len(listed))
sys.exit(1 if problems else 0)
