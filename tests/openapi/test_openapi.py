#!/usr/bin/env python3
"""The OpenAPI document of the simulator (mw-render --openapi) against the
catalog, and its schemas against documents the pages render in states other
than their samples.

    test_openapi.py MW_RENDER OPENAPI_STATES SOURCE_DIR [MW_DEVICE]

The state sweep reads the states openapi_states renders (arguments, sets,
the fuzz corpora's records, perturbed samples). A page whose schema does not
yet hold for every state is listed in tests/openapi/known_gaps.txt: the sweep
fails for a page that fails and is not listed, and for a listed page that
passes (the list only shrinks).
"""
import functools
import http.client
import json
import os
import re
import signal
import subprocess
import sys
import unittest

from jsonschema import Draft202012Validator

RENDER, STATES, SOURCE = sys.argv[1:4]
DEVICE = sys.argv[4] if len(sys.argv) > 4 else None
del sys.argv[1:]

DIALECT = 'https://json-schema.org/draft/2020-12/schema'


@functools.lru_cache(maxsize=None)
def run(*args):
    return subprocess.run([RENDER, *args], check=True, capture_output=True, text=True).stdout


DOC = json.loads(run('--openapi'))
SCHEMAS = DOC['components']['schemas']
ROWS = [line.split()[:2] for line in run('--list').splitlines() if line.strip()]
PAGES = [(name, kind == 'settable') for name, kind in ROWS if kind != 'reply']


def resource(name):
    return re.sub(r'_json$', '', re.sub(r'^(ware_get_|get_)', '', name))


def set_name(name):
    return name.replace('get_', 'set_', 1)


def resolve(node):
    """A $ref into this document, followed (repeatedly)."""
    while isinstance(node, dict) and '$ref' in node:
        parts = node['$ref'].lstrip('#/').split('/')
        node = DOC
        for p in parts:
            node = node[p]
    return node


def member_schema(schema, key):
    """The schema of an object's member: by its name, by a pattern of numbered keys, or, for a key a text names
    (an option's label), the shapes any other key may take (read-only when every one of them is)."""
    if key in schema.get('properties', {}):
        return resolve(schema['properties'][key])
    for pattern, sub in schema.get('patternProperties', {}).items():
        if re.search(pattern, key):
            return resolve(sub)
    others = schema.get('additionalProperties')
    if isinstance(others, dict):
        shapes = [resolve(s) for s in others.get('anyOf', [others])]
        return {'readOnly': all(s.get('readOnly') for s in shapes)}
    raise KeyError(key)


def validator(component):
    root = {'$schema': DIALECT, '$ref': '#/components/schemas/' + component, 'components': DOC['components']}
    return Draft202012Validator(root)


def project_version():
    with open(os.path.join(SOURCE, 'CMakeLists.txt')) as f:
        text = f.read()
    return re.search(r'project\(middleware VERSION ([0-9.]+)', text).group(1)


# The argument each page takes and its range, as the headers state them:
# 48 alarm event types (-1 for every type), capability groups 100 to 109, a
# count up to the entries the record (or the catalog's array) holds, and the
# radar test's whole int32_t.
EVENT_TYPE = ('eventType', -1, 47)
ARGUMENTS = {
    **{n: EVENT_TYPE for n in [
        'get_event_notify_json', 'get_event_record_json', 'get_event_snop_json', 'get_event_extern_output_json',
        'get_event_play_audio_json', 'get_event_alarm_sip_phone_json', 'get_event_white_led_json',
        'get_event_ptz_motion_json', 'get_event_osd_blink_json', 'get_event_event_call_json']},
    'get_camera_all_capability_json': ('group', 100, 109),
    'get_cap_common_json': ('count', 0, 11),
    'get_cap_general_video_json': ('count', 0, 20),
    'get_cap_audio_json': ('count', 0, 13),
    'get_cap_ptz_json': ('count', 0, 9),
    'get_lpr_last_data_json': ('count', 0, 3),
    'get_lpr_radar_detect_data_json': ('count', 0, 2),
    'get_lpr_radar_test_json': ('radarTest', -2**31, 2**31 - 1),
}

GET_REPLIES = {'200', '304', '400', '405', '500'}
POST_REPLIES = {'200', '400', '405', '412', '413', '428', '500'}


class Document(unittest.TestCase):
    def test_header(self):
        self.assertEqual(DOC['openapi'], '3.1.0')
        self.assertEqual(DOC['jsonSchemaDialect'], DIALECT)
        self.assertEqual(DOC['info']['version'], project_version())

    def test_one_path_per_page_and_the_simulator_routes(self):
        expected = {'/api', '/api/openapi.json'}
        for name, _ in PAGES:
            expected |= {'/api/' + resource(name), '/api/' + resource(name) + '/schema'}
        self.assertEqual(set(DOC['paths']), expected)

    def test_operations_are_named_after_their_functions(self):
        ids = []
        for name, settable in PAGES:
            with self.subTest(page=name):
                item = DOC['paths']['/api/' + resource(name)]
                self.assertEqual(item['get']['operationId'], name)
                self.assertEqual('post' in item, settable, 'POST on settable pages only')
                self.assertEqual(set(item) - {'get', 'post'}, set())
                if settable:
                    self.assertEqual(item['post']['operationId'], set_name(name))
                schema_op = DOC['paths']['/api/' + resource(name) + '/schema']['get']
                self.assertEqual(schema_op['operationId'], 'schema_' + resource(name) + '_json')
                ids += [op['operationId'] for op in item.values()] + [schema_op['operationId']]
        self.assertEqual(len(ids), len(set(ids)), 'operationIds are unique')

    def test_parameters(self):
        for name, settable in PAGES:
            item = DOC['paths']['/api/' + resource(name)]
            for method in ['get', 'post'] if settable else ['get']:
                with self.subTest(page=name, method=method):
                    params = {p['name']: p for p in map(resolve, item[method]['parameters'])}
                    fmt = params.pop('format')
                    self.assertEqual((fmt['in'], fmt['required'], fmt['schema'].get('const')), ('query', True, 'json'))
                    header = params.pop('If-None-Match' if method == 'get' else 'If-Match')
                    self.assertEqual(header['in'], 'header')
                    if name in ARGUMENTS:
                        arg, low, high = ARGUMENTS[name]
                        p = params.pop(arg)
                        self.assertEqual((p['in'], p['required']), ('query', False))
                        self.assertEqual((p['schema']['type'], p['schema']['minimum'], p['schema']['maximum']),
                                         ('integer', low, high))
                    self.assertEqual(params, {}, 'no other parameters')

    def test_every_reply_with_its_schema_and_example(self):
        for name, settable in PAGES:
            item = DOC['paths']['/api/' + resource(name)]
            with self.subTest(page=name):
                self.assertEqual(set(item['get']['responses']), GET_REPLIES)
                ok = item['get']['responses']['200']['content']['application/json']
                self.assertEqual(ok['schema'], {'$ref': '#/components/schemas/' + resource(name)})
                self.assertEqual(ok['example'], json.loads(run(name)), 'the catalog sample is the example')
                if settable:
                    self.assertEqual(set(item['post']['responses']), POST_REPLIES)
                    body = item['post']['requestBody']['content']['application/json']
                    self.assertEqual(body['schema'], {'$ref': '#/components/schemas/' + resource(name) + '_set'})
                    self.assertEqual(body['examples']['document']['value'], ok['example'],
                                     'a client may post back the document it read')
        for status in sorted(GET_REPLIES | POST_REPLIES):
            sample = DOC['paths']['/api/ptz_wiper']
            reply = resolve(sample['post' if status in POST_REPLIES - GET_REPLIES else 'get']['responses'][status])
            with self.subTest(status=status):
                if status == '304':
                    self.assertNotIn('content', reply)
                    self.assertIn('ETag', reply['headers'])
                    continue
                media = reply['content']['application/json']
                examples = [e['value'] for e in media.get('examples', {}).values()]
                if 'example' in media:
                    examples.append(media['example'])
                self.assertTrue(examples, 'an example')
                check = Draft202012Validator({'$ref': media['schema']['$ref'], 'components': DOC['components']})
                for e in examples:
                    self.assertTrue(check.is_valid(e), e)
                if status == '405':
                    self.assertIn('Allow', reply['headers'])

    def test_the_simulator_routes_have_examples(self):
        routes = [('/api', 'Index'), ('/api/openapi.json', 'OpenApiDocument'), ('/api/ptz_wiper/schema', 'JsonSchema')]
        for path, component in routes:
            with self.subTest(path=path):
                media = resolve(DOC['paths'][path]['get']['responses']['200'])['content']['application/json']
                self.assertEqual(media['schema'], {'$ref': '#/components/schemas/' + component})
                self.assertTrue(validator(component).is_valid(media['example']))
        entries = resolve(DOC['paths']['/api']['get']['responses']['200'])['content']['application/json']['example']
        for e in entries['pages']:
            self.assertEqual(e['path'], '/api/' + resource(e['name']))

    def test_envelopes_are_the_librarys(self):
        cases = [
            ('SetSucceed', 'zk_return_set_request_succeed_json', True),
            ('SetFailed', 'zk_return_set_request_faild_json', True),
            ('SetSucceed', 'zk_return_set_request_faild_json', False),
            ('FormatError', 'zk_return_format_error_json', True),
            ('FormatError', 'zk_return_set_request_succeed_json', False),
        ]
        for component, reply, valid in cases:
            with self.subTest(component=component, reply=reply):
                self.assertEqual(validator(component).is_valid(json.loads(run(reply))), valid)
        bad = [{}, {'a': 'format error', 'b': 'format error'}, {'a': 'wrong'}]
        for doc in bad:
            self.assertFalse(validator('FormatError').is_valid(doc), doc)

    def test_set_requests_are_partial_and_take_computed_keys_back(self):
        for name, settable in PAGES:
            if not settable:
                continue
            with self.subTest(page=name):
                check = validator(resource(name) + '_set')
                sample = json.loads(run(name))
                self.assertTrue(check.is_valid(sample), 'the document as read')
                self.assertTrue(check.is_valid({}), 'keys left out keep their values')
                self.assertFalse(check.is_valid(dict(sample, zzNoSuchKey=1)), 'an unknown key')
                text = json.dumps(SCHEMAS[resource(name) + '_set'])
                self.assertNotIn('"readOnly"', text)
                self.assertNotIn('"required"', text)

    def test_read_only_keys_are_marked(self):
        for name, settable in PAGES:
            own = json.loads(run('--schema', name))
            component = resolve(SCHEMAS[resource(name)])
            for key, sub in own['properties'].items():
                with self.subTest(page=name, key=key):
                    mine = member_schema(component, key)
                    self.assertEqual(bool(mine.get('readOnly')), bool(sub.get('readOnly')))

    def test_shared_shapes_are_components(self):
        text = json.dumps(SCHEMAS)
        week_refs = text.count('"#/components/schemas/WeeklySchedule')
        self.assertGreater(week_refs, 10)

        def inline_weeks(node, key=None):
            if isinstance(node, dict):
                if key == 'scheduleList' and 'prefixItems' in node:
                    yield node
                for k, v in node.items():
                    yield from inline_weeks(v, k)
            elif isinstance(node, list):
                for v in node:
                    yield from inline_weeks(v)
        for name, schema in SCHEMAS.items():
            if not name.startswith('WeeklySchedule'):
                self.assertEqual(list(inline_weeks(schema)), [], name)
        for name, (arg, _, _) in ARGUMENTS.items():
            if arg != 'eventType':
                continue
            props = SCHEMAS[resource(name)]['properties']
            shared = [k for k, p in props.items() if p == {'$ref': '#/components/schemas/' + resource(name) + '_action'}]
            self.assertGreater(len(shared), len(props) // 2, name + ': most event types refer to one action shape')
        self.assertEqual(SCHEMAS['Index']['properties']['pages']['items'], {'$ref': '#/components/schemas/IndexEntry'})

    def test_schemas_refuse_what_no_state_renders(self):
        for name, _ in PAGES:
            doc = json.loads(run(name))
            check = validator(resource(name))
            with self.subTest(page=name):
                self.assertTrue(check.is_valid(doc), 'the sample fits')
                self.assertFalse(check.is_valid(dict(doc, zzNoSuchKey=1)), 'an unknown key')
                self.assertFalse(check.is_valid([doc]), 'not an object')
                for key, value in doc.items():
                    if isinstance(value, int):
                        self.assertFalse(check.is_valid(dict(doc, **{key: 'text'})), 'a text for ' + key)
                        break


class States(unittest.TestCase):
    def test_every_state_fits_the_document(self):
        out = subprocess.run([STATES, os.path.join(SOURCE, 'fuzz', 'corpus')], check=True, capture_output=True).stdout
        checks = {}
        failing = {}
        counted = {}
        for raw in out.splitlines():
            line = json.loads(raw.decode('utf-8', 'replace'))
            name = line['name']
            if name not in checks:
                checks[name] = validator(resource(name))
            counted[name] = counted.get(name, 0) + 1
            error = next(iter(checks[name].iter_errors(line['document'])), None)
            if error is not None and name not in failing:
                failing[name] = '%s: %s at %s' % (line['origin'], error.message[:120], '/'.join(map(str, error.path)))
        self.assertEqual(set(counted), {n for n, _ in PAGES}, 'every page rendered')
        self.assertGreater(sum(counted.values()), 8 * len(PAGES))
        known = set()
        with open(os.path.join(SOURCE, 'tests', 'openapi', 'known_gaps.txt')) as f:
            for line in f:
                line = line.split('#')[0].strip()
                if line:
                    known.add(line)
        unexpected = {n: why for n, why in failing.items() if n not in known}
        mended = sorted(known - set(failing))
        print('%d states of %d pages; %d pages not yet described for every state (known_gaps.txt)'
              % (sum(counted.values()), len(counted), len(failing)), file=sys.stderr)
        self.assertEqual(unexpected, {}, 'pages whose states do not fit their schema')
        self.assertEqual(mended, [], 'pages that fit now: remove them from known_gaps.txt')


@unittest.skipIf(DEVICE is None, 'no simulator built')
class Simulator(unittest.TestCase):
    """The index the simulator serves against the document: its shape, the
    tags (one per group) and each page's argument."""

    def test_index_groups_and_arguments(self):
        p = subprocess.Popen([DEVICE, '--port', '0', '--timeout', '2'], stdout=subprocess.PIPE,
                             stderr=subprocess.PIPE, text=True)
        try:
            port = int(p.stdout.readline().rsplit(':', 1)[1].strip('/\n'))
            c = http.client.HTTPConnection('127.0.0.1', port, timeout=10)
            c.request('GET', '/api')
            index = json.loads(c.getresponse().read())
            c.close()
        finally:
            p.send_signal(signal.SIGTERM)
            p.wait(timeout=10)
            p.stdout.close()
            p.stderr.close()
        self.assertTrue(validator('Index').is_valid(index))
        tags = {t['name'] for t in DOC['tags']}
        self.assertEqual(tags, {e['group'] for e in index['pages']} | {'simulator'})
        for entry in index['pages']:
            with self.subTest(page=entry['name']):
                item = DOC['paths'][entry['path']]
                for op in list(item.values()) + [DOC['paths'][entry['path'] + '/schema']['get']]:
                    self.assertEqual(op['tags'], [entry['group']])
                self.assertEqual(entry.get('argument'), ARGUMENTS.get(entry['name'], (None,))[0])


if __name__ == '__main__':
    unittest.main(verbosity=1)
