// Starting and stopping the processes of the contract checks, every wait
// bounded. Everything listens on 127.0.0.1 only.
import { spawn } from 'node:child_process';
import { createServer } from 'node:net';

// Starts the simulator on a free port; resolves to {process, base}.
export function startDevice(devicePath) {
  return new Promise((resolve, reject) => {
    const child = spawn(devicePath, ['--port', '0', '--timeout', '5'], { stdio: ['ignore', 'pipe', 'inherit'] });
    let seen = '';
    const timer = setTimeout(() => reject(new Error('mw-device printed no address in 10 s')), 10000);
    child.stdout.on('data', (chunk) => {
      seen += chunk;
      const m = /mw-device: (http:\/\/127\.0\.0\.1:\d+)\//.exec(seen);
      if (m) {
        clearTimeout(timer);
        resolve({ process: child, base: m[1] });
      }
    });
    child.on('exit', (code) => reject(new Error(`mw-device exited (${code}) before it listened`)));
  });
}

// A port nobody listens on now.
export function freePort() {
  return new Promise((resolve, reject) => {
    const s = createServer();
    s.on('error', reject);
    s.listen(0, '127.0.0.1', () => {
      const { port } = s.address();
      s.close(() => resolve(port));
    });
  });
}

// Polls `url` until it answers (any status) or `seconds` pass.
export async function waitFor(url, seconds) {
  const deadline = Date.now() + seconds * 1000;
  while (Date.now() < deadline) {
    try {
      await fetch(url);
      return;
    } catch {
      await new Promise((r) => setTimeout(r, 250));
    }
  }
  throw new Error(`${url} did not answer within ${seconds} s`);
}

export function stop(child) {
  return new Promise((resolve) => {
    if (child.exitCode !== null || child.signalCode !== null) return resolve();
    const kill = setTimeout(() => child.kill('SIGKILL'), 5000);
    child.on('exit', () => {
      clearTimeout(kill);
      resolve();
    });
    child.kill('SIGTERM');
  });
}
