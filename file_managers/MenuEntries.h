// SPDX-License-Identifier: MIT
// MenuEntries makes the menu items of Quillbay for a file manager that loads modules; what they say, which
// files they are for and what they start is left to the action files in share/file-manager/actions. Thread:
// the file manager's main thread.
#pragma once

#include <gio/gio.h>

/// The functions of one file manager's interface that the items need. They differ in their names alone.
struct FileManagerInterface {
    /// The result belongs to the caller.
    GFile *(*location)(gpointer file);
    /// The MIME type; the result belongs to the caller, and is null where the file manager does not know it
    /// yet.
    char *(*mimeType)(gpointer file);
    /// Has a signal "activate". The result belongs to the caller. icon: a name in the icon theme.
    gpointer (*newItem)(const char *name, const char *label, const char *tip, const char *icon);
};

/// The items for a selection of files, in a list that belongs to the caller. Null if one of the files cannot
/// be counted, has no path on this machine, or if too many are selected.
GList *newMenuItems(const FileManagerInterface &interface, GList *files);
