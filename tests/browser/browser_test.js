// The browser page over the device simulator, in Debian's headless Chromium:
//   node browser_test.js MW_DEVICE SCREENSHOT.png
// Opens the page list, picks a page, changes a value, saves, reloads and finds
// the new value; then marks a value the schema rejects before sending, and
// has a value the camera refuses named and highlighted. Bounded: every wait
// times out, the whole run within a minute.
'use strict';

const { spawn } = require('child_process');
const fs = require('fs');
const os = require('os');
const path = require('path');
const puppeteer = require('puppeteer-core');

const [device, screenshot] = process.argv.slice(2);

function startDevice() {
  return new Promise((resolve, reject) => {
    const child = spawn(device, ['--port', '0'], { stdio: ['ignore', 'pipe', 'inherit'] });
    child.stdout.once('data', (line) => {
      const match = /http:\/\/127\.0\.0\.1:(\d+)\//.exec(line.toString());
      if (match) resolve({ child, url: match[0] });
      else reject(new Error('no URL: ' + line));
    });
    child.once('error', reject);
  });
}

function check(condition, what) {
  if (!condition) throw new Error(what);
  console.log('ok - ' + what);
}

async function run() {
  const { child, url } = await startDevice();
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
    await page.screenshot({ path: screenshot, fullPage: true });
    check(fs.statSync(screenshot).size > 0, 'a screenshot is saved at ' + screenshot);
  } finally {
    await browser.close();
    child.kill('SIGTERM');
    fs.rmSync(profile, { recursive: true, force: true });
  }
}

const limit = setTimeout(() => {
  console.error('the browser test ran over a minute');
  process.exit(1);
}, 60000);
run().then(() => { clearTimeout(limit); process.exit(0); }, (error) => {
  console.error('not ok - ' + error.message);
  process.exit(1);
});
