// The page of the game: loads it, keeps it running while it is seen, and puts the city away when it goes.
import { sizes } from './sizes.js';
import { Hands } from './hands.js';
import { Machine } from './machine.js';
import { chosenScale, Screen } from './screen.js';
import { Shelf } from './shelf.js';
import { Sound } from './sound.js';
import { Store } from './store.js';
import { Turn } from './turn.js';

const FOLDER = '/saved games';
const UNSAVED = `${FOLDER}/unsaved city.sav`;
const ENDED = -2; // what a step returns once the program has ended

const here = new URL('.', import.meta.url);
const release = here.pathname.split('/').at(-2);
const element = (id) => document.getElementById(id);
const [canvas, card, news, bar, go, note] = ['game', 'card', 'news', 'bar', 'go', 'note'].map(element);

const machine = new Machine();
const store = new Store();
const turn = new Turn(leave);
const sound = new Sound(`./${release}`, fetchKept);
let scale = 'menu2.pack' in sizes ? chosenScale() : 1;
let screen;
let timer = 0;
let ended = true;
let past = 0; // milliseconds that the page was seen before it was last seen again
let seenSince = performance.now();

// --- what the page says ---

function say(text, button, action) {
  card.hidden = false;
  canvas.classList.add('asleep');
  news.textContent = text;
  bar.hidden = true;
  go.hidden = !button;
  go.textContent = button ?? '';
  go.onclick = action;
}
function clearCard() {
  card.hidden = true;
  canvas.classList.remove('asleep');
}
function remark(text) {
  note.textContent = text;
  note.hidden = false;
  setTimeout(() => { note.hidden = true; }, 12000);
}
function stop(error) {
  ended = true;
  clearTimeout(timer);
  console.error(error);
  say('The game has come to a fault and cannot go on. Saved games are safe.', 'Start again', () => location.reload());
}

// --- files of the release ---

const keeping = [];

// A file from the server; at a later visit the worker answers with what was kept. It is kept beside the
// start, not before it: the browser takes a quarter of a second to open its cache for the first time.
async function fetchKept(name) {
  const address = new URL(name, here);
  const response = await fetch(address);
  if (!response.ok) throw new Error(`${name}: ${response.status}`);
  if (self.caches && !navigator.serviceWorker?.controller) {
    const copy = response.clone();
    keeping.push(caches.open(release).then((cache) => cache.put(address, copy)).catch(() => {}));
  }
  return response;
}

// The content of a file of the release that is stored zipped, so that every server sends it so.
async function unzipped(name, progress = () => {}) {
  const response = await fetchKept(name);
  const counted = response.body.pipeThrough(new TransformStream({
    transform(chunk, controller) {
      progress(chunk.length);
      controller.enqueue(chunk);
    },
  }));
  return new Response(counted.pipeThrough(new DecompressionStream('gzip')), { headers: { 'Content-Type': 'application/wasm' } });
}
async function addPack(name, progress) {
  const bytes = new Uint8Array(await (await unzipped(name, progress)).arrayBuffer());
  if (!machine.call.addPack(...machine.hand(bytes))) throw new Error(`${name} is damaged`);
}

// --- what the program wants of the page ---

// The game's time: it stands still while the page is hidden.
const now = () => past + (document.hidden ? 0 : performance.now() - seenSince);

function keep(path, bytes) {
  store.keep(path, bytes, (name, reason) => showBox('Save Error',
    `${name.slice(FOLDER.length + 1)}: ${reason}. It is there until this page is closed; take it out by the key "Saved games".`));
}
function showBox(title, text) {
  if (ended) return;
  machine.call.showBox(...machine.hand(title), ...machine.hand(text));
  run();
}

const page = {
  milliseconds: now,
  ticks: () => performance.now() * 1e6 + Math.random() * 1e6,
  show: (...where) => screen.show(machine.call.memory, ...where),
  message: (title, text) => say(machine.line(text), 'Start again', () => location.reload()),
  copy: (text, length) => navigator.clipboard?.writeText(machine.text(text, length)).catch(() => {}),
  keep: (path, pathLength, bytes, length) => keep(machine.text(path, pathLength), bytes ? machine.bytes(bytes, length) : null),
  cue: (number) => sound.cue(number),
  openTheme: (number) => sound.openTheme(number),
  playTheme: () => sound.playTheme(),
  closeTheme: () => sound.closeTheme(),
};

// --- the loop ---

function run() {
  clearTimeout(timer);
  if (ended || document.hidden) return;
  let wait;
  try {
    wait = machine.call.step();
  } catch (error) {
    stop(error);
    return;
  }
  if (wait === ENDED) farewell();
  else if (wait >= 0) timer = setTimeout(run, wait);
}

function start() {
  ended = machine.call.start(scale) === 0;
  if (ended) return;
  clearCard();
  run();
}

function farewell() {
  ended = true;
  sound.closeTheme();
  say('Thank you for playing. Your towns will be here when you come back.', 'Back to the menu', start);
}

// A little at a time, so that the menu answers in between.
function readAhead() {
  if (!ended && machine.call.readAhead()) setTimeout(readAhead);
  run();
}

// --- coming and going ---

// Keeps the city that is open as "unsaved city", and what was of that name, should the player come back.
let before = null;
function putAway() {
  if (ended) return;
  before = { bytes: store.files.get(UNSAVED) ?? null };
  if (!machine.call.keepUnsavedCity()) before = null;
}
function takeBack() {
  if (!before) return;
  if (before.bytes) machine.call.putFile(...machine.hand(UNSAVED), ...machine.hand(before.bytes));
  else machine.call.removeFile(...machine.hand(UNSAVED));
  keep(UNSAVED, before.bytes);
  before = null;
}

function seenOrHidden() {
  if (document.hidden) {
    past += performance.now() - seenSince;
    clearTimeout(timer);
    putAway();
  } else {
    seenSince = performance.now();
    takeBack();
    run();
  }
  sound.sleep(document.hidden);
}

// Another page takes over.
async function leave() {
  putAway();
  ended = true;
  clearTimeout(timer);
  sound.closeTheme();
  element('keys').hidden = true; // a game brought in here would not be kept
  await store.writing;
  store.close();
  say('The game goes on in another tab or window.', 'Play here', () => {
    sessionStorage.setItem('takeOver', '1');
    location.reload();
  });
}

async function takeTurn() {
  const wanted = sessionStorage.getItem('takeOver');
  sessionStorage.removeItem('takeOver');
  if (wanted ? await turn.takeOver() : await turn.take()) return;
  await new Promise((pressed) => say('The game is open in another tab or window.', 'Play here', pressed));
  await turn.takeOver();
  say('Loading');
  bar.hidden = false;
}

function toggleFullScreen() {
  if (document.fullscreenElement) document.exitFullscreen();
  else document.documentElement.requestFullscreen?.().then(turnScreen).catch(() => {});
}
// A phone is turned, where its browser lets a page do that.
function turnScreen() {
  return self.screen.orientation?.lock?.('landscape').catch(() => {});
}

// --- the start ---

// A module of one function that uses SIMD.
const SIMD = Uint8Array.of(0, 97, 115, 109, 1, 0, 0, 0, 1, 5, 1, 96, 0, 1, 123, 3, 2, 1, 0, 10, 10, 1, 8, 0, 65, 0, 253, 15, 253, 98, 11);

async function load() {
  const first = ['vellmoran.wasm.pack', `menu${scale}.pack`];
  const total = first.reduce((sum, name) => sum + sizes[name], 0);
  let came = 0;
  const progress = (bytes) => {
    came += bytes;
    if (bar.hidden) return; // something else is being said
    bar.value = came / total;
    news.textContent = `Loading: ${(came / 1e6).toFixed(1)} of ${(total / 1e6).toFixed(1)} MB`;
  };
  // The pictures are on their way while the program is compiled. Without a network those of the other
  // size may have been kept.
  const menu = unzipped(first[1], progress).catch(() => {
    scale = 3 - scale;
    return unzipped(`menu${scale}.pack`, progress);
  }).then((response) => response.arrayBuffer());
  const { instance } = await WebAssembly.instantiateStreaming(unzipped(first[0], progress), machine.imports(page));
  machine.start(instance);
  if (!machine.call.addPack(...machine.hand(new Uint8Array(await menu)))) throw new Error('the menu is damaged');
}

async function open() {
  if (!self.WebAssembly?.validate(SIMD) || !('DecompressionStream' in self)) {
    say('This browser cannot run the game: it lacks WebAssembly with SIMD. Any current browser has it.');
    return;
  }
  const loaded = load();
  loaded.catch(() => {});
  await takeTurn();
  await store.open();
  await loaded;
  for (const [path, bytes] of store.files) machine.call.putFile(...machine.hand(path), ...machine.hand(bytes));
  screen = new Screen(scale);
  new Hands(machine, screen, { pressed: () => sound.wake(), after: run });
  const shelf = new Shelf(machine, store, FOLDER, (path, bytes) => {
    machine.call.putFile(...machine.hand(path), ...machine.hand(bytes));
    keep(path, bytes);
  });
  element('keys').hidden = false;
  element('games').addEventListener('click', () => shelf.open());
  element('full').addEventListener('click', toggleFullScreen);
  document.addEventListener('keydown', (event) => {
    if (event.altKey && event.key === 'Enter') toggleFullScreen();
  });
  document.addEventListener('visibilitychange', seenOrHidden);
  start();
  performance.mark('first picture');
  if (!store.database) remark('This browser keeps nothing for this page: saved games last until it is closed. They can be taken out by the key "Saved games".');
  else if (sound.missing) remark('This browser plays no sound.');

  await addPack(`game${scale}.pack`);
  readAhead();
  performance.mark('game loaded');
  await sound.fetchCues().catch(() => {});
  await Promise.all(keeping);
  navigator.serviceWorker?.register('worker.js').catch(() => {});
}

open().catch((error) => {
  console.error(error);
  say('The game could not be loaded. Is there a network?', 'Try again', () => location.reload());
});
