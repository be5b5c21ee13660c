// Keeps the whole release in the browser, so that the game opens without a network.
//
// Files of a release have the release's name in their path and never change. A new release is fetched
// behind the old one and takes its place when no page of the old one is open any more.
const RELEASE = '@RELEASE@';
const FILES = ['./', 'vellmoran.webmanifest', 'icon.png',
  ...'@FILES@'.split(' ').map((name) => `${RELEASE}/${name}`)];

async function keepAll() {
  const cache = await caches.open(RELEASE);
  // What the page has kept already is not fetched a second time.
  for (const file of FILES) if (!await cache.match(file)) await cache.add(file);
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
