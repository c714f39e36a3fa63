# SPDX-License-Identifier: MIT
"""Wayland compositors without a screen: how to start each, press a key in it and take a picture of it."""
import os
import shutil
import struct
import subprocess
import threading
import time
import zlib

from gi.repository import Gio, GLib

START_SECONDS = 60


def wait_until(condition, seconds=20):
    """The first true result of the condition; None after the time."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if result := condition():
            return result
        time.sleep(0.1)
    return None


def call(name, path, method, arguments):
    """A method of the session bus; None if it fails."""
    interface, member = method.rsplit(".", 1)
    try:
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        return bus.call_sync(name, path, interface, member, arguments, None, 0, 20000, None).unpack()
    except GLib.Error:
        return None


def write_picture(path, width, height, rows):
    """rows: bytes of red, green and blue."""
    def chunk(name, data):
        return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    pixels = zlib.compress(b"".join(b"\0" + row for row in rows))
    with open(path, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", pixels) + chunk(b"IEND", b""))


class Compositor:
    """Started in the environment of this process, which is a session bus and a folder of its own."""

    places_windows = True  # as a program wants it, and keeps them above others if it wants that

    def __init__(self, build, folder):
        self.build = build
        self.folder = folder
        self.report = os.path.join(folder, "environment")
        self.environment = {}
        self.process = None

    def start(self):
        """Returns whether it accepts programs; then environment has its displays."""
        with open(os.path.join(self.folder, "log"), "wb") as log:
            self.process = subprocess.Popen(self.command(), stdout=log, stderr=log, env=self.own_environment())
        values = wait_until(self.displays, START_SECONDS)
        self.environment = {**os.environ, **(values or {})}
        return bool(values)

    def stop(self):
        self.process.kill()
        self.process.wait()

    def own_environment(self):
        return dict(os.environ)

    def script(self):
        """A program for the compositor to start, which reports the displays."""
        path = os.path.join(self.folder, "report")
        with open(path, "w", encoding="utf-8") as file:
            file.write(f'#!/bin/sh\nenv >"{self.report}.new"\nmv "{self.report}.new" "{self.report}"\nexec sleep 36000\n')
        os.chmod(path, 0o755)
        return path

    def displays(self):
        try:
            with open(self.report, encoding="utf-8") as file:
                pairs = dict(line.rstrip("\n").split("=", 1) for line in file if "=" in line)
        except FileNotFoundError:
            return None
        names = ("DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY")
        return {name: pairs[name] for name in names if pairs.get(name)}

    def run(self, *words):
        return subprocess.run(words, env=self.environment, capture_output=True, text=True, check=False, timeout=60)


class KWin(Compositor):
    def command(self):
        # A copy: the program has a capability that containers do not grant.
        program = os.path.join(self.folder, "kwin_wayland")
        shutil.copyfile("/usr/bin/kwin_wayland", program)
        os.chmod(program, 0o755)
        return [program, "--virtual", "--xwayland", "--width", "1280", "--height", "800", "--socket", "kwin",
                self.script()]

    def own_environment(self):
        return {**os.environ, "KWIN_WAYLAND_NO_PERMISSION_CHECKS": "1", "KWIN_SCREENSHOT_NO_PERMISSION_CHECKS": "1"}

    def press_key(self):
        self.run(os.path.join(self.build, "tests", "fake_input"), "1200,100", "30")

    def take_picture(self, path):
        reading, writing = os.pipe()
        data = bytearray()

        def collect():
            while piece := os.read(reading, 1 << 20):
                data.extend(piece)
        collector = threading.Thread(target=collect)
        collector.start()
        descriptors = Gio.UnixFDList.new()
        descriptors.append(writing)
        os.close(writing)
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        reply, _ = bus.call_with_unix_fd_list_sync(
            "org.kde.KWin", "/org/kde/KWin/ScreenShot2", "org.kde.KWin.ScreenShot2", "CaptureWorkspace",
            GLib.Variant("(a{sv}h)", ({}, 0)), None, 0, 20000, descriptors, None)
        del descriptors
        collector.join(20)
        facts = reply.unpack()[0]

        def row(number):
            pixels = data[number * facts["stride"]:][:facts["width"] * 4]
            colours = bytearray(facts["width"] * 3)
            colours[0::3], colours[1::3], colours[2::3] = pixels[2::4], pixels[1::4], pixels[0::4]
            return bytes(colours)
        write_picture(path, facts["width"], facts["height"], [row(number) for number in range(facts["height"])])


class Gnome(Compositor):
    def command(self):
        return ["gnome-shell", "--headless", "--wayland", "--unsafe-mode", "--virtual-monitor", "1280x800"]

    def evaluate(self, script):
        answer = call("org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell.Eval", GLib.Variant("(s)", (script,)))
        return answer[1].strip('"') if answer and answer[0] else None

    def displays(self):
        names = ("DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY")
        values = [self.evaluate(f'imports.gi.GLib.getenv("{name}")') for name in names]
        # It starts with the overview, which takes the keys.
        is_starting = "Main.overview.hide(); Main.layoutManager._startingUp || Main.overview.visible"
        if not all(values) or self.evaluate(is_starting) != "false":
            return None
        return dict(zip(names, values))

    def start(self):
        if not super().start():
            return False
        # Windows get the focus only while there is a keyboard.
        self.evaluate(
            "const {Clutter} = imports.gi;"
            "global.keyboard = Clutter.get_default_backend().get_default_seat()"
            ".create_virtual_device(Clutter.InputDeviceType.KEYBOARD_DEVICE);"
            "global.keyboard.notify_keyval(Clutter.CURRENT_TIME, 0xffe1, 1);"
            "global.keyboard.notify_keyval(Clutter.CURRENT_TIME, 0xffe1, 0); 1")
        return True

    def press_key(self):
        self.evaluate(
            "const {Clutter} = imports.gi;"
            "global.keyboard.notify_keyval(Clutter.CURRENT_TIME, 97, 1);"
            "global.keyboard.notify_keyval(Clutter.CURRENT_TIME, 97, 0); 1")

    def take_picture(self, path):
        call("org.gnome.Shell.Screenshot", "/org/gnome/Shell/Screenshot", "org.gnome.Shell.Screenshot.Screenshot",
             GLib.Variant("(bbs)", (False, False, path)))


class Sway(Compositor):
    places_windows = False  # it tiles, but lets windows of one size float
    keyboard = None

    def command(self):
        configuration = os.path.join(self.folder, "configuration")
        with open(configuration, "w", encoding="utf-8") as file:
            # Xwayland starts with its first client.
            file.write(f"xwayland force\nexec {self.script()}\n")
        return ["sway", "--config", configuration]

    def own_environment(self):
        return {**os.environ, "WLR_BACKENDS": "headless", "WLR_LIBINPUT_NO_DEVICES": "1", "WLR_RENDERER": "pixman"}

    def start(self):
        if not super().start():
            return False
        # Windows get the focus only while there is a keyboard. This one sleeps.
        self.keyboard = subprocess.Popen(
            ["wtype", "-s", "36000000"], env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return True

    def stop(self):
        if self.keyboard:
            self.keyboard.kill()
            self.keyboard.wait()
        super().stop()

    def press_key(self):
        self.run("wtype", "a")

    def take_picture(self, path):
        self.run("grim", path)


COMPOSITORS = {"kwin": KWin, "gnome": Gnome, "sway": Sway}
