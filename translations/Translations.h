// SPDX-License-Identifier: MIT
// Translations show the texts of a program in the user's language. They are part of the program; nothing is
// read before the first text is needed.
// Thread: main; the texts themselves on any thread.
#pragma once

/// Has tr() and QCoreApplication::translate() answer in the user's language. Needs the application object.
void installTranslations();

/// The same for the texts of Qt's dialogs and buttons, where Qt's own translations are installed.
void installQtTranslations();
