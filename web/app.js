// The camera's pages in a browser: list them, open one, edit its document in
// place and post it back. Values the page's schema rejects are marked before
// anything is sent; a refused request marks the key the camera named.
'use strict';

const $ = (id) => document.getElementById(id);
let pages = [];
let current = null; // {page, doc, schema}

async function getJson(url) {
  const response = await fetch(url);
  return response.json();
}

function showIndex() {
  const filter = $('filter').value.trim().toLowerCase();
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
function childSchema(schema, key) {
  if (!schema) return null;
  if (typeof key === 'number') return schema.prefixItems ? schema.prefixItems[key] : null;
  return schema.properties ? schema.properties[key] : null;
}

// What the schema says of a value, or '' when it fits.
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
function pathOf(parts) {
  let text = '';
  for (const part of parts) {
    if (part.index !== undefined) text += '[' + part.index + ']';
    else text += (text ? '.' : '') + part.key;
  }
  return text;
}

function build(container, value, schema, parts) {
  for (const [key, member] of Array.isArray(value) ? value.map((v, i) => [i, v]) : Object.entries(value)) {
    const described = childSchema(schema, key);
    let step = { key };
    if (typeof key === 'number') {
      const indexKey = described && described.properties &&
        Object.keys(described.properties).find((k) => described.properties[k].const !== undefined);
      step = { index: indexKey ? member[indexKey] : key };
    }
    const here = parts.concat([step]);
    if (member !== null && typeof member === 'object') {
      const set = document.createElement('fieldset');
      const legend = document.createElement('legend');
      legend.textContent = pathOf(here);
      set.appendChild(legend);
      build(set, member, described, here);
      container.appendChild(set);
      continue;
    }
    const label = document.createElement('label');
    const name = document.createElement('span');
    name.textContent = pathOf(here);
    const input = document.createElement('input');
    input.value = String(member);
    input.dataset.path = pathOf(here);
    input.readOnly = !current.page.settable || (described && (described.readOnly || described.const !== undefined));
    input.addEventListener('input', () => {
      const why = problem(input.value, described);
      input.classList.toggle('invalid', why !== '');
      input.title = why;
    });
    input._location = { described, holder: value, key };
    label.append(name, input);
    container.appendChild(label);
  }
}

async function open(name) {
  const page = pages.find((p) => p.name === name);
  if (!page) return;
  const [doc, schema] = await Promise.all([getJson(page.path + '?format=json'), getJson(page.path + '/schema')]);
  current = { page, doc, schema };
  $('title').textContent = page.name;
  $('description').textContent = page.description + (page.settable ? '' : ' (read-only: ' + page.readOnly + ')');
  $('actions').hidden = !page.settable;
  const form = $('document');
  form.textContent = '';
  build(form, doc, schema, []);
  showIndex();
}

// The document with every edited value written back in place.
function edited() {
  for (const input of document.querySelectorAll('#document input')) {
    const { described, holder, key } = input._location;
    const type = described ? described.type : typeof holder[key];
    if (type === 'integer' || type === 'number') holder[key] = Number(input.value);
    else holder[key] = input.value;
  }
  return current.doc;
}

async function save() {
  const inputs = [...document.querySelectorAll('#document input')];
  for (const input of inputs) input.closest('label').classList.remove('refused');
  const bad = inputs.filter((i) => i.classList.contains('invalid'));
  if (bad.length) {
    $('reply').textContent = 'Not sent: ' + bad.map((i) => i.dataset.path + ' (' + i.title + ')').join(', ');
    return;
  }
  const response = await fetch(current.page.path + '?format=json', { method: 'POST', body: JSON.stringify(edited()) });
  const text = await response.text();
  $('reply').textContent = response.status + '\n' + text;
  if (response.status === 400) {
    const key = Object.keys(JSON.parse(text))[0];
    const input = inputs.find((i) => i.dataset.path === key);
    if (input) {
      input.closest('label').classList.add('refused');
      input.scrollIntoView({ block: 'center' });
    }
  }
}

async function start() {
  pages = (await getJson('/api')).pages;
  showIndex();
  $('filter').addEventListener('input', showIndex);
  $('pages').addEventListener('click', (event) => {
    const link = event.target.closest('a');
    if (link) open(link.dataset.name);
  });
  $('save').addEventListener('click', save);
  $('reload').addEventListener('click', () => open(current.page.name));
  if (location.hash) open(location.hash.slice(1));
}

start();
