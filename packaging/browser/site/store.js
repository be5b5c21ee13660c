// Saved games and progress, kept by the browser between visits.

const NAME = 'vellmoran';

// The database, or null where the browser keeps none for this page.
function openDatabase() {
  return new Promise((resolve) => {
    let request;
    try {
      request = indexedDB.open(NAME, 1);
    } catch {
      resolve(null);
      return;
    }
    request.onupgradeneeded = () => request.result.createObjectStore('files');
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => resolve(null);
    request.onblocked = () => resolve(null);
  });
}

const finished = (request) => new Promise((resolve, reject) => {
  request.onsuccess = () => resolve(request.result);
  request.onerror = () => reject(request.error);
});

export class Store {
  // The files by their path: those kept, and after a failure those that live only as long as the page.
  files = new Map();
  writing = Promise.resolve();

  async open() {
    this.database = await openDatabase();
    if (!this.database) return;
    const files = this.database.transaction('files').objectStore('files');
    const [names, contents] = await Promise.all([finished(files.getAllKeys()), finished(files.getAll())]);
    names.forEach((name, i) => this.files.set(name, contents[i]));
  }

  // Replaces a file, or takes it away where `bytes` is null: whole or not at all, also when the browser
  // is killed. Calls `failed` with the reason where that cannot be done.
  keep(name, bytes, failed) {
    if (bytes) this.files.set(name, bytes);
    else this.files.delete(name);
    if (!this.database) return;
    if (name.endsWith('.sav')) this.askToStay();
    this.writing = new Promise((resolve) => {
      const change = this.database.transaction('files', 'readwrite', { durability: 'strict' });
      const files = change.objectStore('files');
      if (bytes) files.put(bytes, name);
      else files.delete(name);
      change.oncomplete = resolve;
      change.onabort = () => {
        resolve();
        failed(name, change.error?.name === 'QuotaExceededError' ? 'the store of the browser is full'
          : 'the store of the browser refused it');
      };
      change.commit?.();
    });
  }

  // Without this a browser that runs out of room may drop what it keeps.
  askToStay() {
    if (!this.asked) navigator.storage?.persist?.();
    this.asked = true;
  }

  close() {
    this.database?.close();
  }
}
