// Keeps the whole release in the browser, so that the game opens without a network.
//
// Files of a release have the release's name in their path and never change. A new release is fetched
// behind the old one and takes its place when no page of the old one is open any more.
const RELEASE = '@RELEASE@';
const FILES = ['./', 'vellmoran.webmanifest', 'icon.png',
  ...'@FILES@'.split(' ').map((name) => `${RELEASE}/${name}`)];

// The packs of the scales that the player has had so far, in this release or one before it.
async function packs() {
  const scales = [];
  for (const name of await caches.keys()) {
    for (const { url } of await (await caches.open(name)).keys()) scales.push(/\/menu(\d)\.pack$/.exec(url)?.[1]);
  }
  return [1, 2].filter((scale) => scales.includes(`${scale}`))
    .flatMap((scale) => [`${RELEASE}/menu${scale}.pack`, `${RELEASE}/game${scale}.pack`]);
}

async function keepAll() {
  const wanted = [...FILES, ...await packs()];
  const cache = await caches.open(RELEASE);
  // What the page has kept already is not fetched a second time.
  for (const file of wanted) if (!await cache.match(file)) await cache.add(file);
}

async function dropOthers() {
  for (const name of await caches.keys()) if (name !== RELEASE) await caches.delete(name);
  await clients.claim();
}

// Players of music ask for a part of a file, and refuse the whole.
async function part(response, range) {
  const [, from, to] = /bytes=(\d+)-(\d*)/.exec(range);
  const bytes = await response.arrayBuffer();
  const end = to === '' ? bytes.byteLength : Math.min(Number(to) + 1, bytes.byteLength);
  const headers = new Headers(response.headers);
  headers.set('Content-Range', `bytes ${from}-${end - 1}/${bytes.byteLength}`);
  headers.set('Content-Length', end - from);
  return new Response(bytes.slice(from, end), { status: 206, headers });
}

async function answer(request) {
  const cache = await caches.open(RELEASE);
  const address = request.mode === 'navigate' ? './' : request.url;
  let response = await cache.match(address, { ignoreSearch: true, ignoreVary: true });
  if (!response) {
    response = await fetch(request.url);
    if (response.status === 200 && request.url.includes(RELEASE)) await cache.put(address, response.clone());
  }
  const range = request.headers.get('Range');
  return range && response.status === 200 ? part(response, range) : response;
}

addEventListener('install', (event) => event.waitUntil(keepAll()));
addEventListener('activate', (event) => event.waitUntil(dropOthers()));
addEventListener('fetch', (event) => {
  if (event.request.method === 'GET') event.respondWith(answer(event.request));
});
