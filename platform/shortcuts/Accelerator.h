// SPDX-License-Identifier: MIT
// Accelerators name keys as GTK does, such as "<Shift><Super>w"; these functions convert them, without GTK.
// Thread: any.
#pragma once

#include <QKeySequence>
#include <QString>

/// Of the first chord; empty for an empty sequence and for keys that GTK names otherwise than Qt.
QString acceleratorOf(const QKeySequence &keys);

/// Empty if the text is no accelerator with a key that Qt knows.
QKeySequence keysOfAccelerator(const QString &accelerator);
