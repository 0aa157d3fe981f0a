#!/usr/bin/env python3
"""Accounts, Digest authentication, roles, lockout and HTTPS of the device simulator, on 127.0.0.1 only.

    test_auth.py MW_DEVICE MW_RENDER

Logs in with clients this project did not write (curl --digest, Python's
requests with HTTPDigestAuth) over HTTP and HTTPS with each algorithm, and
with a hand-driven Digest client (RFC 7616) where a test needs to replay or
age a header. Every loop is bounded.
"""
import hashlib
import http.client
import json
import os
import re
import shutil
import signal
import ssl
import subprocess
import sys
import tempfile
import time
import unittest

import requests
from requests.auth import HTTPDigestAuth

DEVICE, RENDER = sys.argv[1], sys.argv[2]
REALM = 'mw-device'
WIPER = '/api/ptz_wiper?format=json'             # settable by an operator
USERS = '/api/system_user?format=json'           # settable by an administrator only
INFO = '/api/system_information?format=json'     # read-only

# The pages only an administrator may change, as the README lists them: the
# accounts, the addressing, the remote access and the guards of the camera.
ADMINISTRATOR_ONLY = {
    'get_system_user_json', 'get_system_user_anonymous_json', 'get_system_authority_json',
    'get_system_sqa_info_json', 'get_system_access_list_json', 'get_system_ssh_json',
    'get_network_tcp_json', 'get_network_vlan_json', 'get_network_pppoe_json', 'get_network_http_json',
    'get_network_8021x_json', 'get_network_ddns_json', 'get_network_upnp_json', 'get_network_platform_json',
    'get_network_vpn_json', 'get_network_snmp_json', 'get_network_more_json',
}
PASSWORDS = {'ada': ('administrator', 'Adm1n pass'), 'otto': ('operator', 'op3rator'),
             'vera': ('viewer', 'v13wer:colon')}
AUTH_OFF = 'mw-device: no --users: authentication is off (loopback only)\n'


def add_user(path, name, role, password):
    return subprocess.run([DEVICE, '--add-user', path, name, role], input=password + '\n', capture_output=True,
                          text=True, timeout=10)


def accounts_file(directory):
    path = os.path.join(directory, 'users')
    for name, (role, password) in PASSWORDS.items():
        assert add_user(path, name, role, password).returncode == 0
    return path


class Server:
    def __init__(self, *args):
        self.process = subprocess.Popen([DEVICE, '--port', '0', '--timeout', '2'] + list(args),
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        line = self.process.stdout.readline()
        match = re.match(r'mw-device: (https?)://127\.0\.0\.1:(\d+)/$', line.strip())
        if not match:
            raise RuntimeError('no URL: ' + line + self.process.stderr.read())
        self.scheme, self.port = match.group(1), int(match.group(2))
        self.base = '%s://127.0.0.1:%d' % (self.scheme, self.port)

    def request(self, method, path, body=None, headers=None, source='127.0.0.1'):
        connection = http.client.HTTPConnection('127.0.0.1', self.port, timeout=10, source_address=(source, 0))
        try:
            connection.request(method, path, body=body, headers=headers or {})
            response = connection.getresponse()
            return response.status, response.read().decode(), dict(response.getheaders())
        finally:
            connection.close()

    def stop(self):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGTERM)
        self.process.wait(timeout=10)
        errors = self.process.stderr.read()
        self.process.stdout.close()
        self.process.stderr.close()
        return errors


class From(requests.adapters.HTTPAdapter):
    """requests from a source address of its own (failed logins count per address)."""

    def __init__(self, source):
        self.source = source
        super().__init__()

    def init_poolmanager(self, *args, **kwargs):
        kwargs['source_address'] = (self.source, 0)
        super().init_poolmanager(*args, **kwargs)


def session_from(source):
    session = requests.Session()
    session.mount('http://', From(source))
    return session


def challenge_of(headers):
    field = headers.get('WWW-Authenticate', '')
    assert field.startswith('Digest '), field
    return {k.lower(): v for k, v in re.findall(r'(\w+)="?([^",]*)"?', field[7:])}


class Digest:
    """A Digest client written from RFC 7616, for the cases the libraries do not make: replays and old nonces."""

    def __init__(self, name, password, algorithm='SHA-256'):
        self.name, self.password = name, password
        self.hash = {'SHA-256': hashlib.sha256, 'MD5': hashlib.md5}[algorithm]
        self.algorithm = algorithm
        self.count = 0

    def h(self, text):
        return self.hash(text.encode()).hexdigest()

    def field(self, method, uri, challenge, cnonce=None):
        self.count += 1
        nc = '%08x' % self.count
        cnonce = cnonce or os.urandom(8).hex()
        ha1 = self.h('%s:%s:%s' % (self.name, challenge['realm'], self.password))
        response = self.h('%s:%s:%s:%s:auth:%s' % (ha1, challenge['nonce'], nc, cnonce, self.h(method + ':' + uri)))
        return ('Digest username="%s", realm="%s", nonce="%s", uri="%s", algorithm=%s, response="%s", qop=auth, '
                'nc=%s, cnonce="%s", opaque="%s"' % (self.name, challenge['realm'], challenge['nonce'], uri,
                                                     self.algorithm, response, nc, cnonce, challenge['opaque']))


class WithAccounts(unittest.TestCase):
    OPTIONS = ()

    @classmethod
    def setUpClass(cls):
        cls.dir = tempfile.mkdtemp()
        cls.users = accounts_file(cls.dir)
        cls.server = Server('--users', cls.users, *cls.OPTIONS)

    @classmethod
    def tearDownClass(cls):
        cls.server.stop()
        shutil.rmtree(cls.dir)

    def as_(self, name, method, path, body=None, session=None):
        response = (session or requests).request(method, self.server.base + path, data=body,
                                                 auth=HTTPDigestAuth(name, PASSWORDS[name][1]), timeout=10)
        return response.status_code, response.text


class Roles(WithAccounts):
    def test_each_role_against_each_kind_of_page(self):
        document = {path: self.server.request('GET', path, headers={'Authorization': 'x'})[1]
                    for path in [WIPER, USERS]}
        own = {path: self.as_('ada', 'GET', path)[1] for path in [WIPER, USERS, INFO]}
        cases = [
            # (account, method, path, status)
            ('ada', 'GET', INFO, 200), ('ada', 'POST', WIPER, 200), ('ada', 'POST', USERS, 200),
            ('otto', 'GET', INFO, 200), ('otto', 'GET', USERS, 200), ('otto', 'POST', WIPER, 200),
            ('otto', 'POST', USERS, 403),
            ('vera', 'GET', INFO, 200), ('vera', 'GET', USERS, 200), ('vera', 'HEAD', WIPER, 200),
            ('vera', 'POST', WIPER, 403), ('vera', 'POST', USERS, 403), ('vera', 'DELETE', WIPER, 403),
            # a role that may write meets the page's own refusal
            ('ada', 'POST', INFO, 405), ('otto', 'POST', INFO, 405),
        ]
        self.assertEqual(document[WIPER], document[USERS])  # a junk Authorization field reads nothing
        for name, method, path, expected in cases:
            status, body = self.as_(name, method, path, own[path] if method == 'POST' else None)
            self.assertEqual(status, expected, (name, method, path, body))
            if method == 'GET':
                self.assertEqual(body, own[path], (name, path))
            if expected == 403:
                self.assertIn(PASSWORDS[name][0], json.loads(body)['error'], (name, path))
        # Refused sets changed nothing: the users page is as it was.
        self.assertEqual(self.as_('ada', 'GET', USERS)[1], own[USERS])

    def test_an_operator_is_refused_exactly_the_administrator_only_pages(self):
        rows = [line.split()[:2] for line in subprocess.run([RENDER, '--list'], check=True, capture_output=True,
                                                            text=True).stdout.splitlines() if line.strip()]
        settable = {name for name, kind in rows if kind == 'settable'}
        self.assertEqual(ADMINISTRATOR_ONLY - settable, set(), 'listed but not settable catalog pages')
        session = requests.Session()
        _, index = self.as_('otto', 'GET', '/api', session=session)
        refused = set()
        for page in json.loads(index)['pages']:
            if not page['settable']:
                continue
            path = page['path'] + '?format=json'
            _, document = self.as_('otto', 'GET', path, session=session)
            status, _ = self.as_('otto', 'POST', path, document, session=session)
            self.assertIn(status, (200, 403), page['name'])
            if status == 403:
                refused.add(page['name'])
        self.assertEqual(refused, ADMINISTRATOR_ONLY)


class Credentials(WithAccounts):
    OPTIONS = ('--cors', 'http://127.0.0.1:5173')

    def test_no_or_wrong_credentials_answer_401_with_a_challenge(self):
        cases = [
            ('no credentials', None),
            ('wrong password', HTTPDigestAuth('otto', 'op3rator!')),
            ('unknown user', HTTPDigestAuth('nobody', 'op3rator')),
            ('right password, wrong account', HTTPDigestAuth('vera', 'op3rator')),
            ('basic instead of digest', requests.auth.HTTPBasicAuth('otto', 'op3rator')),
        ]
        for i, (what, auth) in enumerate(cases):
            session = session_from('127.0.5.%d' % (i + 1))  # fewer than five failures from each
            for path in ['/api', WIPER, '/api/openapi.json', '/api/no_such_page']:
                response = session.get(self.server.base + path, auth=auth, timeout=10)
                self.assertEqual(response.status_code, 401, (what, path))
                challenge = challenge_of(response.headers)
                self.assertEqual((challenge['realm'], challenge['algorithm'].upper(), challenge['qop']),
                                 (REALM, 'SHA-256', 'auth'), what)
                self.assertNotIn('stale', challenge, what)
                self.assertNotIn('autoWiper', response.text, what)

    def test_the_browser_page_and_preflights_need_no_credentials(self):
        for path in ['/', '/index.html', '/app.js', '/style.css']:
            self.assertEqual(self.server.request('GET', path)[0], 200, path)
        status, _, headers = self.server.request('OPTIONS', WIPER, headers={
            'Origin': 'http://127.0.0.1:5173', 'Access-Control-Request-Method': 'POST',
            'Access-Control-Request-Headers': 'authorization, content-type'})
        self.assertEqual(status, 204)
        self.assertEqual(headers.get('Access-Control-Allow-Credentials'), 'true')
        self.assertIn('authorization', headers['Access-Control-Allow-Headers'].lower().replace(' ', '').split(','))

    def test_a_named_origin_can_log_in(self):
        origin = {'Origin': 'http://127.0.0.1:5173'}
        status, _, headers = self.server.request('GET', WIPER, headers=origin)
        self.assertEqual(status, 401)
        self.assertEqual(headers.get('Access-Control-Allow-Origin'), origin['Origin'])
        self.assertEqual(headers.get('Access-Control-Allow-Credentials'), 'true')
        self.assertIn('WWW-Authenticate', [h.strip() for h in headers['Access-Control-Expose-Headers'].split(',')])
        response = requests.get(self.server.base + WIPER, headers=origin, auth=HTTPDigestAuth('vera', 'v13wer:colon'),
                                timeout=10)
        self.assertEqual(response.status_code, 200)
        self.assertEqual(response.headers.get('Access-Control-Allow-Credentials'), 'true')
        other = self.server.request('GET', WIPER, headers={'Origin': 'http://127.0.0.1:5174'})[2]
        self.assertNotIn('Access-Control-Allow-Credentials', other)

    def test_a_replayed_authorization_field_is_refused(self):
        for source, method, path, body in [('127.0.6.1', 'GET', WIPER, None),
                                           ('127.0.6.2', 'POST', WIPER, '{"autoWiper": 1}')]:
            client = Digest('otto', 'op3rator')
            status, _, headers = self.server.request(method, path, body, source=source)
            field = client.field(method, path, challenge_of(headers))
            self.assertEqual(self.server.request(method, path, body, {'Authorization': field}, source)[0], 200)
            # Again and again on fresh connections, within the nonce's second
            # and after it: refused every time.
            # (The library reports a used count as it reports a nonce it let
            # go, so the challenge may say stale: either way, refused.)
            for attempt in range(3):
                status, _, again = self.server.request(method, path, body, {'Authorization': field}, source)
                self.assertEqual(status, 401, (method, attempt))
                challenge_of(again)  # a challenge to answer afresh
            time.sleep(1.1)
            self.assertEqual(self.server.request(method, path, body, {'Authorization': field}, source)[0], 401)
            # The next count with the same nonce is good.
            self.assertEqual(self.server.request(method, path, body, {
                'Authorization': client.field(method, path, challenge_of(headers))}, source)[0], 200, method)

    def test_a_nonce_from_elsewhere_is_stale_and_the_client_retries_silently(self):
        client = Digest('vera', 'v13wer:colon')
        _, _, headers = self.server.request('GET', INFO)
        first = challenge_of(headers)
        # A nonce handed out for one page, or one made up, is stale for another:
        # the answer says so, so the client may retry with the same password.
        for nonce in [first['nonce'], '0' * len(first['nonce'])]:
            field = client.field('GET', WIPER, dict(first, nonce=nonce))
            status, _, answer = self.server.request('GET', WIPER, headers={'Authorization': field})
            self.assertEqual(status, 401)
            fresh = challenge_of(answer)
            self.assertEqual(fresh.get('stale'), 'true')
            self.assertEqual(self.server.request('GET', WIPER, headers={
                'Authorization': client.field('GET', WIPER, fresh)})[0], 200)
        # requests retries a stale challenge by itself: one session over pages
        # whose nonces are all stale for each other.
        session = requests.Session()
        session.auth = HTTPDigestAuth('vera', 'v13wer:colon')
        for path in [INFO, WIPER, USERS, INFO]:
            self.assertEqual(session.get(self.server.base + path, timeout=10).status_code, 200, path)

    def test_stale_nonces_and_missing_credentials_do_not_lock_out(self):
        client = Digest('vera', 'v13wer:colon')
        _, _, headers = self.server.request('GET', INFO, source='127.0.0.3')
        old = challenge_of(headers)
        for attempt in range(8):
            self.assertEqual(self.server.request('GET', WIPER, source='127.0.0.3')[0], 401, attempt)
            status, _, _ = self.server.request('GET', WIPER, headers={
                'Authorization': client.field('GET', WIPER, old)}, source='127.0.0.3')
            self.assertEqual(status, 401, attempt)
        _, _, headers = self.server.request('GET', WIPER, source='127.0.0.3')
        self.assertEqual(self.server.request('GET', WIPER, headers={
            'Authorization': client.field('GET', WIPER, challenge_of(headers))}, source='127.0.0.3')[0], 200)


class Lockout(WithAccounts):
    OPTIONS = ('--lockout-seconds', '3')

    def login(self, password, source):
        client = Digest('otto', password)
        status, _, headers = self.server.request('GET', WIPER, source=source)
        if status != 401:
            return status, headers
        status, body, answer = self.server.request('GET', WIPER, headers={
            'Authorization': client.field('GET', WIPER, challenge_of(headers))}, source=source)
        return status, answer

    def test_five_failures_lock_the_address_out_until_the_time_is_up(self):
        source = '127.0.0.2'
        for attempt in range(4):
            self.assertEqual(self.login('wrong', source)[0], 401, attempt)
        status, headers = self.login('wrong', source)
        self.assertEqual(status, 429)
        self.assertIn(headers.get('Retry-After'), ('1', '2', '3'))
        self.assertEqual(self.login('op3rator', source)[0], 429)        # the right password too
        self.assertEqual(self.server.request('GET', '/', source=source)[0], 200)  # the static page is not guarded
        self.assertEqual(self.login('op3rator', '127.0.0.1')[0], 200)   # another address is not affected
        time.sleep(3.2)
        self.assertEqual(self.login('op3rator', source)[0], 200)
        # Its count starts again: four more failures do not lock it.
        for attempt in range(4):
            self.assertEqual(self.login('wrong', source)[0], 401, attempt)
        self.assertEqual(self.login('op3rator', source)[0], 200)

    def test_failures_spread_over_more_than_the_window_do_not_lock(self):
        source = '127.0.0.4'
        for attempt in range(3):
            self.assertEqual(self.login('wrong', source)[0], 401, attempt)
        time.sleep(3.2)
        for attempt in range(2):
            self.assertEqual(self.login('wrong', source)[0], 401, attempt)

    def test_a_flood_of_addresses_does_not_lift_a_lockout(self):
        locked = '127.0.2.1'
        for attempt in range(5):
            self.login('wrong', locked)
        self.assertEqual(self.login('op3rator', locked)[0], 429)
        # More failing addresses than the table holds (1024), one failure each.
        for i in range(1100):
            source = '127.1.%d.%d' % (i // 250, i % 250 + 1)
            status, _, _ = self.server.request('GET', WIPER, headers={'Authorization': 'Digest username="nobody"'},
                                               source=source)
            self.assertEqual(status, 401, source)
        self.assertEqual(self.login('op3rator', locked)[0], 429)


def certificate(directory):
    cert, key = os.path.join(directory, 'cert.pem'), os.path.join(directory, 'key.pem')
    subprocess.run(['openssl', 'req', '-x509', '-newkey', 'ec', '-pkeyopt', 'ec_paramgen_curve:P-256', '-nodes',
                    '-days', '1', '-subj', '/CN=127.0.0.1', '-addext', 'subjectAltName=IP:127.0.0.1',
                    '-keyout', key, '-out', cert], check=True, capture_output=True, timeout=30)
    return cert, key


class Clients(unittest.TestCase):
    """curl --digest and requests over HTTP and HTTPS, with each algorithm."""

    @classmethod
    def setUpClass(cls):
        cls.dir = tempfile.mkdtemp()
        cls.users = accounts_file(cls.dir)
        cls.cert, cls.key = certificate(cls.dir)
        cls.sample = subprocess.run([RENDER, 'get_ptz_wiper_json'], check=True, capture_output=True,
                                    text=True).stdout.rstrip('\n')

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.dir)

    def curl(self, server, name, password, *extra):
        out = subprocess.run(['curl', '-s', '--digest', '-u', '%s:%s' % (name, password), '--cacert', self.cert,
                              '-w', '\n%{http_code}'] + list(extra) + [server.base + WIPER],
                             capture_output=True, text=True, timeout=30)
        body, _, status = out.stdout.rpartition('\n')
        return int(status), body

    def test_curl_and_requests_over_http_and_https_with_each_algorithm(self):
        for tls in [False, True]:
            for algorithm in ['sha256', 'md5']:
                args = ['--users', self.users, '--digest-algorithm', algorithm]
                if tls:
                    args += ['--tls-cert', self.cert, '--tls-key', self.key]
                server = Server(*args)
                case = (tls, algorithm)
                try:
                    self.assertEqual(server.scheme, 'https' if tls else 'http')
                    if tls:  # no plain HTTP on the HTTPS port
                        with self.assertRaises(Exception):
                            server.request('GET', WIPER)
                    self.assertEqual(self.curl(server, 'vera', 'v13wer:colon'), (200, self.sample), case)
                    self.assertEqual(self.curl(server, 'vera', 'wrong')[0], 401, case)
                    self.assertEqual(self.curl(server, 'otto', 'op3rator', '-d', '{"autoWiper": 0}'),
                                     (200, '{\n\t"setState":\t"succeed"\n}'), case)
                    self.assertEqual(self.curl(server, 'vera', 'v13wer:colon', '-d', '{"autoWiper": 1}')[0], 403, case)
                    response = requests.get(server.base + WIPER, auth=HTTPDigestAuth('ada', 'Adm1n pass'),
                                            verify=self.cert, timeout=10)
                    self.assertEqual(response.status_code, 200, case)
                    self.assertEqual(json.loads(response.text)['autoWiper'], 0, case)
                    challenge = challenge_of(requests.get(server.base + WIPER, verify=self.cert,
                                                          timeout=10).headers)
                    self.assertEqual(challenge['algorithm'].upper(), {'sha256': 'SHA-256', 'md5': 'MD5'}[algorithm])
                finally:
                    server.stop()

    def test_https_without_accounts_serves_the_pages(self):
        server = Server('--tls-cert', self.cert, '--tls-key', self.key)
        try:
            response = requests.get(server.base + WIPER, verify=self.cert, timeout=10)
            self.assertEqual((response.status_code, response.text), (200, self.sample))
        finally:
            self.assertEqual(server.stop(), AUTH_OFF)


class CommandLine(unittest.TestCase):
    def setUp(self):
        self.dir = tempfile.mkdtemp()

    def tearDown(self):
        shutil.rmtree(self.dir)

    def run_device(self, *args):
        return subprocess.run([DEVICE, '--port', '0'] + list(args), capture_output=True, text=True, timeout=10)

    def test_add_user_writes_digests_not_passwords_and_replaces_a_name(self):
        path = os.path.join(self.dir, 'users')
        with open(path, 'w') as f:
            f.write('# the lab cameras\n\n')
        self.assertEqual(add_user(path, 'otto', 'operator', 'first').returncode, 0)
        self.assertEqual(add_user(path, 'vera', 'viewer', 'second').returncode, 0)
        self.assertEqual(add_user(path, 'otto', 'administrator', 'third').returncode, 0)
        with open(path) as f:
            lines = f.read().splitlines()
        self.assertEqual(lines[:2], ['# the lab cameras', ''])
        text = 'otto:%s:third' % REALM
        self.assertEqual(lines[2:], [
            'otto:administrator:%s:%s' % (hashlib.sha256(text.encode()).hexdigest(), hashlib.md5(text.encode()).hexdigest()),
            'vera:viewer:%s:%s' % (hashlib.sha256(b'vera:mw-device:second').hexdigest(),
                                   hashlib.md5(b'vera:mw-device:second').hexdigest())])
        self.assertEqual(os.stat(path).st_mode & 0o777, 0o600)
        server = Server('--users', path)
        try:
            for password, expected in [('first', 401), ('third', 200)]:
                response = requests.post(server.base + USERS, data=requests.get(
                    server.base + USERS, auth=HTTPDigestAuth('otto', 'third'), timeout=10).text,
                    auth=HTTPDigestAuth('otto', password), timeout=10)
                self.assertEqual(response.status_code, expected, password)
        finally:
            server.stop()

    def test_add_user_refusals(self):
        path = os.path.join(self.dir, 'users')
        cases = [
            (['otto', 'superuser'], 'pw', 'role'),
            (['ot:to', 'viewer'], 'pw', 'name'),
            (['otto', 'viewer'], '', 'password'),
        ]
        for (name, role), password, why in cases:
            run = add_user(path, name, role, password)
            self.assertNotEqual(run.returncode, 0, why)
            self.assertIn(why, run.stderr, why)
            self.assertFalse(os.path.exists(path), why)

    def test_a_malformed_accounts_file_is_reported_with_its_line(self):
        good = 'ada:administrator:%s:%s' % ('ab' * 32, 'cd' * 16)
        cases = [
            ('short line', [good, 'otto:operator:' + 'ab' * 32], 2),
            ('unknown role', ['# comment', '', good, 'otto:superuser:%s:%s' % ('ab' * 32, 'cd' * 16)], 4),
            ('odd digest', ['otto:operator:%s:%s' % ('ab' * 31, 'cd' * 16)], 1),
            ('not hex', [good, 'otto:operator:%s:%s' % ('ab' * 32, 'zz' * 16)], 2),
            ('a name twice', [good, 'vera:viewer:%s:%s' % ('ab' * 32, 'cd' * 16), good], 3),
            ('a blank in a name', ['o tto:operator:%s:%s' % ('ab' * 32, 'cd' * 16)], 1),
        ]
        path = os.path.join(self.dir, 'users')
        for what, lines, line in cases:
            with open(path, 'w') as f:
                f.write('\n'.join(lines) + '\n')
            run = self.run_device('--users', path)
            self.assertNotEqual(run.returncode, 0, what)
            self.assertIn('%s:%d: ' % (path, line), run.stderr, what)
            self.assertEqual(run.stdout, '', what)
        run = self.run_device('--users', os.path.join(self.dir, 'missing'))
        self.assertNotEqual(run.returncode, 0)

    def test_only_loopback_is_served_without_accounts(self):
        for address in ['0.0.0.0', '192.0.2.1']:
            run = self.run_device('--listen', address)
            self.assertEqual(run.returncode, 2, address)
            self.assertIn('--users', run.stderr, address)
            self.assertEqual(run.stdout, '', address)
        server = subprocess.Popen([DEVICE, '--port', '0', '--listen', '127.0.0.2'], stdout=subprocess.PIPE,
                                  stderr=subprocess.PIPE, text=True)
        try:
            self.assertTrue(server.stdout.readline().startswith('mw-device: http://127.0.0.2:'))
        finally:
            server.terminate()
            server.wait(timeout=10)
            self.assertEqual(server.stderr.read(), AUTH_OFF)
            server.stdout.close()
            server.stderr.close()

    def test_malformed_security_options_are_refused(self):
        cases = [
            ['--tls-cert', 'cert.pem'],
            ['--tls-key', 'key.pem'],
            ['--digest-algorithm', 'sha512'],
            ['--lockout-seconds', '0'],
            ['--lockout-seconds', 'x'],
        ]
        for args in cases:
            run = self.run_device(*args)
            self.assertEqual(run.returncode, 2, args)
            self.assertIn(args[0], run.stderr, args)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1], verbosity=2)
