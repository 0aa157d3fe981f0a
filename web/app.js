// @ts-check
// The camera's pages in a browser: list them, open one (with its argument:
// event type, group or count), edit its document in place and post it back.
// Values the page's schema rejects are marked before anything is sent; a
// refused request marks the key the camera named. Every answer's HTTP status
// is shown. A save carries the tag the page was read with (If-Match): when
// the page changed since it was opened the camera answers 412 and the page
// offers a reload.
//
// Served by the simulator itself, the page calls it on its own origin. Served
// from elsewhere (a front-end dev server), it calls the simulator named in
// the query: /index.html?api=http://127.0.0.1:8080, which must have been
// started with --cors naming this page's origin.

/**
 * The simulator's answers as this page reads them, in the types generated
 * from its OpenAPI document (tests/contract/generated/api.d.ts, made by
 * scripts/contract.sh, which type-checks this file against them).
 *
 * @typedef {import("../tests/contract/generated/api").components["schemas"]} Schemas
 * @typedef {Schemas["IndexEntry"]} PageEntry   An entry of the index, GET /api.
 * @typedef {Schemas["Index"]} PageIndex         GET /api.
 * @typedef {{[key: string]: any}} PageDocument   GET /api/<page>?format=json: a page's document.
 * @typedef {Schemas["SetSucceed"] | Schemas["FormatError"] | Schemas["Error"]} Reply   A set request's reply.
 *
 * @typedef {object} Schema      GET /api/<page>/schema, and each member's part of it.
 * @property {string} [title]
 * @property {string} [type]
 * @property {{[key: string]: Schema}} [properties]
 * @property {Schema[]} [prefixItems]
 * @property {boolean} [readOnly]
 * @property {unknown} [const]
 * @property {number} [minimum]
 * @property {number} [maximum]
 * @property {number} [maxLength]
 */

/**
 * What this page keeps of the page it shows.
 * @typedef {object} Current
 * @property {PageEntry} page
 * @property {PageDocument} doc
 * @property {Schema} schema
 * @property {string} argument   the argument's value as asked, '' for the catalog's
 * @property {string | null} etag
 *
 * @typedef {{key?: string | number, index?: unknown}} Step
 * @typedef {{described: Schema | null, holder: any, key: string | number}} Place
 */
'use strict';

const api = new URLSearchParams(location.search).get('api') || '';

/** @param {string} id */
const $ = (id) => /** @type {HTMLElement} */ (document.getElementById(id));
/** @param {string} id */
const field = (id) => /** @type {HTMLInputElement} */ (document.getElementById(id));

/** @type {PageEntry[]} */
let pages = [];
/** @type {Current | null} */
let current = null;
/** @type {WeakMap<HTMLInputElement, Place>} */
const places = new WeakMap();

// Every answer's status, newest first.
/**
 * @param {string} method
 * @param {string} url
 * @param {Response} response
 */
function logAnswer(method, url, response) {
  const line = document.createElement('li');
  line.textContent = response.status + ' ' + response.statusText + ' \u2190 ' + method + ' ' + url;
  line.className = response.ok ? 'ok' : 'failed';
  const log = $('log');
  log.prepend(line);
  while (log.children.length > 12) log.lastElementChild?.remove();
}

/**
 * @param {string} url   a path on the simulator
 * @param {RequestInit} [init]
 */
async function call(url, init) {
  // From another origin the browser sends the login it holds for the
  // simulator only when asked to.
  const response = await fetch(api + url, { credentials: api ? 'include' : 'same-origin', ...init });
  logAnswer(init && init.method ? init.method : 'GET', url, response);
  return response;
}

/** The query of a page's document: format=json and the argument when one is given. */
function query() {
  if (!current) return '';
  const argument = current.page.argument;
  return '?format=json' + (argument && current.argument !== ''
    ? '&' + encodeURIComponent(argument) + '=' + encodeURIComponent(current.argument) : '');
}

function showIndex() {
  const filter = field('filter').value.trim().toLowerCase();
  const nav = $('pages');
  nav.textContent = '';
  let group = null;
  for (const page of pages) {
    if (filter && !(page.name + ' ' + page.description).toLowerCase().includes(filter)) continue;
    if (page.group !== group) {
      group = page.group;
      const heading = document.createElement('h4');
      heading.textContent = group;
      nav.appendChild(heading);
    }
    const link = document.createElement('a');
    link.href = '#' + page.name;
    link.textContent = page.name;
    link.title = page.description;
    link.dataset.name = page.name;
    if (!page.settable) link.classList.add('read-only');
    if (current && current.page.name === page.name) link.classList.add('current');
    nav.appendChild(link);
  }
}

// The schema of a member: properties of an object, prefixItems of a list.
/**
 * @param {Schema | null} schema
 * @param {string | number} key
 * @returns {Schema | null}
 */
function childSchema(schema, key) {
  if (!schema) return null;
  if (typeof key === 'number') return schema.prefixItems ? schema.prefixItems[key] || null : null;
  return schema.properties ? schema.properties[key] || null : null;
}

// What the schema says of a value, or '' when it fits.
/**
 * @param {string} value
 * @param {Schema | null} schema
 */
function problem(value, schema) {
  if (!schema) return '';
  if (schema.type === 'integer' || schema.type === 'number') {
    if (value.trim() === '' || !Number.isFinite(Number(value))) return 'not a number';
    const n = Number(value);
    if (schema.type === 'integer' && !Number.isInteger(n)) return 'not a whole number';
    if (schema.minimum !== undefined && n < schema.minimum) return 'below ' + schema.minimum;
    if (schema.maximum !== undefined && n > schema.maximum) return 'above ' + schema.maximum;
  } else if (schema.type === 'string' && schema.maxLength !== undefined) {
    if (new TextEncoder().encode(value).length > schema.maxLength) return 'longer than ' + schema.maxLength + ' bytes';
  }
  return '';
}

// A key path as the camera names it: "list[2].url".
/** @param {Step[]} parts */
function pathOf(parts) {
  let text = '';
  for (const part of parts) {
    if (part.index !== undefined) text += '[' + part.index + ']';
    else text += (text ? '.' : '') + part.key;
  }
  return text;
}

/**
 * @param {HTMLElement} container
 * @param {any} value   an object or a list of the document
 * @param {Schema | null} schema
 * @param {Step[]} parts
 * @param {boolean} settable
 */
function build(container, value, schema, parts, settable) {
  /** @type {[string | number, any][]} */
  const members = Array.isArray(value) ? value.map((v, i) => [i, v]) : Object.entries(value);
  for (const [key, member] of members) {
    const described = childSchema(schema, key);
    /** @type {Step} */
    let step = { key };
    if (typeof key === 'number') {
      const properties = described && described.properties;
      const indexKey = properties && Object.keys(properties).find((k) => properties[k].const !== undefined);
      step = { index: indexKey ? member[indexKey] : key };
    }
    const here = parts.concat([step]);
    if (member !== null && typeof member === 'object') {
      const set = document.createElement('fieldset');
      const legend = document.createElement('legend');
      legend.textContent = pathOf(here);
      set.appendChild(legend);
      build(set, member, described, here, settable);
      container.appendChild(set);
      continue;
    }
    const label = document.createElement('label');
    const name = document.createElement('span');
    name.textContent = pathOf(here);
    const input = document.createElement('input');
    input.value = String(member);
    input.dataset.path = pathOf(here);
    input.readOnly = !settable || Boolean(described && (described.readOnly || described.const !== undefined));
    input.addEventListener('input', () => {
      const why = problem(input.value, described);
      input.classList.toggle('invalid', why !== '');
      input.title = why;
    });
    places.set(input, { described, holder: value, key });
    label.append(name, input);
    container.appendChild(label);
  }
}

/**
 * Opens a page with its argument ('' for the catalog's).
 * @param {string} name
 * @param {string} [argument]
 */
async function open(name, argument = '') {
  const page = pages.find((p) => p.name === name);
  if (!page) return;
  current = { page, doc: {}, schema: {}, argument: page.argument ? argument : '', etag: null };
  $('conflict').hidden = true;
  $('title').textContent = page.name;
  $('description').textContent = page.description + (page.settable ? '' : ' (read-only: ' + page.readOnly + ')');
  $('argument').hidden = !page.argument;
  $('argument-name').textContent = page.argument || '';
  field('argument-value').value = current.argument;
  const form = $('document');
  form.textContent = '';
  const [answer, schemaAnswer] = await Promise.all([call(page.path + query()), call(page.path + '/schema')]);
  const text = await answer.text();
  $('actions').hidden = !page.settable || !answer.ok;
  if (!answer.ok) {
    $('reply').textContent = answer.status + '\n' + text;
    showIndex();
    return;
  }
  current.doc = /** @type {PageDocument} */ (JSON.parse(text));
  current.schema = schemaAnswer.ok ? /** @type {Schema} */ (await schemaAnswer.json()) : {};
  current.etag = answer.headers.get('ETag');
  build(form, current.doc, current.schema, [], page.settable);
  showIndex();
}

// The document with every edited value written back in place.
function edited() {
  for (const input of /** @type {NodeListOf<HTMLInputElement>} */ (document.querySelectorAll('#document input'))) {
    const place = places.get(input);
    if (!place) continue;
    const { described, holder, key } = place;
    const type = described ? described.type : typeof holder[key];
    if (type === 'integer' || type === 'number') holder[key] = Number(input.value);
    else holder[key] = input.value;
  }
  return current ? current.doc : {};
}

async function save() {
  if (!current) return;
  const inputs = [.../** @type {NodeListOf<HTMLInputElement>} */ (document.querySelectorAll('#document input'))];
  for (const input of inputs) input.closest('label')?.classList.remove('refused');
  const bad = inputs.filter((i) => i.classList.contains('invalid'));
  if (bad.length) {
    $('reply').textContent = 'Not sent: ' + bad.map((i) => i.dataset.path + ' (' + i.title + ')').join(', ');
    return;
  }
  /** @type {Record<string, string>} */
  const headers = { 'Content-Type': 'application/json' };
  if (current.etag) headers['If-Match'] = current.etag;
  const response = await call(current.page.path + query(), { method: 'POST', headers, body: JSON.stringify(edited()) });
  const text = await response.text();
  $('reply').textContent = response.status + '\n' + text;
  if (response.ok) {
    current.etag = response.headers.get('ETag');
  } else if (response.status === 412) {
    $('conflict').hidden = false;
  } else if (response.status === 401 || response.status === 403 || response.status === 429) {
    // Not logged in, a role that may not change this page, or locked out
    // after failed logins: the camera's reason, in words.
    /** @type {Record<number, string>} */
    const labels = { 401: 'Not logged in', 403: 'Not allowed', 429: 'Too many failed logins' };
    let why = '';
    try {
      why = /** @type {{error?: string}} */ (JSON.parse(text)).error || '';
    } catch (e) {
      why = text;
    }
    $('reply').textContent = response.status + ' ' + labels[response.status] + (why ? ': ' + why : '');
  } else if (response.status === 400) {
    const key = Object.keys(/** @type {Reply} */ (JSON.parse(text)))[0];
    const input = inputs.find((i) => i.dataset.path === key);
    if (input) {
      input.closest('label')?.classList.add('refused');
      input.scrollIntoView({ block: 'center' });
    }
  }
}

// "#get_event_notify_json?eventType=3": a page and its argument.
function openFromHash() {
  const [name, search] = location.hash.slice(1).split('?');
  if (!name) return;
  const page = pages.find((p) => p.name === name);
  const argument = page && page.argument ? new URLSearchParams(search).get(page.argument) : null;
  open(name, argument || '');
}

async function start() {
  const index = await call('/api');
  pages = /** @type {PageIndex} */ (await index.json()).pages;
  showIndex();
  field('filter').addEventListener('input', showIndex);
  $('pages').addEventListener('click', (event) => {
    const link = /** @type {HTMLElement} */ (event.target).closest('a');
    if (link && link.dataset.name) {
      event.preventDefault();
      history.replaceState(null, '', '#' + link.dataset.name);
      open(link.dataset.name);
    }
  });
  $('argument').addEventListener('submit', (event) => {
    event.preventDefault();
    if (!current) return;
    const value = field('argument-value').value.trim();
    history.replaceState(null, '', '#' + current.page.name + (value ? '?' + current.page.argument + '=' + value : ''));
    open(current.page.name, value);
  });
  $('save').addEventListener('click', save);
  for (const id of ['reload', 'conflict-reload']) {
    $(id).addEventListener('click', () => { if (current) open(current.page.name, current.argument); });
  }
  openFromHash();
}

start();
