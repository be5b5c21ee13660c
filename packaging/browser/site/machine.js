// The WebAssembly module: its memory, and the few system calls that its C library makes.

const encoder = new TextEncoder();
const decoder = new TextDecoder();

export class Machine {
  // What the module imports; `page` holds the functions of host.h.
  imports(page) {
    return {
      page,
      wasi_snapshot_preview1: {
        // Standard output and standard error go to the console.
        fd_write: (file, parts, count, written) => {
          const view = new DataView(this.call.memory.buffer);
          let line = '';
          let total = 0;
          for (let i = 0; i < count; ++i) {
            const length = view.getUint32(parts + 8 * i + 4, true);
            line += this.text(view.getUint32(parts + 8 * i, true), length);
            total += length;
          }
          console.warn(line);
          view.setUint32(written, total, true);
          return 0;
        },
        fd_close: () => 0,
        fd_seek: () => 0,
        clock_time_get: (clock, precision, into) => {
          const now = BigInt(Math.round(performance.now() * 1e6));
          new DataView(this.call.memory.buffer).setBigUint64(into, now, true);
          return 0;
        },
      },
    };
  }

  start(instance) {
    this.call = instance.exports;
    this.call._initialize();
  }

  // A copy of bytes in the module's memory.
  bytes(address, length) {
    return new Uint8Array(this.call.memory.buffer).slice(address, address + length);
  }
  text(address, length) {
    return decoder.decode(this.bytes(address, length));
  }
  // Text that ends with a zero byte.
  line(address) {
    const memory = new Uint8Array(this.call.memory.buffer);
    return this.text(address, memory.indexOf(0, address) - address);
  }

  // Hands text or bytes over: the two arguments, address and length, of the function that takes them.
  hand(content) {
    const bytes = typeof content === 'string' ? encoder.encode(content) : content;
    const address = this.call.room(Math.max(1, bytes.length));
    new Uint8Array(this.call.memory.buffer).set(bytes, address);
    return [address, bytes.length];
  }
}
