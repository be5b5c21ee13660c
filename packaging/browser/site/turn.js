// One page at a time plays: two would write over each other's progress.

const NAME = 'vellmoran';
const PATIENCE = 3000; // milliseconds for the other page to put its city away

const channel = 'BroadcastChannel' in self ? new BroadcastChannel(NAME) : null;

export class Turn {
  // `leave` puts the city away when another page takes over; it may take its time.
  constructor(leave) {
    this.leave = leave;
    if (channel) channel.onmessage = () => this.giveUp();
  }

  // Whether this page may play. Where the browser has no locks it may.
  take(options = { ifAvailable: true }) {
    if (!navigator.locks) return Promise.resolve(true);
    return new Promise((resolve) => {
      navigator.locks.request(NAME, options, (lock) => {
        resolve(lock !== null);
        return lock && new Promise((release) => { this.release = release; });
      }).catch(() => {
        resolve(false);
        if (this.release) this.giveUp();
      });
    });
  }

  // Asks the page that plays to leave, and takes its place; at once where it does not answer.
  async takeOver() {
    channel?.postMessage('leave');
    return await this.take({ signal: AbortSignal.timeout(PATIENCE) }) || this.take({ steal: true });
  }

  async giveUp() {
    const release = this.release;
    if (!release) return;
    this.release = null;
    await this.leave();
    release();
  }
}
