#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""check_compositors.py BUILD [NAME…]: see script/check-compositors. Prints a line for each fact; fails if one is false.

Each compositor runs in a process of its own, as a user without rights, with a session bus whose environment names
displays of an earlier session.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

from compositors import COMPOSITORS, call, wait_until
from gi.repository import GLib

NOBODY = 65534
PROVIDER = "com.quillbay.ServiceProvider"
STALE_DISPLAYS = {"DISPLAY": ":54321", "WAYLAND_DISPLAY": "ended"}


class Check:
    """The checks of one compositor."""

    def __init__(self, name, build, folder):
        self.name = name
        self.build = build
        self.folder = folder
        self.compositor = COMPOSITORS[name](build, folder)
        self.failures = 0

    def state(self, fact, is_true, detail=""):
        self.failures += not is_true
        print(f"{self.name}: {'yes' if is_true else 'NO '}  {fact}{'' if is_true else f' ({detail})'}", flush=True)

    def run(self):
        is_running = self.compositor.start()
        self.state("starts without a screen", is_running, "see its log")
        if is_running:
            self.check_empty()
            for editor in ("editor_in_gtk", "editor_in_qt"):
                self.check_editor(editor, "with Xwayland", {})
            self.check_editor("editor_in_gtk", "without Xwayland", {"DISPLAY": ""})
            self.check_editor("editor_in_gtk", "with a DISPLAY that has ended", {"DISPLAY": ":54321"})
        self.compositor.stop()
        return self.failures

    def select(self, variables, *words):
        """Runs "quillbay selection"; returns its exit status and what it printed."""
        environment = {**self.compositor.environment, **variables}
        command = [os.path.join(self.build, "bin", "quillbay"), "selection", *words]
        result = subprocess.run(command, env=environment, capture_output=True, text=True, check=False, timeout=60)
        return result.returncode, result.stderr.strip()

    def check_empty(self):
        for words, message in (((), "nothing is selected"), (("--clipboard",), "the clipboard is empty")):
            status, errors = self.select({}, *words)
            self.state(f"reports that {message}", status == 1 and message in errors.lower(), f"{status}, {errors}")

    def check_editor(self, editor, circumstances, variables):
        about = f"{editor}, {circumstances}"
        environment = {**self.compositor.environment, "NO_AT_BRIDGE": "1"}
        program = os.path.join(self.build, "tests", editor)
        with subprocess.Popen([program], env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as process:
            os.set_blocking(process.stdout.fileno(), False)
            has_focus = wait_until(lambda: b"focused" in (process.stdout.read() or b""))
            self.state(f"{about}: gets the focus", has_focus)
            time.sleep(0.5)  # a key that comes with the focus may be lost
            self.compositor.press_key()
            self.check_count(about, variables)
            process.kill()
        self.stop_provider()

    def check_count(self, about, variables):
        status, errors = wait_until(lambda: self.read(variables)) or self.select(variables)
        self.state(f"{about}: the selection is counted", status == 0, errors)
        time.sleep(1.5)  # the counts fade in
        self.state(f"{about}: the window stays open", self.provider() is not None, "the provider has ended")
        self.compositor.take_picture(os.path.join(self.folder, re.sub(r"\W+", "-", about) + ".png"))
        if not variables:
            self.check_window(about)
        status, errors = self.select(variables, "--clipboard")
        self.state(f"{about}: the clipboard is counted", status == 0, errors)

    def read(self, variables):
        result = self.select(variables)
        return result if result[0] == 0 else None

    def check_window(self, about):
        tree = self.compositor.run("xwininfo", "-root", "-tree").stdout
        found = re.search(r'(0x\w+) "Quillbay": \("quillbay-service-provider".*?(\d+)x(\d+)\S+\s+\+(\d+)\+(\d+)', tree)
        self.state(f"{about}: the window is an X11 window", found, tree)
        if not found:
            return
        width, height, x, y = map(int, found.groups()[1:])
        properties = self.compositor.run("xprop", "-id", found[1]).stdout
        self.state(f"{about}: it names the desktop file",
                   '_KDE_NET_WM_DESKTOP_FILE(UTF8_STRING) = "com.quillbay.Quillbay"' in properties, properties)
        if self.compositor.places_windows:
            self.state(f"{about}: it stays above others", "_NET_WM_STATE_ABOVE" in properties, properties)
            is_in_corner = x + width == 1280 and y < 100 and y + height <= 800
            self.state(f"{about}: it is in the corner at the top right", is_in_corner, f"{width}x{height}+{x}+{y}")

    @staticmethod
    def provider():
        """Its process; None if it is not running."""
        answer = call("org.freedesktop.DBus", "/org/freedesktop/DBus",
                      "org.freedesktop.DBus.GetConnectionUnixProcessID", GLib.Variant("(s)", (PROVIDER,)))
        return answer[0] if answer else None

    def stop_provider(self):
        if process := self.provider():
            os.kill(process, 15)
            wait_until(lambda: self.provider() is None)


def run_inside(name, build, folder):
    """In the session bus and the folder of the compositor."""
    return 1 if Check(name, build, folder).run() else 0


def run_apart(name, build, pictures):
    """Starts this program again, as a user without rights, with buses and a folder of its own."""
    with tempfile.TemporaryDirectory(prefix="quillbay-compositor-") as folder:
        environment = {name: os.environ[name] for name in ("PATH", "LANG") if name in os.environ}
        environment.update(STALE_DISPLAYS, HOME=folder, XDG_RUNTIME_DIR=folder, LIBGL_ALWAYS_SOFTWARE="1",
                           XDG_DATA_DIRS=f"{build}/share:/usr/local/share:/usr/share", XDG_SESSION_TYPE="wayland")
        command = [sys.executable, os.path.abspath(__file__), "--inside", name, build, folder]
        # gnome-shell needs a system bus; one without services will do.
        inner = ('export DBUS_SYSTEM_BUS_ADDRESS=$DBUS_SESSION_BUS_ADDRESS; exec dbus-run-session -- '
                 'env -u DISPLAY -u WAYLAND_DISPLAY "$@"')
        command = ["dbus-run-session", "--", "sh", "-c", inner, "sh", *command]
        if os.geteuid() == 0:
            os.chown(folder, NOBODY, NOBODY)
            command = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups", *command]
        status = subprocess.run(command, env=environment, check=False, stderr=subprocess.DEVNULL).returncode
        for file in os.listdir(folder):
            if file.endswith(".png") or file == "log":
                shutil.copyfile(os.path.join(folder, file), os.path.join(pictures, f"{name}-{file}"))
        return status


def main(words):
    if words[:1] == ["--inside"]:
        return run_inside(*words[1:])
    build = os.path.abspath(words[0])
    unknown = set(words[1:]) - set(COMPOSITORS)
    if unknown:
        print(f"check_compositors.py: {unknown.pop()}: unknown compositor; use {', '.join(COMPOSITORS)}", file=sys.stderr)
        return 2
    pictures = os.path.join(build, "compositors")
    os.makedirs(pictures, exist_ok=True)
    return max(run_apart(name, build, pictures) for name in words[1:] or COMPOSITORS)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
