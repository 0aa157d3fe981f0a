// The browser page over the device simulator, in Debian's headless Chromium:
//   node browser_test.js MW_DEVICE SCREENSHOT.png
// Opens the page list, picks a page, changes a value, saves, reloads and finds
// the new value; then marks a value the schema rejects before sending, and
// has a value the camera refuses named and highlighted. Opens a page with its
// argument and finds every answer's status shown. Opens one page in two tabs
// and saves in both: the second save is refused (412) and the tab offers a
// reload. Serves the page from a second origin (as a front-end dev server
// would) and reads, saves and gets a 412 through the simulator's CORS.
// Then, against a simulator with accounts, logs in as an operator, saves a
// page and is refused (403, shown) a save of an administrator-only page.
// Bounded: every wait times out, the whole run within a minute.
'use strict';

const { spawn, spawnSync } = require('child_process');
const fs = require('fs');
const http = require('http');
const os = require('os');
const path = require('path');
const puppeteer = require('puppeteer-core');

const [device, screenshot] = process.argv.slice(2);
let running = null; // the simulator, stopped however the run ends

function startDevice(args) {
  return new Promise((resolve, reject) => {
    const child = spawn(device, ['--port', '0'].concat(args), { stdio: ['ignore', 'pipe', 'inherit'] });
    child.stdout.once('data', (line) => {
      const match = /http:\/\/127\.0\.0\.1:(\d+)\//.exec(line.toString());
      if (match) resolve({ child, url: match[0] });
      else reject(new Error('no URL: ' + line));
    });
    child.once('error', reject);
  });
}

// The browser page's files from a server of their own, on another port: the
// front-end engineer's dev server.
function startPageServer() {
  const web = path.join(__dirname, '..', '..', 'web');
  const types = { '.html': 'text/html', '.js': 'text/javascript', '.css': 'text/css' };
  const server = http.createServer((request, response) => {
    const name = new URL(request.url, 'http://x').pathname.replace(/^\/$/, '/index.html').slice(1);
    if (!/^[a-z]+\.(html|js|css)$/.test(name)) {
      response.writeHead(404).end();
      return;
    }
    response.writeHead(200, { 'Content-Type': types[path.extname(name)] });
    response.end(fs.readFileSync(path.join(web, name)));
  });
  return new Promise((resolve) => server.listen(0, '127.0.0.1', () => resolve(server)));
}

// A set request from another client, straight to the simulator.
function post(url, body) {
  return new Promise((resolve, reject) => {
    const request = http.request(url, { method: 'POST' }, (response) => {
      response.resume();
      response.on('end', () => resolve(response.statusCode));
    });
    request.on('error', reject);
    request.end(body);
  });
}

// The newest shown answer to a request whose line holds `fragment`.
const answerTo = (page, fragment) => page.$$eval('#log li', (lines, f) =>
  (lines.map((li) => li.textContent).find((t) => t.includes(f)) || ''), fragment);

async function openTab(browser, address, selector) {
  const tab = await browser.newPage();
  tab.setDefaultTimeout(10000);
  await tab.goto(address, { waitUntil: 'networkidle0' });
  await tab.waitForSelector(selector);
  return tab;
}

// A tab in the background gets no animation frames: bring it forward first.
async function edit(tab, selector, value) {
  await tab.bringToFront();
  await tab.$eval(selector, (input) => { input.value = ''; });
  await tab.type(selector, value);
}

// Waits until `predicate(...args)` holds in the tab, asking from here every
// 100 ms: a tab in the background runs its own timers too seldom to poll.
async function until(tab, predicate, ...args) {
  const deadline = Date.now() + 10000;
  while (!(await tab.evaluate(predicate, ...args))) {
    if (Date.now() > deadline) throw new Error('timed out waiting for ' + predicate);
    await new Promise((resolve) => setTimeout(resolve, 100));
  }
}

async function saveAndWait(tab, status) {
  await tab.click('#save');
  await until(tab, (s) => document.querySelector('#reply').textContent.startsWith(s), String(status));
}

function check(condition, what) {
  if (!condition) throw new Error(what);
  console.log('ok - ' + what);
}

async function run() {
  const pageServer = await startPageServer();
  const origin = 'http://127.0.0.1:' + pageServer.address().port;
  const { child, url } = await startDevice(['--cors', origin]);
  running = child;
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), 'mw-browser-'));
  const browser = await puppeteer.launch({
    executablePath: process.env.CHROMIUM || '/usr/bin/chromium',
    headless: true,
    userDataDir: profile,
    args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run', '--disable-background-networking',
           '--disable-component-update', '--disable-sync', '--disable-dev-shm-usage'],
  });
  try {
    const page = await browser.newPage();
    page.setDefaultTimeout(10000);
    await page.goto(url, { waitUntil: 'networkidle0' });
    const links = await page.$$eval('#pages a', (as) => as.length);
    check(links > 100, 'the page list shows every page (' + links + ')');

    await page.type('#filter', 'water_mark');
    const shown = await page.$$eval('#pages a', (as) => as.map((a) => a.dataset.name));
    check(shown.length === 1 && shown[0] === 'get_system_water_mark_json', 'the filter box narrows the list');

    await page.click('#pages a');
    await page.waitForSelector('input[data-path="waterMarkString"]');
    const field = 'input[data-path="waterMarkString"]';
    await page.click(field, { clickCount: 3 });
    await page.type(field, 'Browser edit 7');
    await page.click('#save');
    await page.waitForFunction(() => document.querySelector('#reply').textContent.includes('succeed'));
    check(true, 'a changed value is saved');

    await page.goto(url + '#get_system_water_mark_json', { waitUntil: 'networkidle0' });
    await page.reload({ waitUntil: 'networkidle0' });
    await page.waitForSelector(field);
    const value = await page.$eval(field, (input) => input.value);
    check(value === 'Browser edit 7', 'after a reload the page shows the saved value');

    const enable = 'input[data-path="waterMarkEnable"]';
    await page.click(enable, { clickCount: 3 });
    await page.type(enable, 'on');
    check(await page.$eval(enable, (input) => input.classList.contains('invalid')),
          'a value the schema rejects is marked before sending');
    await page.click('#save');
    check((await page.$eval('#reply', (p) => p.textContent)).startsWith('Not sent'), 'and it is not sent');

    // A value the page's own check does not catch reaches the camera, which
    // names the key; the page highlights it.
    await page.click(enable, { clickCount: 3 });
    await page.type(enable, '70000');
    await page.$eval(enable, (input) => input.classList.remove('invalid'));
    await page.click('#save');
    await page.waitForFunction(() => document.querySelector('#reply').textContent.startsWith('400'));
    const reply = await page.$eval('#reply', (p) => p.textContent);
    check(reply.includes('"waterMarkEnable":\t"format error"'), 'the camera names the refused key');
    check(await page.$eval(enable, (input) => input.closest('label').classList.contains('refused')),
          'the refused key is highlighted');
    check((await answerTo(page, 'POST /api/system_water_mark')).startsWith('400'),
          'the answer\'s status is shown');

    // A page with an argument: the event type asked for is what is read.
    await page.goto(url + '#get_event_notify_json?eventType=0', { waitUntil: 'networkidle0' });
    await page.reload({ waitUntil: 'networkidle0' });
    await page.waitForSelector('#document fieldset');
    check((await page.$$eval('#document > fieldset', (f) => f.length)) === 1 &&
          (await page.$eval('#argument-value', (i) => i.value)) === '0', 'a page opens with its argument');
    await edit(page, '#argument-value', '48');
    await page.click('#argument button');
    await page.waitForFunction(() => document.querySelector('#reply').textContent.startsWith('400'));
    check((await answerTo(page, 'eventType=48')).startsWith('400') && (await page.$eval('#reply', (p) => p.textContent))
      .includes('"eventType":\t"format error"'), 'an argument the page refuses shows its 400');
    await edit(page, '#argument-value', '-1');
    await page.click('#argument button');
    await page.waitForFunction(() => document.querySelectorAll('#document > fieldset').length === 48);
    check((await answerTo(page, 'eventType=-1')).startsWith('200'), 'every event type with -1');
    await page.screenshot({ path: screenshot, fullPage: true });
    check(fs.statSync(screenshot).size > 0, 'a screenshot is saved at ' + screenshot);

    // One page in two tabs: the second save finds the page changed.
    const wiper = 'input[data-path="autoWiper"]';
    const first = await openTab(browser, url + '#get_ptz_wiper_json', wiper);
    const second = await openTab(browser, url + '#get_ptz_wiper_json', wiper);
    await edit(first, wiper, '0');
    await saveAndWait(first, 200);
    await edit(second, wiper, '2');
    await saveAndWait(second, 412);
    check(await second.$eval('#conflict', (c) => !c.hidden), 'the second tab\'s save is refused and a reload offered');
    await second.click('#conflict-reload');
    await until(second, (s) => document.querySelector(s)?.value === '0', wiper);
    await edit(second, wiper, '2');
    await saveAndWait(second, 200);
    check(await second.$eval('#conflict', (c) => c.hidden), 'after the reload it saves');

    // From the dev server's origin, through CORS.
    const mark = 'input[data-path="waterMarkString"]';
    const api = url.replace(/\/$/, '');
    const remote = await openTab(browser, origin + '/?api=' + encodeURIComponent(api) + '#get_system_water_mark_json',
                                 mark);
    check((await remote.$eval(mark, (i) => i.value)) === 'Browser edit 7', 'a page on another origin reads the camera');
    await edit(remote, mark, 'From the dev server');
    await saveAndWait(remote, 200);
    check(true, 'and saves to it');
    check(await post(api + '/api/system_water_mark?format=json', '{"waterMarkString": "Changed elsewhere"}') === 200,
          'another client changes the page');
    await edit(remote, mark, 'Too late');
    await saveAndWait(remote, 412);
    check(await remote.$eval('#conflict', (c) => !c.hidden), 'and the other origin\'s save gets the 412');

    // With accounts: the browser answers the Digest challenge as an operator.
    const users = path.join(profile, 'users');
    const added = spawnSync(device, ['--add-user', users, 'otto', 'operator'], { input: 'op3rator pass\n' });
    check(added.status === 0, 'an operator account is added');
    const guarded = await startDevice(['--users', users]);
    running = guarded.child;
    try {
      const login = await browser.newPage();
      login.setDefaultTimeout(10000);
      await login.authenticate({ username: 'otto', password: 'op3rator pass' });
      await login.goto(guarded.url + '#get_ptz_wiper_json', { waitUntil: 'networkidle0' });
      await login.waitForSelector(wiper);
      check((await answerTo(login, 'GET /api/ptz_wiper')).startsWith('200'), 'the operator logs in and reads a page');
      await edit(login, wiper, '1');
      await saveAndWait(login, 200);
      check(true, 'and saves it');
      await login.goto(guarded.url + '#get_system_user_json', { waitUntil: 'networkidle0' });
      await login.reload({ waitUntil: 'networkidle0' });
      await login.waitForSelector('#document input');
      await saveAndWait(login, 403);
      const refusal = await login.$eval('#reply', (p) => p.textContent);
      check(refusal.includes('Not allowed') && refusal.includes('operator'),
            'a save of an administrator-only page is refused, naming the role: ' + refusal);
    } finally {
      guarded.child.kill('SIGTERM');
    }
  } finally {
    pageServer.close();
    await browser.close();
    child.kill('SIGTERM');
    fs.rmSync(profile, { recursive: true, force: true });
  }
}

const limit = setTimeout(() => {
  console.error('the browser test ran over a minute');
  if (running) running.kill('SIGTERM');
  process.exit(1);
}, 60000);
run().then(() => { clearTimeout(limit); process.exit(0); }, (error) => {
  console.error('not ok - ' + error.message);
  process.exit(1);
});
