// Every page's GET, a POST of every settable page's own document and every
// schema route, sent through Prism's validating proxy (--errors) in front of
// the simulator: none may be reported as a violation of the OpenAPI document.
// Then replies altered on their way (a wrong type, a missing required key,
// an unknown key, a week's day out of its place, a wrong envelope) must each
// be caught: the proof that the schemas' keywords take effect, those of JSON
// Schema 2020-12 among them (prefixItems pins the week's days).
//
//   node prism_check.mjs MW_DEVICE OPENAPI_JSON
import { spawn } from 'node:child_process';
import { createServer, request as httpRequest } from 'node:http';
import { readFileSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { freePort, startDevice, stop, waitFor } from './lib/processes.mjs';

const [devicePath, openapiPath] = process.argv.slice(2);
if (!devicePath || !openapiPath) {
  console.error('usage: node prism_check.mjs MW_DEVICE OPENAPI_JSON');
  process.exit(2);
}
const here = dirname(fileURLToPath(import.meta.url));
const doc = JSON.parse(readFileSync(openapiPath, 'utf8'));

let passed = 0;
let failed = 0;
function check(ok, what) {
  if (ok) passed++;
  else {
    failed++;
    console.log(`FAIL ${what}`);
  }
}

// The simulator behind a relay that may alter one reply: `alter` (set per
// request) gets {status, body} and returns the altered pair.
const device = await startDevice(devicePath);
let alter = null;
const relay = createServer((req, res) => {
  const chunks = [];
  req.on('data', (c) => chunks.push(c));
  req.on('end', () => {
    const upstream = httpRequest(device.base + req.url, { method: req.method, headers: req.headers }, (up) => {
      const parts = [];
      up.on('data', (c) => parts.push(c));
      up.on('end', () => {
        let reply = { status: up.statusCode, body: Buffer.concat(parts).toString('utf8') };
        if (alter) reply = alter(reply);
        res.writeHead(reply.status, { 'content-type': up.headers['content-type'] ?? 'application/json' });
        res.end(reply.body);
      });
    });
    upstream.on('error', (e) => {
      res.writeHead(502);
      res.end(String(e));
    });
    upstream.end(Buffer.concat(chunks));
  });
});
await new Promise((r) => relay.listen(0, '127.0.0.1', r));
const relayBase = `http://127.0.0.1:${relay.address().port}`;

const prismPort = await freePort();
const prism = spawn(
  join(here, 'node_modules', '.bin', 'prism'),
  ['proxy', openapiPath, relayBase, '--errors', '--host', '127.0.0.1', '--port', String(prismPort)],
  { stdio: ['ignore', 'ignore', 'inherit'], env: { ...process.env, SCARF_ANALYTICS: 'false' } },
);
const base = `http://127.0.0.1:${prismPort}`;
const started = Date.now();

async function call(method, path, body) {
  const res = await fetch(base + path, {
    method,
    body,
    headers: body === undefined ? {} : { 'content-type': 'application/json' },
    signal: AbortSignal.timeout(20000),
  });
  const text = await res.text();
  const violations = JSON.parse(res.headers.get('sl-violations') ?? '[]');
  return { status: res.status, text, violations };
}

function clean(reply, what, status = 200) {
  const errors = reply.violations.filter((v) => v.severity === 'Error');
  check(reply.status === status && errors.length === 0,
    `${what}: ${reply.status} ${errors.map((v) => `${v.location.join('.')}: ${v.message}`).join('; ')} ${reply.status !== status ? reply.text.slice(0, 200) : ''}`);
}

try {
  await waitFor(base + '/api', 90);
  console.error(`prism: ready after ${((Date.now() - started) / 1000).toFixed(1)} s`);

  const index = await call('GET', '/api');
  clean(index, 'GET /api');
  const pages = JSON.parse(index.text).pages;
  check(pages.length === Object.keys(doc.paths).filter((p) => p.endsWith('/schema')).length, 'every page is in the document');

  for (const page of pages) {
    const got = await call('GET', `${page.path}?format=json`);
    clean(got, `GET ${page.path}`);
    if (page.settable) {
      const set = await call('POST', `${page.path}?format=json`, got.text);
      clean(set, `POST ${page.path} (its own document)`);
      check(JSON.stringify(JSON.parse(set.text)) === '{"setState":"succeed"}', `POST ${page.path}: ${set.text}`);
    }
    clean(await call('GET', `${page.path}/schema`), `GET ${page.path}/schema`);
    if (page.argument) {
      const parameter = doc.paths[page.path].get.parameters.find((p) => p.name === page.argument);
      for (const value of [parameter.schema.minimum, parameter.schema.maximum]) {
        clean(await call('GET', `${page.path}?format=json&${page.argument}=${value}`), `GET ${page.path} ${page.argument}=${value}`);
      }
    }
  }

  // The document's own route, once the simulator serves it: the same
  // document as mw-render prints.
  const served = await fetch(`${device.base}/api/openapi.json`);
  if (served.status === 404) {
    console.error('prism: the simulator does not serve /api/openapi.json yet');
  } else {
    check(JSON.stringify(await served.json()) === JSON.stringify(doc), '/api/openapi.json is the generated document');
    clean(await call('GET', '/api/openapi.json'), 'GET /api/openapi.json');
  }

  // A set request the schema lets through and the camera refuses: a text of
  // as many characters as the schema allows, each two bytes long. The 400
  // envelope names the member.
  const texts = pages.filter((p) => p.settable).flatMap((p) => {
    const schema = doc.components.schemas[p.path.slice(5)];
    return Object.entries(schema.properties)
      .filter(([, s]) => s.type === 'string' && !s.readOnly && s.maxLength > 0)
      .map(([key, s]) => ({ page: p, key, length: s.maxLength }));
  });
  check(texts.length > 0, 'a settable text to refuse');
  if (texts.length > 0) {
    const { page, key, length } = texts[0];
    const refused = await call('POST', `${page.path}?format=json`, JSON.stringify({ [key]: 'é'.repeat(length) }));
    clean(refused, `POST ${page.path} with ${key} over its bytes`, 400);
    check(refused.text.includes(`"${key}"`) && refused.text.includes('format error'), `400 names ${key}: ${refused.text}`);
  }

  // Altered replies: each must be reported.
  const week = pages.find((p) => doc.components.schemas[p.path.slice(5)]?.properties?.scheduleList?.$ref);
  // [what, method, path, change, keyword Prism must name, where]
  const alterations = [
    ['a text for an integer', 'GET', '/api/ptz_wiper?format=json', (d) => ({ ...d, autoWiper: 'on' }), 'type', 'autoWiper'],
    ['a required key missing', 'GET', '/api/ptz_wiper?format=json', ({ status, ...d }) => d, 'required', 'body'],
    ['an unknown key', 'GET', '/api/ptz_wiper?format=json', (d) => ({ ...d, zzNoSuchKey: 1 }), 'additionalProperties', 'body'],
    ['a number above its range', 'GET', '/api/ptz_wiper?format=json', (d) => ({ ...d, autoWiper: 2 ** 40 }), 'maximum', 'autoWiper'],
    // Only a 2020-12 validator reads prefixItems: under "items" alone any
    // day may stand anywhere.
    ['a day out of its place in the week (prefixItems)', 'GET', `${week.path}?format=json`, (d) => {
      d.scheduleList[0].scheduleIndex = 3;
      return d;
    }, 'const', 'scheduleIndex'],
    ['a failed envelope for a success', 'POST', '/api/ptz_wiper?format=json', () => ({ setState: 'done' }), 'const', 'setState'],
    ['an index entry without its path', 'GET', '/api', (d) => {
      delete d.pages[0].path;
      return d;
    }, 'required', 'pages'],
  ];
  for (const [what, method, path, change, keyword, where] of alterations) {
    alter = (reply) => ({ status: reply.status, body: JSON.stringify(change(JSON.parse(reply.body))) });
    const body = method === 'POST' ? (await fetch(`${device.base}${path}`).then((r) => r.text())) : undefined;
    const reply = await call(method, path, body);
    alter = null;
    const errors = reply.violations.filter((v) => v.severity === 'Error');
    check(reply.status === 500 && errors.some((v) => v.code === keyword && v.location.includes(where)),
      `${what} (${path}) is caught as ${keyword} at ${where}: ${reply.status} ${JSON.stringify(errors)}`);
  }
  // The same alteration of a 400 envelope: its value must stay "format error".
  alter = (reply) => ({ status: 400, body: JSON.stringify({ autoWiper: 'bad value' }) });
  const refused = await call('POST', '/api/ptz_wiper?format=json', '{"autoWiper": 1}');
  alter = null;
  check(refused.violations.some((v) => v.severity === 'Error'), `an altered 400 envelope is caught: ${refused.status}`);

  console.error(`prism: ${pages.length} pages checked in ${((Date.now() - started) / 1000).toFixed(1)} s`);
} catch (e) {
  failed++;
  console.log(`FAIL ${e.stack ?? e}`);
} finally {
  await stop(prism);
  await stop(device.process);
  relay.close();
}
console.log(`prism: ${passed} passed, ${failed} failed`);
process.exit(failed === 0 ? 0 : 1);
