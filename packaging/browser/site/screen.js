// The picture on the page: its place and size, and what the program shows on it.

const WIDTH = 800;
const HEIGHT = 600;
const KEYS_ROOM = 44; // CSS pixels that the row of keys needs beside the picture

const canvas = document.getElementById('game');
const keys = document.getElementById('keys');
const context = canvas.getContext('2d', { alpha: false });

// Pictures of twice the size are worth their transfer where the picture is enlarged by more than this.
const ENLARGED = 1.25;

export const chosenScale = () =>
  (Math.min(innerWidth / WIDTH, innerHeight / HEIGHT) * devicePixelRatio > ENLARGED ? 2 : 1);

export class Screen {
  constructor(scale) {
    canvas.width = WIDTH * scale;
    canvas.height = HEIGHT * scale;
    this.arrange();
    addEventListener('resize', () => this.arrange());
    matchMedia(`(resolution: ${devicePixelRatio}dppx)`).addEventListener('change', () => this.arrange());
  }

  // Whole factors where they fill nine tenths of the height, else smoothly; on whole pixels of the screen.
  // The keys of the page stand beside the picture where there is room, else below it, and never upon it.
  arrange() {
    const room = { width: Math.round(innerWidth * devicePixelRatio), height: Math.round(innerHeight * devicePixelRatio) };
    let size = this.fit(room);
    const beside = (room.width - size.width) / 2 >= 2 * KEYS_ROOM * devicePixelRatio;
    if (!beside && !document.fullscreenElement) {
      room.height -= KEYS_ROOM * devicePixelRatio;
      size = this.fit(room);
    }
    const left = Math.floor((room.width - size.width) / 2);
    const top = Math.floor((room.height - size.height) / 2);
    canvas.classList.toggle('whole', size.width % canvas.width === 0);
    const css = (pixels) => `${pixels / devicePixelRatio}px`;
    Object.assign(canvas.style, { left: css(left), top: css(top), width: css(size.width), height: css(size.height) });
    this.place = canvas.getBoundingClientRect();
    keys.classList.toggle('beside', beside);
    keys.style.maxWidth = beside ? `${this.place.left - 16}px` : '';
  }

  fit(room) {
    const fits = Math.min(room.width / canvas.width, room.height / canvas.height);
    const whole = Math.floor(fits);
    const factor = whole * canvas.height >= 0.9 * room.height ? whole : fits;
    return { width: Math.round(canvas.width * factor), height: Math.round(canvas.height * factor) };
  }

  // Shows the pixels at `address` of the module's memory.
  show(memory, address, x, y, width, height) {
    const pixels = new Uint8ClampedArray(memory.buffer, address, width * height * 4);
    context.putImageData(new ImageData(pixels, width), x, y);
  }

  // The pixel of the layout at a point of the page; beyond the picture the nearest one of its rim.
  pictured(event) {
    const { left, top, width, height } = this.place;
    const clamp = (value, last) => Math.max(0, Math.min(last, Math.floor(value)));
    return [clamp((event.clientX - left) * WIDTH / width, WIDTH - 1),
      clamp((event.clientY - top) * HEIGHT / height, HEIGHT - 1)];
  }
}
