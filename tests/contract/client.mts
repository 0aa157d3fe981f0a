// A client typed by the OpenAPI document (openapi-typescript's types,
// openapi-fetch), run against the simulator: it reads an alarm action page,
// changes a member, posts the document back, reads the change, and handles a
// refusal by its key path.
//
//   node out/client.mjs MW_DEVICE
import createClient from 'openapi-fetch';
import type { components, paths } from './generated/api.js';
import { startDevice, stop } from './lib/processes.mjs';

type Notify = components['schemas']['event_notify'];
type FormatError = components['schemas']['FormatError'];

let passed = 0;
let failed = 0;
function check(ok: boolean, what: string): void {
  if (ok) passed++;
  else {
    failed++;
    console.log(`FAIL ${what}`);
  }
}

const device = await startDevice(process.argv[2] ?? '');
try {
  const client = createClient<paths>({ baseUrl: device.base });
  const query = { format: 'json', eventType: 0 } as const; // event type 0: "motion"

  const read = await client.GET('/api/event_notify', { params: { query } });
  const document: Notify | undefined = read.data;
  const motion = document?.motion;
  check(read.response.status === 200 && motion !== undefined, `read: ${read.response.status}`);
  if (document === undefined || motion === undefined) throw new Error('no motion object to edit');
  const first = motion.notifyList[0];
  const second = motion.notifyList[1];
  if (first === undefined || second === undefined) throw new Error('motion lists fewer than two targets');

  // One member changed, the rest of the document posted back as read.
  const interval = first.interval === 45 ? 90 : 45;
  first.interval = interval;
  const set = await client.POST('/api/event_notify', { params: { query }, body: document });
  check(set.response.status === 200 && set.data?.setState === 'succeed', `set: ${set.response.status} ${JSON.stringify(set.data ?? set.error)}`);

  const again = await client.GET('/api/event_notify', { params: { query } });
  check(again.data?.motion?.notifyList[0]?.interval === interval, `the change reads back: ${JSON.stringify(again.data?.motion?.notifyList[0])}`);

  // A URL one byte over its field: refused, named by its key path, and
  // nothing changed.
  const tooLong = 'x'.repeat(1024);
  const refused = await client.POST('/api/event_notify', {
    params: { query },
    body: { motion: { notifyList: [{ index: second.index, url: tooLong }] } },
  });
  const error: FormatError | undefined = refused.error as FormatError | undefined;
  const path = `motion.notifyList[${second.index}].url`;
  check(refused.response.status === 400, `refusal status: ${refused.response.status}`);
  check(error !== undefined && Object.keys(error).length === 1 && error[path] === 'format error',
    `refusal names ${path}: ${JSON.stringify(error)}`);
  const after = await client.GET('/api/event_notify', { params: { query } });
  check(after.data?.motion?.notifyList[1]?.url === second.url, 'a refused set changes nothing');
} catch (e) {
  failed++;
  console.log(`FAIL ${e instanceof Error ? e.stack : String(e)}`);
} finally {
  await stop(device.process);
}
console.log(`client: ${passed} passed, ${failed} failed`);
process.exit(failed === 0 ? 0 : 1);
