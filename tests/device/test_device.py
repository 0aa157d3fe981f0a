#!/usr/bin/env python3
"""The device simulator as a web client sees it, on 127.0.0.1 only.

    test_device.py MW_DEVICE MW_RENDER

Every catalog page is served as mw-render renders it, set requests answer with
the reply envelopes, read-only pages refuse them, persistence survives a
SIGKILL in the middle of a stream of sets, and hostile input is answered or
cut off while everyone else is still served. Every loop is bounded.
"""
import http.client
import json
import os
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time
import unittest

DEVICE, RENDER = sys.argv[1], sys.argv[2]


def catalog():
    """(name, kind) of every catalog page from mw-render --list (replies are not pages)."""
    out = subprocess.run([RENDER, '--list'], check=True, capture_output=True, text=True).stdout
    rows = [line.split()[:2] for line in out.splitlines() if line.strip()]
    return [(name, kind) for name, kind in rows if kind != 'reply']


class Server:
    def __init__(self, *args, program=DEVICE, env=None):
        self.process = subprocess.Popen([program, '--port', '0', '--timeout', '2'] + list(args),
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, env=env)
        line = self.process.stdout.readline()
        if not line.startswith('mw-device: http://127.0.0.1:'):
            raise RuntimeError('no URL: ' + line + self.process.stderr.read())
        self.port = int(line.rsplit(':', 1)[1].strip('/\n'))

    def request(self, method, path, body=None, timeout=10, headers=None):
        connection = http.client.HTTPConnection('127.0.0.1', self.port, timeout=timeout)
        try:
            connection.request(method, path, body=body, headers=headers or {})
            response = connection.getresponse()
            return response.status, response.read().decode('utf-8', 'replace'), dict(response.getheaders())
        finally:
            connection.close()

    def stop(self, kill=False):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL if kill else signal.SIGTERM)
        self.process.wait(timeout=10)
        errors = self.process.stderr.read()
        self.process.stdout.close()
        self.process.stderr.close()
        return errors


def envelope(key, value):
    return json.dumps({key: value}, separators=(',', ':\t')).replace('{', '{\n\t').replace('}', '\n}')


def fnv1a_tag(text):
    """A strong entity tag as the simulator makes it: 64-bit FNV-1a of the bytes, 16 hex digits, quoted."""
    h = 0xcbf29ce484222325
    for b in text.encode('utf-8'):
        h = ((h ^ b) * 0x100000001b3) & 0xffffffffffffffff
    return '"%016x"' % h


FORMAT_ERROR = lambda key: '{\n\t"%s":\t"format error"\n}' % key
SUCCEED = '{\n\t"setState":\t"succeed"\n}'


class WithServer(unittest.TestCase):
    """One simulator for the whole class, started with OPTIONS."""
    OPTIONS = ()

    @classmethod
    def setUpClass(cls):
        cls.server = Server(*cls.OPTIONS)

    @classmethod
    def tearDownClass(cls):
        cls.server.stop()


class Pages(WithServer):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        status, body, _ = cls.server.request('GET', '/api')
        assert status == 200, status
        cls.index = json.loads(body)['pages']
        cls.by_name = {p['name']: p for p in cls.index}

    def test_index_lists_every_catalog_page_once(self):
        expected = catalog()
        self.assertEqual([p['name'] for p in self.index], [name for name, _ in expected])
        self.assertEqual(len({p['path'] for p in self.index}), len(self.index))
        for name, kind in expected:
            page = self.by_name[name]
            self.assertEqual(page['settable'], kind == 'settable', name)
            self.assertTrue(page['path'].startswith('/api/') and page['group'] and page['description'], name)
        self.assertEqual(self.by_name['get_event_notify_json'].get('argument'), 'eventType')

    def test_every_page_renders_as_its_serializer_does(self):
        for page in self.index:
            expected = subprocess.run([RENDER, page['name']], check=True, capture_output=True,
                                      text=True).stdout.rstrip('\n')
            status, body, headers = self.server.request('GET', page['path'] + '?format=json')
            self.assertEqual((status, body), (200, expected), page['name'])
            self.assertEqual(headers.get('Content-Type'), 'application/json', page['name'])
            self.assertEqual(headers.get('ETag'), fnv1a_tag(body), page['name'])

    def test_a_query_without_format_json_is_refused(self):
        for query in ['', '?', '?format=xml', '?FORMAT=JSON']:
            status, body, _ = self.server.request('GET', '/api/ptz_wiper' + query)
            self.assertEqual((status, body), (400, FORMAT_ERROR('format')), query)
        # The test is the library's: "format=json" anywhere in the query.
        status, _, _ = self.server.request('GET', '/api/ptz_wiper?x=1&myformat=json')
        self.assertEqual(status, 200)

    def test_every_schema_describes_its_page(self):
        for page in self.index:
            status, body, _ = self.server.request('GET', page['path'] + '/schema')
            self.assertEqual(status, 200, page['name'])
            schema = json.loads(body)
            self.assertEqual(schema['title'], page['name'])
            self.assertEqual(schema['type'], 'object')

    def test_own_documents_post_back_and_read_only_pages_refuse(self):
        for page in self.index:
            _, document, _ = self.server.request('GET', page['path'] + '?format=json')
            status, body, headers = self.server.request('POST', page['path'] + '?format=json', document)
            if page['settable']:
                self.assertEqual((status, body), (200, SUCCEED), page['name'])
                _, again, _ = self.server.request('GET', page['path'] + '?format=json')
                self.assertEqual(again, document, page['name'])
            else:
                self.assertEqual(status, 405, page['name'])
                self.assertEqual(headers.get('Allow'), 'GET, HEAD', page['name'])

    def test_refusals_name_the_key_and_change_nothing(self):
        cases = [
            ('/api/ptz_wiper', '{"autoWiper": "on"}', 'autoWiper'),
            ('/api/ptz_wiper', '{"autoWiper": 2147483648}', 'autoWiper'),
            ('/api/ptz_wiper', '{"autoWiper": 1.5}', 'autoWiper'),
            ('/api/ptz_wiper', '{"status": 1, "wiperSpeed": 2}', 'wiperSpeed'),
            ('/api/ptz_wiper', '[1, 2]', 'body'),
            ('/api/ptz_wiper', '{"autoWiper": 1', 'body'),
            ('/api/ptz_wiper', '', 'body'),
            ('/api/event_notify', '{"noSuchEvent": {}}', 'noSuchEvent'),
        ]
        for path, request, key in cases:
            _, before, _ = self.server.request('GET', path + '?format=json')
            status, body, _ = self.server.request('POST', path + '?format=json', request)
            self.assertEqual((status, body), (400, FORMAT_ERROR(key)), request)
            _, after, _ = self.server.request('GET', path + '?format=json')
            self.assertEqual(after, before, request)

    def test_a_set_shows_in_the_next_get(self):
        _, sample, _ = self.server.request('GET', '/api/system_water_mark?format=json')
        status, body, _ = self.server.request('POST', '/api/system_water_mark?format=json',
                                              '{"waterMarkString": "Gate 4 north"}')
        self.assertEqual((status, body), (200, SUCCEED))
        _, document, _ = self.server.request('GET', '/api/system_water_mark?format=json')
        self.assertEqual(json.loads(document)['waterMarkString'], 'Gate 4 north')
        self.assertEqual(json.loads(document)['waterMarkEnable'], json.loads(sample)['waterMarkEnable'])
        self.assertEqual(self.server.request('POST', '/api/system_water_mark?format=json', sample)[0], 200)

    def test_arguments_select_what_the_page_shows(self):
        _, every, _ = self.server.request('GET', '/api/event_notify?format=json&eventType=-1')
        _, one, _ = self.server.request('GET', '/api/event_notify?format=json&eventType=0')
        self.assertEqual(len(json.loads(every)), 48)
        self.assertEqual(len(json.loads(one)), 1)
        for bad in ['x', '', '1.5', '99999999999', '48']:  # 48: past the last event type
            status, body, _ = self.server.request('GET', '/api/event_notify?format=json&eventType=' + bad)
            self.assertEqual((status, body), (400, FORMAT_ERROR('eventType')), bad)
        # The capability flags page shows the group its argument selects.
        _, ptz, _ = self.server.request('GET', '/api/camera_all_capability?format=json&group=100')
        _, events, _ = self.server.request('GET', '/api/camera_all_capability?format=json&group=108')
        self.assertIn('ptzControl', json.loads(ptz))
        self.assertIn('audioEvent', json.loads(events))
        self.assertNotIn('ptzControl', json.loads(events))
        # A count argument bounds the report.
        _, two, _ = self.server.request('GET', '/api/lpr_last_data?format=json&count=2')
        self.assertIn('plate_1', json.loads(two))
        self.assertNotIn('plate_2', json.loads(two))

    def test_unknown_paths_other_methods_and_large_bodies(self):
        cases = [
            ('GET', '/api/no_such_page?format=json', None, 404),
            ('GET', '/nothing', None, 404),
            ('DELETE', '/api/ptz_wiper?format=json', None, 405),
            ('PUT', '/api/ptz_wiper?format=json', '{}', 405),
            ('POST', '/api', '{}', 405),
            ('POST', '/api/ptz_wiper/schema', '{}', 405),
            ('POST', '/api/ptz_wiper?format=json', '{"autoWiper": 1, "x": "' + 'a' * 70000 + '"}', 413),
        ]
        for method, path, body, expected in cases:
            status, text, _ = self.server.request(method, path, body)
            self.assertEqual(status, expected, (method, path))
            json.loads(text)  # a short JSON error body

    def test_the_browser_page_is_served(self):
        for path, kind in [('/', 'text/html'), ('/app.js', 'text/javascript'), ('/style.css', 'text/css')]:
            status, _, headers = self.server.request('GET', path)
            self.assertEqual(status, 200, path)
            self.assertTrue(headers['Content-Type'].startswith(kind), path)


class Hostile(WithServer):
    def raw(self, data, wait=5):
        with socket.create_connection(('127.0.0.1', self.server.port), timeout=wait) as s:
            s.sendall(data)
            try:
                return s.recv(4096)
            except (socket.timeout, ConnectionResetError):
                return b''

    def still_serving(self):
        start = time.monotonic()
        status, _, _ = self.server.request('GET', '/api/ptz_wiper?format=json', timeout=5)
        self.assertEqual(status, 200)
        self.assertLess(time.monotonic() - start, 2)

    def test_malformed_requests_get_a_clear_status(self):
        for line in [b'GARBAGE\r\n\r\n', b'GET\r\n\r\n', b'GET /api HTTP/9.9\r\n\r\n', b'\x00\xff\xfe\r\n\r\n',
                     b'GET /api HTTP/1.1\r\nHost: x\r\nContent-Length: -5\r\n\r\n']:
            answer = self.raw(line)
            self.assertTrue(answer == b'' or answer.startswith(b'HTTP/1.1 4') or answer.startswith(b'HTTP/1.1 5'),
                            (line, answer[:40]))
        self.still_serving()

    def test_hostile_bodies(self):
        cases = [
            ('{"autoWiper": ' + '[' * 10000 + ']' * 10000 + '}', 400),
            ('not json at all', 400),
            ('{"autoWiper": 1, "status"', 400),
            ('{"autoWiper": 1}' + ' x', 400),
        ]
        for body, expected in cases:
            status, text, _ = self.server.request('POST', '/api/ptz_wiper?format=json', body)
            self.assertEqual(status, expected, body[:30])
            self.assertEqual(text, FORMAT_ERROR('body'), body[:30])
        status, _, _ = self.server.request('POST', '/api/ptz_wiper?format=json', b'x' * (1 << 20))
        self.assertEqual(status, 413)
        # Invalid UTF-8 in a text: stored as bytes or refused, never a crash.
        status, _, _ = self.server.request('POST', '/api/system_water_mark?format=json',
                                           b'{"waterMarkString": "\xff\xfe\xc3"}')
        self.assertIn(status, (200, 400))
        self.still_serving()

    def test_a_client_sending_a_byte_a_second_is_cut_off(self):
        # It dribbles the start of a request a byte a second, then stalls:
        # the server's idle timeout (2 s here) cuts it off, and everyone else
        # is served meanwhile.
        closed = []

        def slow():
            with socket.create_connection(('127.0.0.1', self.server.port), timeout=10) as s:
                for b in b'GET /':
                    s.sendall(bytes([b]))
                    time.sleep(1)
                stalled = time.monotonic()
                try:
                    answer = s.recv(1)
                except OSError:
                    answer = b''
                closed.append((answer, time.monotonic() - stalled))

        thread = threading.Thread(target=slow)
        thread.start()
        for _ in range(3):
            time.sleep(1)
            self.still_serving()
        thread.join(timeout=15)
        self.assertEqual(len(closed), 1)
        self.assertIn(closed[0][0], (b'', b'H'))
        self.assertLess(closed[0][1], 4)


WIPER = '/api/ptz_wiper?format=json'
STALE = '"0123456789abcdef"'


class Conditional(WithServer):
    """Conditional requests as RFC 9110 defines them: If-None-Match with weak
    comparison (304 for GET and HEAD), If-Match with strong comparison (412)."""

    def current(self, path=WIPER):
        status, body, headers = self.server.request('GET', path)
        self.assertEqual(status, 200)
        return body, headers['ETag']

    def test_tags_follow_the_document_and_its_argument(self):
        every, tag_every = self.current('/api/event_notify?format=json&eventType=-1')
        one, tag_one = self.current('/api/event_notify?format=json&eventType=0')
        self.assertNotEqual(tag_every, tag_one)
        self.assertEqual((tag_every, tag_one), (fnv1a_tag(every), fnv1a_tag(one)))
        # The schema, the index and the browser page carry their own tags too.
        for path in ['/api/ptz_wiper/schema', '/api', '/', '/app.js']:
            status, body, headers = self.server.request('GET', path)
            self.assertEqual((status, headers.get('ETag')), (200, fnv1a_tag(body)), path)

    def test_if_none_match_on_a_get(self):
        body, tag = self.current()
        cases = [
            (tag, 304),
            ('*', 304),
            ('W/' + tag, 304),                 # weak comparison ignores W/
            (STALE + ', ' + tag, 304),         # any member of the list
            (STALE + ',' + tag + ' ', 304),
            (STALE, 200),
            ('', 200),
            (tag[1:-1], 200),                  # unquoted is not a tag
        ]
        for field, expected in cases:
            for method in ('GET', 'HEAD'):
                status, text, headers = self.server.request(method, WIPER, headers={'If-None-Match': field})
                self.assertEqual(status, expected, (method, field))
                self.assertEqual(headers.get('ETag'), tag, (method, field))
                self.assertEqual(text, body if expected == 200 and method == 'GET' else '', (method, field))
        # Several header lines form one list.
        connection = http.client.HTTPConnection('127.0.0.1', self.server.port, timeout=10)
        connection.putrequest('GET', WIPER)
        connection.putheader('If-None-Match', STALE)
        connection.putheader('If-None-Match', tag)
        connection.endheaders()
        self.assertEqual(connection.getresponse().status, 304)
        connection.close()

    def test_if_match_on_a_get_answers_412_when_stale(self):
        _, tag = self.current()
        for field, expected in [(tag, 200), ('*', 200), (STALE, 412), ('W/' + tag, 412)]:
            status, _, _ = self.server.request('GET', WIPER, headers={'If-Match': field})
            self.assertEqual(status, expected, field)

    def test_if_match_on_a_set(self):
        # Each case starts from the sample; `field` may name the current tag.
        cases = [
            (None, 200),
            ('{tag}', 200),
            ('*', 200),                        # any existing page
            (STALE + ', {tag}', 200),
            (STALE, 412),
            ('W/{tag}', 412),                  # strong comparison: a weak tag never matches
            ('{tag}'[:-2] + '"', 412),
        ]
        sample, tag = self.current()
        for field, expected in cases:
            headers = {} if field is None else {'If-Match': field.replace('{tag}', tag)}
            status, body, answer = self.server.request('POST', WIPER, '{"autoWiper": 0}', headers=headers)
            self.assertEqual(status, expected, field)
            after, after_tag = self.current()
            if expected == 200:
                self.assertEqual(body, SUCCEED, field)
                self.assertNotEqual(after, sample, field)
                self.assertEqual(answer.get('ETag'), after_tag, field)  # the new tag, as the next GET gives it
            else:
                self.assertEqual(set(json.loads(body)), {'error'}, field)
                self.assertNotIn('ETag', answer, field)
                self.assertEqual((after, after_tag), (sample, tag), field)  # nothing changed
            self.assertEqual(self.server.request('POST', WIPER, sample)[0], 200)

    def test_if_none_match_star_on_a_set_is_refused(self):
        status, _, _ = self.server.request('POST', WIPER, '{"autoWiper": 0}', headers={'If-None-Match': '*'})
        self.assertEqual(status, 412)

    def test_a_set_with_an_argument_answers_the_tag_of_that_argument(self):
        path = '/api/event_notify?format=json&eventType=3'
        document, tag = self.current(path)
        changed = json.loads(document)
        status, _, headers = self.server.request('POST', path, json.dumps(changed), headers={'If-Match': tag})
        self.assertEqual(status, 200)
        self.assertEqual(headers.get('ETag'), self.current(path)[1])

    def test_head_answers_as_get_without_a_body(self):
        paths = ['/', '/app.js', '/style.css', '/api', WIPER, '/api/ptz_wiper/schema',
                 '/api/event_notify?format=json&eventType=2', '/api/ptz_wiper', '/api/nothing', '/nothing']
        for path in paths:
            get_status, get_body, get_headers = self.server.request('GET', path)
            status, body, headers = self.server.request('HEAD', path)
            self.assertEqual((status, body), (get_status, ''), path)
            for field in ('Content-Type', 'Content-Length', 'ETag'):
                self.assertEqual(headers.get(field), get_headers.get(field), (path, field))

    def test_allow_names_head_and_options_answers(self):
        cases = [
            ('POST', '/api/system_information?format=json', 405, 'GET, HEAD'),
            ('PUT', WIPER, 405, 'GET, HEAD, POST'),
            ('DELETE', '/api', 405, 'GET, HEAD'),
            ('OPTIONS', WIPER, 204, 'GET, HEAD, POST'),
            ('OPTIONS', '/api/ptz_wiper/schema', 204, 'GET, HEAD'),
        ]
        for method, path, expected, allow in cases:
            status, _, headers = self.server.request(method, path, '{}' if method in ('POST', 'PUT') else None)
            self.assertEqual((status, headers.get('Allow')), (expected, allow), (method, path))


class RequireIfMatch(unittest.TestCase):
    def test_a_set_without_if_match_answers_428(self):
        server = Server('--require-if-match')
        try:
            _, sample, headers = server.request('GET', WIPER)
            status, body, _ = server.request('POST', WIPER, '{"autoWiper": 0}')
            self.assertEqual(status, 428)
            self.assertEqual(set(json.loads(body)), {'error'})
            self.assertEqual(server.request('GET', WIPER)[1], sample)
            status, _, _ = server.request('POST', WIPER, '{"autoWiper": 0}', headers={'If-Match': headers['ETag']})
            self.assertEqual(status, 200)
            self.assertEqual(server.request('GET', WIPER)[0], 200)  # reads need nothing
        finally:
            server.stop()


class Cors(WithServer):
    NAMED = 'http://127.0.0.1:5173'
    OPTIONS = ('--cors', NAMED, '--cors', 'http://localhost:3000')

    def test_named_origins_only(self):
        preflight = {'Access-Control-Request-Method': 'POST',
                     'Access-Control-Request-Headers': 'if-match, content-type'}
        cases = [
            ('GET', self.NAMED, {}, 200, True),
            ('GET', 'http://localhost:3000', {}, 200, True),
            ('POST', self.NAMED, {}, 200, True),
            ('OPTIONS', self.NAMED, preflight, 204, True),
            ('GET', 'http://127.0.0.1:5174', {}, 200, False),
            ('GET', 'http://127.0.0.1:5173.example.net', {}, 200, False),
            ('OPTIONS', 'http://evil.example.net', preflight, 204, False),
            ('GET', None, {}, 200, False),
        ]
        for method, origin, extra, expected, allowed in cases:
            headers = dict(extra)
            if origin:
                headers['Origin'] = origin
            status, _, answer = self.server.request(method, WIPER, '{"autoWiper": 1}' if method == 'POST' else None,
                                                    headers=headers)
            self.assertEqual(status, expected, (method, origin))
            self.assertEqual(answer.get('Access-Control-Allow-Origin'), origin if allowed else None, (method, origin))
            self.assertEqual(answer.get('Access-Control-Expose-Headers'), 'ETag' if allowed else None)
            self.assertEqual(answer.get('Vary'), 'Origin')
            if method == 'OPTIONS' and allowed:
                self.assertIn('POST', answer['Access-Control-Allow-Methods'].split(', '))
                self.assertEqual({h.strip().lower() for h in answer['Access-Control-Allow-Headers'].split(',')},
                                 {'content-type', 'if-match', 'if-none-match'})
            else:
                self.assertNotIn('Access-Control-Allow-Methods', answer)

    def test_no_cors_fields_without_the_option(self):
        server = Server()
        try:
            _, _, answer = server.request('GET', WIPER, headers={'Origin': self.NAMED})
            self.assertFalse([k for k in answer if k.startswith('Access-Control-')])
        finally:
            server.stop()


class CommandLine(unittest.TestCase):
    def test_malformed_options_are_refused_with_a_message(self):
        cases = [
            (['--port', 'x'], '--port'),
            (['--port', '8080x'], '--port'),
            (['--port', '70000'], '--port'),
            (['--port', '-1'], '--port'),
            (['--threads', '0'], '--threads'),
            (['--threads', 'four'], '--threads'),
            (['--timeout', '10s'], '--timeout'),
            (['--cors', '127.0.0.1:5173'], '--cors'),
            (['--cors', 'http://127.0.0.1:5173/app'], '--cors'),
            (['--state'], '--state'),
            (['--web', ''], '--web'),
            (['--bogus', '1'], '--bogus'),
        ]
        for args, named in cases:
            try:
                run = subprocess.run([DEVICE, '--port', '0'] + args, capture_output=True, text=True, timeout=5)
            except subprocess.TimeoutExpired:
                self.fail('%s was taken and the server started' % args)
            self.assertEqual(run.returncode, 2, args)
            self.assertIn(named, run.stderr, args)
            self.assertEqual(run.stdout, '', args)

    def test_an_installed_simulator_finds_its_browser_page(self):
        build = os.path.dirname(os.path.abspath(DEVICE))
        prefix = tempfile.mkdtemp(prefix='mw-device-install-')
        try:
            subprocess.run(['cmake', '--install', build, '--prefix', prefix], check=True, capture_output=True)
            web = os.path.join(prefix, 'share', 'middleware', 'web', 'index.html')
            with open(web, 'a') as f:
                f.write('<!-- installed copy -->\n')  # told apart from the source tree's
            libraries = {os.path.dirname(os.path.join(d, f)) for d, _, files in os.walk(prefix)
                         for f in files if f.startswith('libmiddleware')}
            env = dict(os.environ, LD_LIBRARY_PATH=':'.join(libraries))
            server = Server(program=os.path.join(prefix, 'bin', 'mw-device'), env=env)
            try:
                status, body, _ = server.request('GET', '/')
                self.assertEqual(status, 200)
                self.assertIn('<!-- installed copy -->', body)
            finally:
                server.stop()
        finally:
            shutil.rmtree(prefix, ignore_errors=True)


class Persistence(unittest.TestCase):
    def setUp(self):
        self.dir = tempfile.mkdtemp(prefix='mw-device-state-')

    def tearDown(self):
        shutil.rmtree(self.dir, ignore_errors=True)

    def test_acknowledged_sets_survive_a_kill(self):
        server = Server('--state', self.dir)
        acknowledged = []
        stop = threading.Event()

        def stream():
            i = 0
            while not stop.is_set() and i < 2000:
                try:
                    status, body, _ = server.request('POST', '/api/system_water_mark?format=json',
                                                     json.dumps({'waterMarkString': 'mark %d' % i}), timeout=5)
                except OSError:
                    return
                if status == 200 and body == SUCCEED:
                    acknowledged.append(i)
                i += 1

        thread = threading.Thread(target=stream)
        thread.start()
        time.sleep(1.0)
        server.stop(kill=True)
        stop.set()
        thread.join(timeout=10)
        self.assertGreater(len(acknowledged), 5)
        again = Server('--state', self.dir)
        try:
            _, document, _ = again.request('GET', '/api/system_water_mark?format=json')
            value = int(json.loads(document)['waterMarkString'].split()[1])
            self.assertGreaterEqual(value, acknowledged[-1])
            for page in json.loads(again.request('GET', '/api')[1])['pages']:
                self.assertEqual(again.request('GET', page['path'] + '?format=json')[0], 200, page['name'])
        finally:
            again.stop()

    def test_saved_documents_with_read_only_keys_apply_at_start(self):
        # The root repeats the first target's address read-only: the saved
        # document carries the new address twice, the sample the old one.
        server = Server('--state', self.dir)
        _, document, _ = server.request('GET', '/api/vehicle_count_setting?format=json')
        changed = json.loads(document)
        changed['httpList'][0]['url'] = 'http://counts.example.net/in'
        status, body, _ = server.request('POST', '/api/vehicle_count_setting?format=json', json.dumps(changed))
        self.assertEqual((status, body), (200, SUCCEED))
        _, saved, _ = server.request('GET', '/api/vehicle_count_setting?format=json')
        self.assertEqual(json.loads(saved)['httpUrl'], 'http://counts.example.net/in')
        server.stop()
        again = Server('--state', self.dir)
        try:
            self.assertEqual(again.request('GET', '/api/vehicle_count_setting?format=json')[1], saved)
        finally:
            # Nothing on stderr but the notice that authentication is off.
            self.assertEqual(again.stop(), 'mw-device: no --users: authentication is off (loopback only)\n')

    def test_a_saved_document_that_no_longer_applies_is_reported(self):
        with open(os.path.join(self.dir, 'get_ptz_rs485_json.json'), 'w') as f:
            f.write('{"baudRate": ')
        with open(os.path.join(self.dir, 'get_ptz_wiper_json.json'), 'w') as f:
            f.write('{"autoWiper": "fast"}')
        sample = subprocess.run([RENDER, 'get_ptz_wiper_json'], check=True, capture_output=True,
                                text=True).stdout.rstrip('\n')
        server = Server('--state', self.dir)
        try:
            self.assertEqual(server.request('GET', '/api/ptz_wiper?format=json')[1], sample)
            self.assertEqual(server.request('GET', '/api/ptz_rs485?format=json')[0], 200)
        finally:
            errors = server.stop()
        self.assertIn('get_ptz_rs485_json', errors)
        self.assertIn('get_ptz_wiper_json', errors)

    def test_an_unchanged_page_keeps_its_tag_across_a_restart(self):
        server = Server('--state', self.dir)
        try:
            status, _, _ = server.request('POST', '/api/system_water_mark?format=json',
                                          '{"waterMarkString": "Dock 2"}')
            self.assertEqual(status, 200)
            before = {path: server.request('GET', path)[2]['ETag']
                      for path in ['/api/system_water_mark?format=json', WIPER,
                                   '/api/event_notify?format=json&eventType=5']}
        finally:
            server.stop()
        again = Server('--state', self.dir)
        try:
            for path, tag in before.items():
                self.assertEqual(again.request('GET', path, headers={'If-None-Match': tag})[0], 304, path)
        finally:
            again.stop()

    def test_a_failed_save_changes_nothing_and_leaves_no_temporary_file(self):
        # A folder where the saved document belongs: the rename over it fails.
        os.mkdir(os.path.join(self.dir, 'get_system_water_mark_json.json'))
        server = Server('--state', self.dir)
        try:
            _, before, _ = server.request('GET', '/api/system_water_mark?format=json')
            status, body, headers = server.request('POST', '/api/system_water_mark?format=json',
                                                   '{"waterMarkString": "Never saved"}')
            self.assertEqual((status, json.loads(body)), (500, {'setState': 'failed'}))
            self.assertNotIn('ETag', headers)
            self.assertEqual(server.request('GET', '/api/system_water_mark?format=json')[1], before)
            self.assertEqual(sorted(os.listdir(self.dir)), ['get_system_water_mark_json.json'])
        finally:
            server.stop()

    def test_a_save_waiting_on_the_disk_holds_up_no_reader(self):
        # A pipe where the set's temporary file goes: the save blocks until
        # the test reads it, as a slow disk would hold it.
        pipe = os.path.join(self.dir, 'get_system_water_mark_json.json.tmp')
        os.mkfifo(pipe)
        server = Server('--state', self.dir)

        def drain():
            """Reads what the save writes into the pipe, which lets it go on."""
            reader = os.open(pipe, os.O_RDONLY | os.O_NONBLOCK)
            written, deadline = b'', time.monotonic() + 10
            try:
                while time.monotonic() < deadline:
                    try:
                        chunk = os.read(reader, 4096)
                    except BlockingIOError:
                        chunk = None
                    if chunk == b'' and written:
                        break
                    written += chunk or b''
                    if not chunk:
                        time.sleep(0.02)
            finally:
                os.close(reader)
            return written

        try:
            _, before, _ = server.request('GET', '/api/system_water_mark?format=json')
            answers = []
            setter = threading.Thread(target=lambda: answers.append(server.request(
                'POST', '/api/system_water_mark?format=json', '{"waterMarkString": "Stuck"}', timeout=20)))
            setter.start()
            time.sleep(0.3)
            try:
                status, shown, _ = server.request('GET', '/api/system_water_mark?format=json', timeout=3)
                self.assertEqual((status, shown), (200, before))  # answered meanwhile, without the set
                self.assertEqual(answers, [])                     # the set waits for its save
            finally:
                written = drain()
                setter.join(timeout=10)
            self.assertIn(b'Stuck', written)
            # A pipe cannot be flushed to disk: the save fails and nothing changes.
            self.assertEqual(answers[0][0], 500)
            self.assertEqual(server.request('GET', '/api/system_water_mark?format=json')[1], before)
        finally:
            server.stop()

    def test_concurrent_sets_save_in_the_order_they_were_accepted(self):
        # Rounds of eight clients setting one page at the same moment: after
        # each, the saved document is the one the page shows, and no
        # temporary file is left.
        server = Server('--state', self.dir)
        try:
            for n in range(10):
                start = threading.Barrier(8, timeout=10)

                def client(k):
                    start.wait()
                    server.request('POST', '/api/system_water_mark?format=json',
                                   json.dumps({'waterMarkString': 'round %d client %d' % (n, k)}))

                threads = [threading.Thread(target=client, args=(k,)) for k in range(8)]
                for t in threads:
                    t.start()
                for t in threads:
                    t.join(timeout=30)
                _, shown, _ = server.request('GET', '/api/system_water_mark?format=json')
                self.assertIn('round %d' % n, shown)
                with open(os.path.join(self.dir, 'get_system_water_mark_json.json')) as f:
                    self.assertEqual(f.read(), shown, n)
                self.assertEqual(os.listdir(self.dir), ['get_system_water_mark_json.json'])
        finally:
            server.stop()

if __name__ == '__main__':
    unittest.main(argv=[sys.argv[0], '-v'])
