// Music and cues. Whatever is missing is silence.

const CUES = 4;
const CUT = 0.01; // seconds in which a cue that is cut off dies away: cut off hard, it would tick

export class Sound {
  constructor(folder, fetchKept) {
    this.folder = folder;
    this.fetchKept = fetchKept;
    this.ending = new Audio().canPlayType('audio/ogg; codecs=opus') ? 'opus' : 'mp3';
    this.cues = [];
  }

  get missing() {
    return !('AudioContext' in self);
  }

  // Fetches the cues; browsers let them be unpacked only after a press.
  async fetchCues() {
    this.packed = await Promise.all(Array.from({ length: CUES }, async (_, i) =>
      (await this.fetchKept(`sound${i + 1}.${this.ending}`)).arrayBuffer()));
    if (this.context) this.unpackCues();
  }
  async unpackCues() {
    const packed = this.packed;
    this.packed = null;
    await Promise.all(packed?.map(async (bytes, i) => {
      this.cues[i + 1] = await this.context.decodeAudioData(bytes);
    }) ?? []).catch(() => {});
  }

  // To be called at every press: a browser plays nothing before the first, and may fall silent again.
  wake() {
    if (this.missing) return;
    if (!this.context) {
      this.context = new AudioContext();
      if (this.packed) this.unpackCues();
    }
    if (this.context.state === 'suspended') this.context.resume();
    if (this.waiting) this.playTheme();
  }

  cue(number) {
    const sound = this.cues[number];
    if (!sound) return 0;
    const now = this.context.currentTime;
    this.loudness?.gain.setTargetAtTime(0, now, CUT / 3);
    this.sounding?.stop(now + CUT);
    this.loudness = new GainNode(this.context);
    this.sounding = new AudioBufferSourceNode(this.context, { buffer: sound });
    this.sounding.connect(this.loudness).connect(this.context.destination);
    this.sounding.start();
    return 1;
  }

  openTheme(number) {
    this.closeTheme();
    this.theme = new Audio(`${this.folder}/theme${number}.${this.ending}`);
    return 1;
  }
  playTheme() {
    this.wanted = true;
    this.waiting = false;
    this.theme?.play().catch((error) => { this.waiting = error.name === 'NotAllowedError'; });
    return this.theme ? 1 : 0;
  }
  closeTheme() {
    this.theme?.pause();
    this.theme?.removeAttribute('src');
    this.theme = null;
    this.wanted = this.waiting = false;
  }

  // The page is hidden, or seen again.
  sleep(asleep) {
    if (asleep) this.theme?.pause();
    else if (this.wanted && !this.theme.ended) this.playTheme();
    if (this.context) this.context[asleep ? 'suspend' : 'resume']();
  }
}
