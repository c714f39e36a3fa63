#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""editor_in_gtk: as editor_in_qt.cpp, with GTK. Prints "missing" without the package gir1.2-gtk-3.0."""
import sys

try:
    import gi
    gi.require_version("Gtk", "3.0")
    gi.require_version("Gdk", "3.0")
except (ImportError, ValueError):
    print("missing", flush=True)
    sys.exit(1)
from gi.repository import Gdk, Gtk

Gdk.set_allowed_backends("wayland")


def select_and_copy(view, _event):
    view.emit("select-all", True)
    view.emit("copy-clipboard")
    return True


editor = Gtk.TextView()
editor.get_buffer().set_text("Four words of caf\u00e9")
editor.connect("focus-in-event", lambda *_: print("focused", flush=True))
editor.connect("focus-out-event", lambda *_: print("lost", flush=True))
editor.connect("key-press-event", select_and_copy)
window = Gtk.Window()
window.add(editor)
window.show_all()
Gtk.main()
