#!/usr/bin/env python3
"""Memory and start time of a fleet of simulated cameras (127.0.0.1 only).

    fleet_measure.py MW_DEVICE [--sizes 1,100,1000] [--busy 10]

For each size N: the time from starting `mw-device --cameras N` until its
last camera answers, and its resident memory (VmRSS) once idle. For the
largest size also: the memory after a set on every settable page of the
first --busy cameras (each page's own document posted back), and the start
time and memory with an empty and with a full state folder (a saved
document for every settable page of every camera).
"""
import argparse
import http.client
import json
import os
import random
import shutil
import socket
import subprocess
import sys
import tempfile
import time

parser = argparse.ArgumentParser()
parser.add_argument('device')
parser.add_argument('--sizes', default='1,100,1000')
parser.add_argument('--busy', type=int, default=10)
parser.add_argument('--keep', metavar='DIR', help='the full state folder is made in DIR and kept')
options = parser.parse_args()


class Fleet:
    def __init__(self, count, *args):
        for _ in range(20):
            self.base = random.randrange(20000, 60000 - count)
            began = time.monotonic()
            self.process = subprocess.Popen([options.device, '--cameras', str(count), '--port', str(self.base)] +
                                            list(args), stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
            line = self.process.stdout.readline()
            if line.startswith('mw-device: http://'):
                break
            self.process.wait(timeout=10)  # a port of the range was taken: another range
        else:
            raise RuntimeError('no free port range')
        self.count = count
        last = self.base + count - 1
        deadline = began + 60
        while time.monotonic() < deadline:
            try:
                if self.request(last, 'GET', '/api/system_information?format=json')[0] == 200:
                    break
            except OSError:
                time.sleep(0.01)
        self.started = time.monotonic() - began

    def request(self, port, method, path, body=None):
        connection = http.client.HTTPConnection('127.0.0.1', port, timeout=10)
        try:
            connection.request(method, path, body=body)
            response = connection.getresponse()
            return response.status, response.read().decode()
        finally:
            connection.close()

    def resident_mb(self):
        time.sleep(0.5)
        with open('/proc/%d/status' % self.process.pid) as f:
            for line in f:
                if line.startswith('VmRSS:'):
                    return int(line.split()[1]) / 1024.0
        return float('nan')

    def stop(self):
        self.process.terminate()
        self.process.wait(timeout=60)
        self.process.stdout.close()


def settable_pages(fleet):
    return [p for p in json.loads(fleet.request(fleet.base, 'GET', '/api')[1])['pages'] if p['settable']]


sizes = [int(n) for n in options.sizes.split(',')]
rows = []
for n in sizes:
    fleet = Fleet(n)
    rows.append(('%d idle' % n, fleet.started, fleet.resident_mb()))
    if n == max(sizes):
        pages = settable_pages(fleet)
        for k in range(min(options.busy, n)):
            for page in pages:
                path = page['path'] + '?format=json'
                status, document = fleet.request(fleet.base + k, 'GET', path)
                status, reply = fleet.request(fleet.base + k, 'POST', path, document)
                assert status == 200, (k, page['name'], reply)
        rows.append(('%d, %d with every settable page set' % (n, min(options.busy, n)), None, fleet.resident_mb()))
    fleet.stop()

n = max(sizes)
state = options.keep or tempfile.mkdtemp(prefix='mw-fleet-state-')
try:
    fleet = Fleet(n, '--state', state)
    rows.append(('%d, empty state folder' % n, fleet.started, fleet.resident_mb()))
    # Every settable page saved for every camera: a page that shows the same
    # document on the first two cameras is taken from the first; the others
    # (identity pages) from each camera.
    pages = settable_pages(fleet)
    common = {}
    for page in pages:
        path = page['path'] + '?format=json'
        first = fleet.request(fleet.base, 'GET', path)[1]
        if n == 1 or fleet.request(fleet.base + 1, 'GET', path)[1] == first:
            common[page['name']] = first
    for k in range(n):
        folder = os.path.join(state, 'camera-%04d' % (k + 1)) if n > 1 else state
        for page in pages:
            document = common.get(page['name'])
            if document is None:
                document = fleet.request(fleet.base + k, 'GET', page['path'] + '?format=json')[1]
            with open(os.path.join(folder, page['name'] + '.json'), 'w') as f:
                f.write(document)
    fleet.stop()
    fleet = Fleet(n, '--state', state)
    rows.append(('%d, full state folder (%d documents each)' % (n, len(pages)), fleet.started,
                 fleet.resident_mb()))
    fleet.stop()
finally:
    if not options.keep:
        shutil.rmtree(state)

print('%-50s %10s %12s' % ('cameras', 'start s', 'VmRSS MB'))
for name, started, rss in rows:
    print('%-50s %10s %12.1f' % (name, '%.2f' % started if started is not None else '-', rss))
