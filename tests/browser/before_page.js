// Loaded before the page's own script: time that passes only when a test lets it, the texts that were
// handed to the program, and a browser without what ?without= names.
for (const name of new URLSearchParams(location.search).getAll('without')) delete window[name];
self.handed = [];
const encode = TextEncoder.prototype.encode;
TextEncoder.prototype.encode = function (text) {
  self.handed.push(text);
  return encode.call(this, text);
};
let now = 0;
let last = 0;
const waiting = new Map();
performance.now = () => now;
window.setTimeout = (call, wait = 0) => {
  waiting.set(++last, { call, at: now + Math.max(0, wait) });
  return last;
};
window.clearTimeout = (number) => waiting.delete(number);
window.advance = (milliseconds) => {
  const end = now + milliseconds;
  for (;;) {
    const next = [...waiting].filter(([, timer]) => timer.at <= end).sort((a, b) => a[1].at - b[1].at)[0];
    if (!next) break;
    waiting.delete(next[0]);
    now = Math.max(now, next[1].at);
    next[1].call();
  }
  now = end;
};
