#!/usr/bin/env python3
"""An interactive octave-cli session in a pseudo-terminal, as a user has it:
a scene and a viewer are built at the prompt, and while the prompt waits,
input played into the window with xdotool (a click on a node, wheel turns)
selects the node and zooms. The session then reads the selection and the
canvas's scale back and prints them, with how live the host loop was while
the prompt waited. Needs an X display (run under xvfb-run) and xdotool;
exits 77 (skipped) without xdotool.

usage: live_prompt.py OCTAVE_PACKAGE_DIR [--screenshot FILE.png]
"""
import os
import pty
import re
import select
import shutil
import subprocess
import sys
import time

SKIP = 77
PROMPT = r"octave:\d+> "


class Session:
    """octave-cli on a pty: send lines, read until a pattern shows."""

    def __init__(self, env):
        pid, fd = pty.fork()
        if pid == 0:
            os.execvpe("octave-cli", ["octave-cli", "--norc", "--no-history", "--quiet", "--no-gui"], env)
        self.pid, self.fd, self.out = pid, fd, ""

    def read_until(self, pattern, timeout=60):
        end = time.time() + timeout
        while time.time() < end:
            m = re.search(pattern, self.out)
            if m:
                self.out = self.out[m.end():]
                return m
            ready, _, _ = select.select([self.fd], [], [], 0.1)
            if ready:
                try:
                    chunk = os.read(self.fd, 4096)
                except OSError:
                    break
                if not chunk:
                    break
                self.out += chunk.decode(errors="replace")
        raise RuntimeError("no %r from octave within %ss; it printed:\n%s" % (pattern, timeout, self.out))

    def run(self, line, timeout=60):
        """Types a line and waits for the next prompt."""
        os.write(self.fd, (line + "\n").encode())
        return self.read_until(PROMPT, timeout)

    def close(self):
        try:
            os.write(self.fd, b"exit\n")
            _, status = os.waitpid(self.pid, 0)
            return status
        except OSError:
            return None


def xdotool(*args):
    subprocess.run(["xdotool"] + [str(a) for a in args], check=True)


def screenshot(path):
    if shutil.which("import"):
        subprocess.run(["import", "-window", "root", path], check=True)
    elif shutil.which("xwd"):  # without ImageMagick
        subprocess.run("xwd -root -silent > %s.xwd" % path, shell=True, check=True)
        path += ".xwd"
    print("screenshot:", path)


def main():
    if len(sys.argv) < 2:
        print(__doc__)
        return 2
    package_dir = sys.argv[1]
    shot = sys.argv[sys.argv.index("--screenshot") + 1] if "--screenshot" in sys.argv else None
    if not shutil.which("xdotool"):
        print("xdotool is missing: skipped")
        return SKIP
    if not os.environ.get("DISPLAY"):
        print("no X display (run under xvfb-run): skipped")
        return SKIP
    env = dict(os.environ)
    env.pop("QT_QPA_PLATFORM", None)  # a real window on the X display
    env["TERM"] = "xterm"

    s = Session(env)
    try:
        s.read_until(PROMPT)
        # The window's drawing area at (40, 40), 400 by 300 pixels; the node
        # is (0, 0)-(120, 90) of the scene, shown at scale 1 from (-30, -30):
        # on the screen from (70, 70), give or take the window's frame.
        s.run("addpath('%s');" % package_dir)
        s.run("s = VOR2.Scene(); r = VOR2.RectNode([0 0 120 90]); r.Selectable = true; s.addNode(r);")
        s.run("v = VOR2.Viewer(s); v.showAt([40 40 400 300]); c = v.Canvas; c.translate(30, 30);")
        s.run("__vor2__('hookstats', 0);")
        time.sleep(1.0)  # the prompt waits; the loop runs from the hook

        xdotool("mousemove", 40 + 30 + 60, 40 + 30 + 45)
        time.sleep(0.3)
        xdotool("click", "1")
        time.sleep(0.5)
        for _ in range(3):
            xdotool("click", "4")  # wheel away from the user: zoom in
            time.sleep(0.2)
        time.sleep(1.0)
        if shot:
            screenshot(shot)

        s.run("h = __vor2__('hookstats');")
        os.write(s.fd, ("printf('RESULT selected=%d scale=%.6g calls=%d inside=%.3f outside=%.3f gap=%.3f\\n', "
                        "r.Selected, c.Scale, h.calls, h.inside, h.outside, h.longestGap);\n").encode())
        # The pty echoes the command line too; the pattern takes only the printed one.
        m = s.read_until(r"RESULT selected=(\d+) scale=([\d.e+-]+) calls=(\d+) inside=([\d.]+) "
                         r"outside=([\d.]+) gap=([\d.]+)\r?\n")
        selected, scale = int(m.group(1)), float(m.group(2))
        inside, outside = float(m.group(4)), float(m.group(5))
        print("selected after the click: %d" % selected)
        print("canvas scale after the wheel: %g" % scale)
        print("hook: %s calls, loop ran %.0f%% of the prompt's wait, longest gap %.0f ms"
              % (m.group(3), 100.0 * inside / max(inside + outside, 1e-9), 1000 * float(m.group(6))))
        ok = selected == 1 and scale > 1.0
        if not ok:
            print("FAILED: expected the node selected and the scale above 1")
        status = s.close()
        s = None
        if status != 0:
            print("FAILED: octave-cli ended with status %r" % status)
        return 0 if ok and status == 0 else 1
    finally:
        if s:
            s.close()


if __name__ == "__main__":
    sys.exit(main())
