#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""follow_libreoffice.py FOLLOWER SAVES: has LibreOffice Writer save a watched document so often in each format and in
each way, and prints what FOLLOWER, the path of document_follower, told of it. Exit status 1 where a save was not told,
or something else was. Needs Xvfb, openbox, xdotool, libreoffice-writer and python3-uno."""
import contextlib
import os
import pathlib
import queue
import random
import statistics
import subprocess
import sys
import tempfile
import threading
import time

import uno
from com.sun.star.beans import PropertyValue

FILTERS = {"odt": "writer8", "fodt": "OpenDocument Text Flat XML", "docx": "MS Word 2007 XML", "rtf": "Rich Text Format",
           "txt": "Text"}
PIPE = f"quillbay-follow-libreoffice-{os.getpid()}"
MAX_DELAY = 10  # seconds from the request to save until the text must have been told
# Neither questions nor tips.
SETTINGS = """<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry">
<item oor:path="/org.openoffice.Office.Common/Save/Document"><prop oor:name="WarnAlienFormat" oor:op="fuse">
<value>false</value></prop></item>
<item oor:path="/org.openoffice.Office.Common/Misc"><prop oor:name="ShowTipOfTheDay" oor:op="fuse">
<value>false</value></prop></item>
<item oor:path="/org.openoffice.Office.Common/Misc"><prop oor:name="FirstRun" oor:op="fuse">
<value>false</value></prop></item>
</oor:items>
"""


@contextlib.contextmanager
def running(command, **options):
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)
    try:
        yield process
    finally:
        process.terminate()
        process.wait()


@contextlib.contextmanager
def display():
    with running(["Xvfb", "-displayfd", "1", "-screen", "0", "1280x800x24"], stdout=subprocess.PIPE) as server:
        environment = {**dict(PATH="/usr/bin:/bin", LANG="C.UTF-8", SAL_USE_VCLPLUGIN="gen"),
                       "DISPLAY": ":" + server.stdout.readline().decode().strip()}
        with running(["openbox"], env=environment, stdout=subprocess.DEVNULL):
            yield environment


class Follower:
    """What document_follower tells, a line at a time."""

    def __init__(self, process):
        self.lines = queue.Queue()
        threading.Thread(target=self.read, args=(process,), daemon=True).start()
        assert self.lines.get(timeout=20) == "watching"

    def read(self, process):
        for line in process.stdout:
            self.lines.put(line.decode().strip())

    def wait_for_text(self, word):
        """The other things that were told until then, and whether it was."""
        others = []
        end = time.monotonic() + MAX_DELAY
        while True:
            try:
                line = self.lines.get(timeout=max(0.0, end - time.monotonic()))
            except queue.Empty:
                return others, False
            if line == "text " + word:
                return others, True
            if not line.startswith("text "):
                others.append(line)


class Writer:
    """LibreOffice with a profile and a home of its own in the folder."""

    def __init__(self, folder, environment):
        self.environment = environment
        profile = folder / "profile"
        (profile / "user").mkdir(parents=True)
        (profile / "user" / "registrymodifications.xcu").write_text(SETTINGS)
        self.command = ["soffice", "--norestore", "--nologo", "--nodefault", "--nofirststartwizard",
                        f"--accept=pipe,name={PIPE};urp", f"-env:UserInstallation={profile.as_uri()}"]
        environment["HOME"] = str(folder)

    def connect(self):
        context = uno.getComponentContext()
        resolver = context.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", context)
        end = time.monotonic() + 120
        while True:
            try:
                remote = resolver.resolve(f"uno:pipe,name={PIPE};urp;StarOffice.ComponentContext")
                break
            except Exception:
                if time.monotonic() > end:
                    raise
                time.sleep(0.2)
        self.desktop = remote.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", remote)

    def open(self, url, **properties):
        arguments = tuple(PropertyValue(Name=name, Value=value) for name, value in properties.items())
        return self.desktop.loadComponentFromURL(url, "_blank", 0, arguments)

    def make(self, path, filter_name):
        document = self.open("private:factory/swriter", Hidden=True)
        document.Text.setString("first")
        document.storeToURL(path.as_uri(), (PropertyValue(Name="FilterName", Value=filter_name),))
        document.close(True)

    def type(self, title, *commands):
        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", title, "windowactivate", "--sync",
                        *commands], env=self.environment, check=True, stdout=subprocess.DEVNULL)


def save_by_call(document, path, word, writer):
    document.Text.insertString(document.Text.End, " " + word, False)
    document.store()


def save_by_key(document, path, word, writer):
    writer.type(path.name, "key", "ctrl+End", "type", " " + word)
    writer.type(path.name, "key", "ctrl+s")


def in_place(path):
    """Behind a symbolic link Writer does not put another file in the place of the document."""
    link = path.with_name("link-" + path.name)
    link.symlink_to(path)
    return link


def follow(writer, follower_program, path, saves, save, hidden):
    mistakes, delays = [], []
    document = writer.open(path.as_uri(), Hidden=hidden)
    with running([follower_program, str(path)], stdout=subprocess.PIPE) as process:
        follower = Follower(process)
        for number in range(1, saves + 1):
            word = f"save{number}"
            start = time.monotonic()
            save(document, path, word, writer)
            others, is_told = follower.wait_for_text(word)
            delays.append(time.monotonic() - start)
            mistakes += [f"save {number}: told {other}" for other in others]
            if not is_told:
                mistakes.append(f"save {number}: not told")
            time.sleep(random.uniform(0, 0.2))
        document.close(True)
        while not follower.lines.empty():
            line = follower.lines.get()
            if not line.startswith("text "):
                mistakes.append(f"after the last save: told {line}")
    return mistakes, delays


def main():
    follower_program, saves = sys.argv[1], int(sys.argv[2])
    ways = [("store()", save_by_call, True, None), ("Ctrl+S", save_by_key, False, None),
            ("store() behind a link", save_by_call, True, in_place)]
    mistakes = 0
    with contextlib.ExitStack() as stack:
        folder = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory()))
        writer = Writer(folder, stack.enter_context(display()))
        stack.enter_context(running(writer.command, env=writer.environment, stdout=subprocess.DEVNULL))
        writer.connect()
        for extension, filter_name in FILTERS.items():
            for name, save, hidden, prepare in ways:
                path = folder / f"{save.__name__}-{'link' if prepare else 'file'}.{extension}"
                writer.make(path, filter_name)
                path = prepare(path) if prepare else path
                found, delays = follow(writer, follower_program, path, saves, save, hidden)
                print(f".{extension} by {name}: {saves} saves, {len(found)} mistakes; told after "
                      f"{statistics.median(delays):.2f} s (median), {max(delays):.2f} s (longest)", flush=True)
                for mistake in found:
                    print("    " + mistake, flush=True)
                mistakes += len(found)
        with contextlib.suppress(Exception):  # the connection ends before the answer
            writer.desktop.terminate()
    return 1 if mistakes else 0


if __name__ == "__main__":
    sys.exit(main())
