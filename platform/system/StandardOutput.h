// SPDX-License-Identifier: MIT
// StandardOutput is where programs print what they were asked for. Its errors show when it is flushed.
// Thread: main.
#pragma once

#include <QByteArray>

/// Writes without flushing.
void print(const QByteArray &bytes);

/// Writes and flushes. Returns the exit status: 1 if standard output cannot be written.
int printText(const QByteArray &text);
