// What the player does with mouse, finger and keyboard, brought to the program.

// In the order of platform::Key; the last three are pressed with Control. Pasting is left to the browser,
// which then types what it has.
const KEYS = ['Backspace', 'Enter', 'Escape', 'ArrowLeft', 'ArrowRight', 'Home', 'End', 'Delete', 'a', 'c', 'x'];
const FIRST_WITH_CONTROL = KEYS.indexOf('a');
const ONCE = ['Enter', 'Escape']; // however long they are held
const REST = 16; // a pointer that has left counts as so far from the rim: it scrolls nothing
const TAP = 10; // CSS pixels that a finger may move in a tap
const NOTCH = 60; // CSS pixels of a wheel that count as one turn
const MARK = '\u200b'; // in the text field, so that a screen's keyboard has something to erase

const canvas = document.getElementById('game');
const keyboard = document.getElementById('keyboard');

export class Hands {
  last = [600, 300];
  turned = 0;

  // `after` is called with everything that reached the program.
  constructor(machine, screen, { pressed, after }) {
    this.machine = machine;
    this.screen = screen;
    this.pressed = pressed;
    this.after = after;
    const on = (target, name, handle, options) => target.addEventListener(name, (event) => handle.call(this, event), options);
    on(document, 'pointermove', this.move);
    on(canvas, 'pointerdown', this.down);
    on(document, 'pointerup', this.up);
    on(document, 'pointercancel', this.cancel);
    on(document.documentElement, 'pointerleave', this.leave);
    on(canvas, 'wheel', this.wheel, { passive: false });
    on(document, 'keydown', this.key);
    on(keyboard, 'input', this.type);
    on(keyboard, 'compositionend', this.type);
    for (const name of ['contextmenu', 'mousedown', 'touchstart', 'dragstart', 'selectstart']) {
      canvas.addEventListener(name, (event) => event.preventDefault(), { passive: false });
    }
    keyboard.value = MARK;
  }

  send(name, ...values) {
    this.machine.call[name](...values);
    this.after();
  }

  move(event) {
    if (event.target instanceof Element && event.target.closest('nav, dialog, section')) return this.leave(event);
    if (event.pointerType === 'touch' && event.pointerId !== this.finger) return;
    this.last = this.screen.pictured(event);
    // A second button while one is held comes as a move.
    const changed = event.pointerType === 'mouse' && event.button >= 0;
    if (changed && event.buttons & (1 << [0, 2, 1, 3, 4][event.button])) this.press(event);
    else if (changed) this.send('release', ...this.last);
    else this.send('pointer', ...this.last);
  }

  // A mouse presses at once. A finger points first, so that it can aim and slide the map at the rim; it
  // presses where it taps.
  down(event) {
    this.pressed();
    if (event.pointerType !== 'touch') keyboard.focus({ preventScroll: true });
    if (event.pointerType === 'touch' && !event.isPrimary) return;
    canvas.setPointerCapture(event.pointerId);
    this.last = this.screen.pictured(event);
    if (event.pointerType !== 'touch') return this.press(event);
    this.finger = event.pointerId;
    this.tap = event;
    this.send('pointer', ...this.last);
  }

  press(event) {
    this.send('press', ...this.last, event.shiftKey, event.ctrlKey || event.metaKey);
  }

  up(event) {
    if (event.pointerType !== 'touch') {
      if (event.target !== canvas) return;
      this.last = this.screen.pictured(event);
      return this.send('release', ...this.last);
    }
    if (event.pointerId !== this.finger) return;
    const far = Math.hypot(event.clientX - this.tap.clientX, event.clientY - this.tap.clientY) > TAP;
    if (!far) {
      const point = this.screen.pictured(this.tap);
      this.send('press', ...point, false, false);
      this.send('release', ...point);
    }
    this.cancel(event);
    // The screen's keyboard comes only from within a touch.
    if (this.machine.call.typing()) keyboard.focus();
    else keyboard.blur();
  }

  cancel(event) {
    this.finger = undefined;
    if (event.pointerType === 'touch') this.leave();
  }

  leave() {
    const rested = (value, size) => Math.max(REST, Math.min(size - 1 - REST, value));
    const point = [rested(this.last[0], 800), rested(this.last[1], 600)];
    if (point.join() === this.last.join()) return;
    this.last = point;
    this.send('pointer', ...point);
  }

  wheel(event) {
    event.preventDefault();
    this.turned += event.deltaMode === 0 ? event.deltaY : event.deltaY * NOTCH / 3;
    const steps = Math.trunc(this.turned / NOTCH);
    this.turned -= steps * NOTCH;
    if (steps !== 0) this.send('wheel', -steps);
  }

  key(event) {
    if (document.querySelector('dialog[open]')) return;
    const control = event.ctrlKey || event.metaKey;
    const number = KEYS.indexOf(event.key);
    if (number < 0 || event.altKey || event.isComposing || event.target instanceof HTMLButtonElement) return;
    if (number >= FIRST_WITH_CONTROL && !control) return;
    event.preventDefault();
    if (!event.repeat || !ONCE.includes(event.key)) this.send('key', number, event.shiftKey, control);
  }

  type(event) {
    if (event.isComposing) return;
    const typed = keyboard.value.replace(MARK, '');
    if (typed !== '') this.send('text', ...this.machine.hand(typed));
    else if (keyboard.value === '') this.send('key', KEYS.indexOf('Backspace'), false, false);
    keyboard.value = MARK;
  }
}
