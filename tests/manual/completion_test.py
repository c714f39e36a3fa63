#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""completion_test.py SHELL BIN SHARE: types commands into an interactive shell and presses Tab.

BIN has the programs, SHARE the completions. Every option in --help must be completed, and operands as their command
takes them. Exits with 77 if the shell is not installed.
"""

import os
import pty
import re
import select
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SHARE = sys.argv.pop()
BIN = sys.argv.pop()
SHELL = sys.argv.pop()
SHOW = r"{ printf '@@'; printf '<%s>' "
SETUP = {
    "bash": f"""PS1='%%'
. /usr/share/bash-completion/bash_completion
bind 'set bell-style none'
quillbay() {SHOW} "$@"; printf '@@\\n'; }}
quillbay-desk() {{ quillbay "$@"; }}
""",
    "zsh": f"""unsetopt beep zle_bracketed_paste; PS1='%%%%'
fpath=({SHARE}/zsh/site-functions $fpath)
autoload -Uz compinit; compinit -u -D
quillbay() {SHOW} "$@"; printf '@@\\n'; }}
quillbay-desk() {{ quillbay "$@"; }}
""",
    "fish": f"""function fish_prompt; echo -n '%%'; end; set fish_greeting; set -g fish_autosuggestion_enabled 0
function quillbay; printf '@@'; printf '<%s>' $argv; printf '@@\\n'; end
function quillbay-desk; quillbay $argv; end
""",
}
ARGUMENTS = {"bash": ["--norc", "--noprofile", "-i"], "zsh": ["-f", "-i"], "fish": ["--private", "-i"]}


def options_of(words):
    """The options that the help of a program or command lists."""
    text = subprocess.run([f"{BIN}/{words[0]}", *words[1:], "--help"], capture_output=True, text=True, check=True).stdout
    lines = text.partition("\nOptions:\n")[2].partition("\n\n")[0]
    return re.findall(r"^  (?:-\w, )?(--[a-z-]+)", lines, re.MULTILINE)


class Shell:
    """An interactive shell on a terminal of its own."""

    def __init__(self, folder):
        environment = {
            "HOME": folder, "PATH": f"{BIN}:/usr/bin:/bin", "TERM": "dumb" if SHELL != "fish" else "xterm",
            "LC_ALL": "C.UTF-8", "XDG_DATA_DIRS": f"{SHARE}:/usr/local/share:/usr/share"}
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.chdir(folder)
            os.execvpe(SHELL, [SHELL, *ARGUMENTS[SHELL]], environment)
        self.read = ""
        for line in SETUP[SHELL].splitlines():
            self.send(line + "\n")
        self.words_after("quillbay ready")

    def send(self, text):
        os.write(self.terminal, text.encode())

    def words_after(self, typed):
        """The arguments of the command when this was typed and Return is pressed."""
        self.send(typed + "\n")
        while not (match := re.search(r"@@<([^@\n]*)>@@\r?\n", self.read)):
            if not select.select([self.terminal], [], [], 30)[0]:
                raise AssertionError(f"{typed!r}: no answer but {self.read[-2000:]!r}")
            self.read += os.read(self.terminal, 65536).decode(errors="replace")
        self.read = self.read[match.end():]
        return match.group(1).split("><")

    def end(self):
        os.close(self.terminal)
        os.waitpid(self.process, 0)


class Completion(unittest.TestCase):
    """One shell for all, as starting one takes longer than the tests."""

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        (Path(cls.folder.name) / "harbour one.txt").touch()
        (Path(cls.folder.name) / "minutes.rtf").touch()
        cls.shell = Shell(cls.folder.name)

    @classmethod
    def tearDownClass(cls):
        cls.shell.end()
        cls.folder.cleanup()

    def test_every_option_in_the_help(self):
        commands = re.findall(
            r"^  (\w+) ", subprocess.run([f"{BIN}/quillbay", "help"], capture_output=True, text=True, check=True)
            .stdout.partition("\nCommands:\n")[2].partition("\n\n")[0], re.MULTILINE)
        self.assertIn("count", commands)
        for words in [["quillbay"], ["quillbay-desk"]] + [["quillbay", name] for name in commands if name != "help"]:
            options = options_of(words)
            self.assertIn("--help", options)
            for option in options:
                typed = " ".join(words + [option[:-1]]) + "\t"
                self.assertEqual(self.shell.words_after(typed), words[1:] + [option], typed)

    def test_operands(self):
        for typed, expected in {
            "quillbay pref\t": ["preferences"],
            "quillbay help expl\t": ["help", "explain"],
            "quillbay count harb\t": ["count", "harbour one.txt"],
            "quillbay watch --help minu\t": ["watch", "--help", "minutes.rtf"],
            "quillbay count --files-from=minu\t": ["count", "--files-from=minutes.rtf"],
            "quillbay count --files-from minu\t": ["count", "--files-from", "minutes.rtf"],
            "quillbay-desk minu\t": ["minutes.rtf"],
            "quillbay selection minu\t": ["selection", "minu"],
            "quillbay preferences show-li\t": ["preferences", "show-lines"],
            "quillbay preferences show-lines of\t": ["preferences", "show-lines", "off"],
            "quillbay preferences --reset show-lines pap\t": ["preferences", "--reset", "show-lines", "paper"],
        }.items():
            self.assertEqual(self.shell.words_after(typed), expected, typed)


if not shutil.which(SHELL) or (SHELL == "bash" and not Path("/usr/share/bash-completion/bash_completion").exists()):
    print(f"missing package: {SHELL}" + (", bash-completion" if SHELL == "bash" else ""))
    sys.exit(1 if os.environ.get("QUILLBAY_REQUIRE_PACKAGES") else 77)
unittest.main()
