// Taking saved games out of the browser and bringing them in, as the files that the desktop's game reads.

const ENDING = '.sav';
const LARGEST = 1 << 24; // bytes; a saved game has a hundredth of it

const shelf = document.getElementById('shelf');
const list = document.getElementById('list');
const outcome = document.getElementById('outcome');
const bring = document.getElementById('bring');

const nameOf = (path) => path.slice(path.lastIndexOf('/') + 1);

export class Shelf {
  // `folder` is where the program keeps its games.
  constructor(machine, store, folder, keep) {
    Object.assign(this, { machine, store, folder, keep });
    bring.addEventListener('change', () => this.bringIn([...bring.files]));
  }

  open() {
    outcome.textContent = '';
    this.refresh();
    shelf.showModal();
  }

  refresh() {
    const games = [...this.store.files.keys()].filter((path) => path.endsWith(ENDING)).sort();
    list.replaceChildren(...games.map((path) => this.row(path)));
    if (games.length === 0) list.textContent = 'There are none yet.';
  }

  row(path) {
    const button = document.createElement('button');
    button.textContent = 'Take out';
    button.addEventListener('click', () => this.takeOut(path));
    const row = document.createElement('li');
    row.append(nameOf(path).slice(0, -ENDING.length), button);
    return row;
  }

  takeOut(path) {
    const address = URL.createObjectURL(new Blob([this.store.files.get(path)], { type: 'application/octet-stream' }));
    Object.assign(document.createElement('a'), { href: address, download: nameOf(path) }).click();
    setTimeout(() => URL.revokeObjectURL(address), 60000);
  }

  // A file is checked as a load would check it. One of a name that is taken gets a number.
  async bringIn(files) {
    const told = [];
    for (const file of files) {
      const bytes = new Uint8Array(await file.slice(0, LARGEST).arrayBuffer());
      const fault = this.machine.line(this.machine.call.faultOfGame(...this.machine.hand(bytes)));
      told.push(fault ? `${file.name}: ${fault}` : `${this.put(file.name, bytes)} is in the list.`);
    }
    bring.value = '';
    outcome.textContent = told.join(' ');
    this.refresh();
  }

  put(name, bytes) {
    const stem = name.endsWith(ENDING) ? name.slice(0, -ENDING.length) : name;
    let free = stem;
    for (let number = 2; this.store.files.has(`${this.folder}/${free}${ENDING}`); ++number) free = `${stem} ${number}`;
    this.keep(`${this.folder}/${free}${ENDING}`, bytes);
    return free;
  }
}
