#!/usr/bin/env python3
"""Many cameras from one simulator process, as a client managing them sees it
(127.0.0.1 only, every loop bounded).

    test_fleet.py MW_DEVICE MW_RENDER

Twenty cameras: each answers at its own port with its own identity, the
first lists them all at /fleet, a set on one camera never shows on another,
and a SIGKILL in the middle of sets on every camera loses none that was
acknowledged. Also the refused command lines and numbering from --first-id.
"""
import http.client
import ipaddress
import json
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import unittest

import requests
from requests.auth import HTTPDigestAuth

DEVICE, RENDER = sys.argv[1], sys.argv[2]
COUNT = 20
# The pages that carry a camera's identity; every other page is the sample.
IDENTITY_PAGES = {'get_system_information_json', 'get_network_tcp_json', 'get_network_http_json',
                  'get_network_upnp_json', 'get_network_bonjour_json', 'get_network_vpn_json'}


def render(name):
    return subprocess.run([RENDER, name], check=True, capture_output=True, text=True).stdout.rstrip('\n')


class Fleet:
    """mw-device --cameras COUNT on a free range of ports picked at random."""

    def __init__(self, count, *args):
        for _ in range(10):
            self.base = random.randrange(20000, 32000 - count)
            self.process = subprocess.Popen([DEVICE, '--cameras', str(count), '--port', str(self.base),
                                             '--timeout', '2'] + list(args),
                                            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
            line = self.process.stdout.readline()
            if line == 'mw-device: http://127.0.0.1:%d/\n' % self.base:
                self.count = count
                return
            errors = self.stop()
            if 'cannot listen' not in errors:
                raise RuntimeError('no URL: ' + line + errors)
        raise RuntimeError('no free range of ports')

    def port(self, k):
        return self.base + k - 1

    def request(self, k, method, path, body=None):
        connection = http.client.HTTPConnection('127.0.0.1', self.port(k), timeout=10)
        try:
            connection.request(method, path, body=body)
            response = connection.getresponse()
            return response.status, response.read().decode('utf-8', 'replace')
        finally:
            connection.close()

    def document(self, k, page):
        status, body = self.request(k, 'GET', '/api/%s?format=json' % page)
        assert status == 200, (k, page, status, body)
        return json.loads(body)

    def stop(self, kill=False):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL if kill else signal.SIGTERM)
        self.process.wait(timeout=30)
        errors = self.process.stderr.read()
        self.process.stdout.close()
        self.process.stderr.close()
        return errors


class Identity(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.fleet = Fleet(COUNT)
        status, body = cls.fleet.request(1, 'GET', '/fleet')
        assert status == 200, (status, body)
        cls.listed = json.loads(body)['cameras']

    @classmethod
    def tearDownClass(cls):
        cls.fleet.stop()

    def test_the_first_camera_lists_every_camera_at_its_port(self):
        self.assertEqual([c['id'] for c in self.listed], list(range(1, COUNT + 1)))
        for camera in self.listed:
            self.assertEqual(camera['url'], 'http://127.0.0.1:%d' % self.fleet.port(camera['id']))
        # Only the first camera answers /fleet; the others are cameras alone.
        for k in (2, COUNT):
            self.assertEqual(self.fleet.request(k, 'GET', '/fleet')[0], 404, k)
        self.assertEqual(self.fleet.request(1, 'POST', '/fleet', '{}')[0], 405)

    def test_every_camera_answers_its_own_identity(self):
        seen = {key: set() for key in ('mac', 'snCode', 'ipaddress', 'deviceName', 'ipv6')}
        for camera in self.listed:
            k = camera['id']
            info = self.fleet.document(k, 'system_information')
            tcp = self.fleet.document(k, 'network_tcp')
            http_page = self.fleet.document(k, 'network_http')
            self.assertEqual((info['mac'], info['snCode']), (camera['mac'], camera['serial']), k)
            self.assertEqual(info['deviceName'], 'Camera %04d' % k)
            octets = [int(x, 16) for x in info['mac'].split(':')]
            self.assertEqual(len(octets), 6, info['mac'])
            self.assertEqual(octets[0] & 3, 2, 'not a locally administered unicast address: ' + info['mac'])
            # The network pages show the address the information page does,
            # on the network of the gateway.
            self.assertEqual(tcp['ipv4Ipaddress'], info['ipaddress'], k)
            self.assertEqual(http_page['ipv4Ipaddress'], info['ipaddress'], k)
            self.assertEqual(http_page['ipv6Ipaddress'], tcp['ipv6Ipaddress'], k)
            network = ipaddress.ip_network('%s/%s' % (tcp['ipv4gateway'], tcp['ipv4netmask']), strict=False)
            self.assertIn(ipaddress.ip_address(tcp['ipv4Ipaddress']), network, k)
            self.assertNotEqual(tcp['ipv4Ipaddress'], tcp['ipv4gateway'], k)
            self.assertEqual(self.fleet.document(k, 'network_bonjour')['name'], info['deviceName'])
            self.assertEqual(self.fleet.document(k, 'network_vpn')['deviceName'], info['deviceName'])
            for key, value in [('mac', info['mac']), ('snCode', info['snCode']), ('ipaddress', info['ipaddress']),
                               ('deviceName', info['deviceName']), ('ipv6', tcp['ipv6Ipaddress'])]:
                self.assertNotIn(value, seen[key], 'camera %d shares %s' % (k, key))
                seen[key].add(value)

    def test_pages_without_identity_are_the_samples_on_every_camera(self):
        status, body = self.fleet.request(1, 'GET', '/api')
        pages = json.loads(body)['pages']
        self.assertEqual(status, 200)
        others = [p for p in pages if p['name'] not in IDENTITY_PAGES]
        self.assertEqual(len(pages) - len(others), len(IDENTITY_PAGES))
        for page in others:
            expected = render(page['name'])
            for k in (2, COUNT):  # the first camera is a fleet's camera as much as the last
                status, body = self.fleet.request(k, 'GET', page['path'] + '?format=json')
                self.assertEqual((status, body), (200, expected), (k, page['name']))
        for name in IDENTITY_PAGES:
            path = next(p['path'] for p in pages if p['name'] == name)
            self.assertNotEqual(self.fleet.request(COUNT, 'GET', path + '?format=json')[1], render(name), name)

    def test_a_set_on_one_camera_never_shows_on_another(self):
        self.fleet = Fleet(COUNT)  # a fleet of its own: the others' pages stay samples
        self.addCleanup(self.fleet.stop)
        sample = self.fleet.document(1, 'ptz_wiper')
        for k in range(1, COUNT + 1):
            status, _ = self.fleet.request(k, 'POST', '/api/system_water_mark?format=json',
                                           json.dumps({'waterMarkString': 'mark of %d' % k}))
            self.assertEqual(status, 200, k)
        changed = 1 - sample['autoWiper']
        self.assertEqual(self.fleet.request(7, 'POST', '/api/ptz_wiper?format=json',
                                            json.dumps({'autoWiper': changed}))[0], 200)
        # An identity page changed on one camera stays that camera's.
        self.assertEqual(self.fleet.request(9, 'POST', '/api/network_tcp?format=json',
                                            json.dumps({'mtuByte': 1400}))[0], 200)
        for k in range(1, COUNT + 1):
            self.assertEqual(self.fleet.document(k, 'system_water_mark')['waterMarkString'], 'mark of %d' % k)
            self.assertEqual(self.fleet.document(k, 'ptz_wiper')['autoWiper'],
                             changed if k == 7 else sample['autoWiper'], k)
            tcp = self.fleet.document(k, 'network_tcp')
            self.assertEqual(tcp['mtuByte'], 1400 if k == 9 else 1500, k)
            self.assertEqual(tcp['ipv4Ipaddress'], self.fleet.document(k, 'system_information')['ipaddress'], k)


class State(unittest.TestCase):
    def setUp(self):
        self.dir = tempfile.mkdtemp(prefix='mw-fleet-')

    def tearDown(self):
        shutil.rmtree(self.dir)

    def test_acknowledged_sets_of_every_camera_survive_a_kill(self):
        fleet = Fleet(COUNT, '--state', self.dir)
        acknowledged = {}
        stop = threading.Event()

        def stream(k):
            for i in range(500):
                if stop.is_set():
                    return
                try:
                    status, _ = fleet.request(k, 'POST', '/api/system_water_mark?format=json',
                                              json.dumps({'waterMarkString': '%d:%d' % (k, i)}))
                except OSError:
                    return
                if status != 200:
                    return
                acknowledged[k] = i

        streams = [threading.Thread(target=stream, args=(k,)) for k in range(1, COUNT + 1)]
        for t in streams:
            t.start()
        # Kill once every camera has had some sets acknowledged (bounded wait).
        for _ in range(300):
            if len(acknowledged) == COUNT and min(acknowledged.values()) >= 3:
                break
            threading.Event().wait(0.02)
        fleet.stop(kill=True)
        stop.set()
        for t in streams:
            t.join(timeout=30)
        self.assertEqual(len(acknowledged), COUNT)
        again = Fleet(COUNT, '--state', self.dir)
        try:
            for k in range(1, COUNT + 1):
                shown = again.document(k, 'system_water_mark')['waterMarkString']
                owner, i = (int(x) for x in shown.split(':'))
                self.assertEqual(owner, k, 'camera %d shows camera %d\'s set' % (k, owner))
                # The last acknowledged set, or the one in flight at the kill.
                self.assertIn(i, (acknowledged[k], acknowledged[k] + 1), k)
                self.assertEqual(again.document(k, 'system_information')['deviceName'], 'Camera %04d' % k)
        finally:
            again.stop()
        self.assertEqual(sorted(os.listdir(self.dir)), ['camera-%04d' % k for k in range(1, COUNT + 1)])

    def test_a_damaged_file_is_reported_and_only_its_camera_page_starts_from_the_sample(self):
        fleet = Fleet(3, '--state', self.dir)
        for k in (1, 2, 3):
            self.assertEqual(fleet.request(k, 'POST', '/api/system_water_mark?format=json',
                                           json.dumps({'waterMarkString': 'dock %d' % k}))[0], 200)
        fleet.stop()
        with open(os.path.join(self.dir, 'camera-0002', 'get_system_water_mark_json.json'), 'w') as f:
            f.write('{"waterMarkString": ')
        again = Fleet(3, '--state', self.dir)
        try:
            sample = json.loads(render('get_system_water_mark_json'))['waterMarkString']
            shown = [again.document(k, 'system_water_mark')['waterMarkString'] for k in (1, 2, 3)]
            self.assertEqual(shown, ['dock 1', sample, 'dock 3'])
        finally:
            errors = again.stop()
        self.assertRegex(errors, r'camera-0002/get_system_water_mark_json')
        self.assertNotIn('camera-0001', errors)
        self.assertNotIn('camera-0003', errors)

    def test_cameras_numbered_from_first_id_take_their_numbers_identity_and_folder(self):
        fleet = Fleet(3, '--first-id', '41', '--state', self.dir)
        try:
            listed = json.loads(fleet.request(1, 'GET', '/fleet')[1])['cameras']
            self.assertEqual([c['id'] for c in listed], [41, 42, 43])
            self.assertEqual([c['url'] for c in listed], ['http://127.0.0.1:%d' % fleet.port(k) for k in (1, 2, 3)])
            for k, camera in zip((1, 2, 3), listed):
                info = fleet.document(k, 'system_information')
                self.assertEqual((info['deviceName'], info['mac']), ('Camera %04d' % camera['id'], camera['mac']))
            self.assertEqual(fleet.request(2, 'POST', '/api/system_water_mark?format=json',
                                           '{"waterMarkString": "42"}')[0], 200)
        finally:
            fleet.stop()
        self.assertTrue(os.path.exists(os.path.join(self.dir, 'camera-0042', 'get_system_water_mark_json.json')))


class Accounts(unittest.TestCase):
    """One accounts file guards every camera: the last camera asks for a login
    as the first does, and each takes the same accounts and roles."""

    def test_every_camera_asks_for_the_same_accounts(self):
        directory = tempfile.mkdtemp()
        try:
            users = os.path.join(directory, 'users')
            for name, role in (('ada', 'operator'), ('vic', 'viewer')):
                subprocess.run([DEVICE, '--add-user', users, name, role], input='pw-' + name + '\n', text=True,
                               check=True, capture_output=True)
            fleet = Fleet(3, '--users', users)
            try:
                listing = 'http://127.0.0.1:%d/fleet' % fleet.port(1)
                self.assertEqual(requests.get(listing, timeout=10).status_code, 401)
                self.assertEqual(len(requests.get(listing, timeout=10, auth=HTTPDigestAuth('vic', 'pw-vic'))
                                     .json()['cameras']), 3)
                for k in (1, 3):
                    url = 'http://127.0.0.1:%d/api/system_water_mark?format=json' % fleet.port(k)
                    self.assertEqual(requests.get(url, timeout=10).status_code, 401, k)
                    body = '{"waterMarkString": "k%d"}' % k
                    cases = [('ada', 200), ('vic', 403)]
                    for name, status in cases:
                        answer = requests.post(url, data=body, timeout=10,
                                               auth=HTTPDigestAuth(name, 'pw-' + name))
                        self.assertEqual(answer.status_code, status, (k, name))
                    seen = requests.get(url, timeout=10, auth=HTTPDigestAuth('vic', 'pw-vic')).json()
                    self.assertEqual(seen['waterMarkString'], 'k%d' % k)
            finally:
                fleet.stop()
        finally:
            shutil.rmtree(directory)


class CommandLine(unittest.TestCase):
    def test_a_plain_run_is_one_camera_with_the_catalogs_identity(self):
        for args in ([], ['--cameras', '1']):
            process = subprocess.Popen([DEVICE, '--port', '0'] + args, stdout=subprocess.PIPE, text=True)
            try:
                port = int(process.stdout.readline().rsplit(':', 1)[1].strip('/\n'))
                connection = http.client.HTTPConnection('127.0.0.1', port, timeout=10)
                connection.request('GET', '/fleet')
                listed = json.loads(connection.getresponse().read())['cameras']
                connection.close()
            finally:
                process.terminate()
                process.wait(timeout=10)
                process.stdout.close()
            sample = json.loads(render('get_system_information_json'))
            self.assertEqual(listed, [{'id': 1, 'url': 'http://127.0.0.1:%d' % port, 'mac': sample['mac'],
                                       'serial': sample['snCode']}], args)

    def test_refused_fleets(self):
        cases = [
            (['--cameras', '0'], '--cameras'),
            (['--cameras', '1001'], '--cameras'),
            (['--cameras', '-3'], '--cameras'),
            (['--cameras', '20x'], '--cameras'),
            (['--cameras', '2', '--port', '0'], '--port'),
            (['--cameras', '21', '--port', '65516'], '65535'),  # the 21st would be 65536
            (['--first-id', '0', '--port', '20000'], '--first-id'),
            (['--first-id', '9999999', '--cameras', '2', '--port', '20000'], '--first-id'),
            (['--cameras', '2', '--port', '20000', '--fixed-body', '/dev/null'], '--fixed-body'),
        ]
        for args, named in cases:
            try:
                run = subprocess.run([DEVICE] + args, capture_output=True, text=True, timeout=5)
            except subprocess.TimeoutExpired:
                self.fail('%s was taken and the server started' % args)
            self.assertEqual(run.returncode, 2, args)
            self.assertIn(named, run.stderr, args)
            self.assertEqual(run.stdout, '', args)

    def test_the_last_port_may_be_65535(self):
        process = subprocess.Popen([DEVICE, '--cameras', '20', '--port', '65516'], stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, text=True)
        try:
            line = process.stdout.readline()
            if not line:
                self.skipTest('a port from 65516 to 65535 is taken: ' + process.stderr.read())
            self.assertEqual(line, 'mw-device: http://127.0.0.1:65516/\n')
            self.assertRegex(process.stdout.readline(), r'ports 65516 to 65535')
        finally:
            process.terminate()
            process.wait(timeout=10)
            process.stdout.close()
            process.stderr.close()


class SupervisorUnit(unittest.TestCase):
    """The systemd template unit that runs a large fleet as several processes."""
    UNIT = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', '..', 'tools', 'systemd',
                        'mw-device-fleet@.service')

    def test_the_unit_verifies_without_a_warning(self):
        if shutil.which('systemd-analyze') is None:
            self.skipTest('systemd-analyze is not installed')
        run = subprocess.run(['systemd-analyze', 'verify', self.UNIT], capture_output=True, text=True, timeout=60)
        self.assertEqual((run.returncode, run.stdout + run.stderr), (0, ''))

    def test_instances_serve_disjoint_numbers_and_ports(self):
        # The unit's own command line, run as systemd would run instances 1
        # and 2 (%i replaced), with this build's simulator, three cameras
        # each and a state folder of the test's.
        with open(self.UNIT) as f:
            unit = f.read()
        command = re.search(r"^ExecStart=/bin/sh -c '(.*)'$", unit, re.M).group(1)
        state = tempfile.mkdtemp(prefix='mw-fleet-unit-')
        self.addCleanup(shutil.rmtree, state)
        base = random.randrange(20000, 32000)
        listed = []
        for instance in (1, 2):
            line = command.replace('%i', str(instance)).replace('/usr/local/bin/mw-device', DEVICE)
            line = line.replace('/var/lib/mw-device-fleet', state)
            env = dict(os.environ, MW_CAMERAS='3', MW_BASE_PORT=str(base), MW_LISTEN='127.0.0.1')
            process = subprocess.Popen(['/bin/sh', '-c', line], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                       text=True, env=env)
            try:
                first = process.stdout.readline()
                if not first:
                    self.skipTest('a port of the range is taken: ' + process.stderr.read())
                port = int(first.rsplit(':', 1)[1].strip('/\n'))
                connection = http.client.HTTPConnection('127.0.0.1', port, timeout=10)
                connection.request('GET', '/fleet')
                listed += json.loads(connection.getresponse().read())['cameras']
                connection.close()
            finally:
                process.terminate()
                process.wait(timeout=10)
                process.stdout.close()
                process.stderr.close()
        self.assertEqual([c['id'] for c in listed], [1, 2, 3, 4, 5, 6])
        self.assertEqual([c['url'] for c in listed], ['http://127.0.0.1:%d' % (base + k) for k in range(6)])
        self.assertEqual(len({c['mac'] for c in listed}), 6)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1], verbosity=1)
