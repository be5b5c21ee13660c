"""Chromium and Firefox behind the same few calls: go, run, press, keys, new_page, kill."""
import atexit
import itertools
import json
import os
import re
import signal
import subprocess
import time
import urllib.request

import websocket

CHROMIUM = ['chromium', '--headless=new', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
            '--disable-background-networking', '--disable-component-update', '--disable-sync',
            '--remote-debugging-port=0', '--remote-allow-origins=*']
FIREFOX = ['firefox-esr', '--headless', '--no-remote', '--remote-debugging-port=0']


class Browser:
    """A browser process. Its profile outlives it, as a player's does."""

    path = ''  # of the socket, behind the address that the browser prints

    def __init__(self, command, announces, size):
        os.makedirs(self.profile, exist_ok=True)
        self.log = open(os.path.join(self.profile, 'log'), 'w+')
        self.process = subprocess.Popen(command, stdout=self.log, stderr=self.log, start_new_session=True)
        atexit.register(self.kill)
        self.numbers = itertools.count(1)
        self.socket = websocket.create_connection(self.wait_for(announces) + self.path, timeout=60,
                                                  suppress_origin=True)
        self.size = size

    def wait_for(self, announces):
        for _ in range(600):
            found = re.search(announces, open(self.log.name).read())
            if found:
                return found[1]
            time.sleep(0.1)
        raise RuntimeError('the browser does not start')

    def call(self, method, session=None, **params):
        number = next(self.numbers)
        self.socket.send(json.dumps({'id': number, 'method': method, 'params': params,
                                     **({'sessionId': session} if session else {})}))
        while True:
            answer = json.loads(self.socket.recv())
            if answer.get('id') == number:
                if 'error' in answer:
                    raise RuntimeError(f'{method}: {answer}')
                return answer['result']

    def kill(self):
        atexit.unregister(self.kill)
        os.killpg(self.process.pid, signal.SIGKILL)
        self.process.wait()


class Chromium(Browser):
    def __init__(self, profile, size=(800, 600), density=1, touch=False):
        self.profile = profile
        super().__init__([*CHROMIUM, f'--user-data-dir={profile}'], r'listening on (ws://\S+)', size)
        self.density, self.touch = density, touch
        self.new_page()

    def new_page(self):
        target = self.call('Target.createTarget', url='about:blank')['targetId']
        self.page = self.call('Target.attachToTarget', targetId=target, flatten=True)['sessionId']
        self.resize(*self.size)
        if self.touch:
            self.on('Emulation.setTouchEmulationEnabled', enabled=True)
        return self.page, target

    def resize(self, width, height):
        self.on('Emulation.setDeviceMetricsOverride', width=width, height=height, deviceScaleFactor=self.density,
                mobile=bool(self.touch))

    def on(self, method, **params):
        return self.call(method, session=self.page, **params)

    def go(self, address):
        self.on('Page.navigate', url=address)

    def run(self, script):
        result = self.on('Runtime.evaluate', expression=script, awaitPromise=True, returnByValue=True)
        if 'exceptionDetails' in result:
            raise RuntimeError(result['exceptionDetails'])
        return result['result'].get('value')

    def press(self, x, y):
        if self.touch:
            self.on('Input.dispatchTouchEvent', type='touchStart', touchPoints=[{'x': x, 'y': y}])
            self.on('Input.dispatchTouchEvent', type='touchEnd', touchPoints=[])
            return
        for kind in ('mouseMoved', 'mousePressed', 'mouseReleased'):
            self.on('Input.dispatchMouseEvent', type=kind, x=x, y=y, button='left', clickCount=1)

    def type(self, text):
        self.on('Input.insertText', text=text)

    def show(self, page):
        self.call('Page.bringToFront', session=page)

    def press_enter(self, modifiers=0):
        for kind in ('rawKeyDown', 'keyUp'):
            self.on('Input.dispatchKeyEvent', type=kind, key='Enter', code='Enter', windowsVirtualKeyCode=13,
                    modifiers=modifiers)

    def press_alt_enter(self):
        self.press_enter(modifiers=1)

    def save_downloads(self, folder):
        self.call('Browser.setDownloadBehavior', behavior='allow', downloadPath=folder)

    def choose_files(self, selector, files):
        field = self.on('Runtime.evaluate', expression=f'document.querySelector("{selector}")')['result']
        self.on('DOM.setFileInputFiles', files=files, objectId=field['objectId'])


class Firefox(Browser):
    path = '/session'

    def __init__(self, profile, size=(800, 600)):
        self.profile = profile
        command = [*FIREFOX, '--profile', profile, '--width', str(size[0]), '--height', str(size[1])]
        super().__init__(command, r'WebDriver BiDi listening on (ws://\S+)', size)
        self.call('session.new', capabilities={})
        self.new_page()

    def new_page(self):
        self.page = self.call('browsingContext.create', type='tab')['context']
        self.call('browsingContext.setViewport', context=self.page,
                  viewport={'width': self.size[0], 'height': self.size[1]})
        return self.page, self.page

    def go(self, address):
        self.call('browsingContext.navigate', context=self.page, url=address, wait='complete')

    def run(self, script):
        result = self.call('script.evaluate', expression=script, target={'context': self.page}, awaitPromise=True)
        if result['type'] == 'exception':
            raise RuntimeError(result['exceptionDetails'])
        return result['result'].get('value')

    def perform(self, kind, actions, **more):
        self.call('input.performActions', context=self.page,
                  actions=[{'type': kind, 'id': kind, 'actions': actions, **more}])

    def press(self, x, y):
        self.perform('pointer', [{'type': 'pointerMove', 'x': round(x), 'y': round(y)},
                                 {'type': 'pointerDown', 'button': 0}, {'type': 'pointerUp', 'button': 0}])

    def show(self, page):
        self.call('browsingContext.activate', context=page)

    def type(self, text):
        self.perform('key', [{'type': kind, 'value': letter} for letter in text for kind in ('keyDown', 'keyUp')])
