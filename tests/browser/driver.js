// node driver.js MODULE PACKS FOLDER < script: vellmoran-driver as WebAssembly, with the answers and the
// files of the native one.
import fs from 'node:fs';
import path from 'node:path';
import { Machine } from '../../packaging/browser/site/machine.js';

const [module, packs, folder] = process.argv.slice(2);
const machine = new Machine();
const keep = (name, nameLength, bytes, length) => {
  const file = path.join(folder, path.basename(machine.text(name, nameLength)));
  if (bytes === 0) fs.rmSync(file, { force: true });
  else fs.writeFileSync(file, machine.bytes(bytes, length));
};
machine.start((await WebAssembly.instantiate(fs.readFileSync(module), machine.imports({ keep }))).instance);
for (const pack of ['menu1.pack', 'game1.pack']) {
  if (!machine.call.addPack(...machine.hand(fs.readFileSync(path.join(packs, pack))))) throw pack;
}
const fault = machine.line(machine.call.start());
if (fault) throw fault;
for (const line of fs.readFileSync(0, 'utf8').split('\n')) {
  const answer = machine.line(machine.call.run(...machine.hand(line)));
  if (answer) console.log(answer);
  if (line === 'quit') break;
}
