// SPDX-License-Identifier: MIT
// The source of a man page, in man(7), from a page of the manual.
// Thread: any.
#pragma once

#include "manual/ManualPage.h"

#include <QByteArray>

/// release: the version of the product and its date, as "0.1.0" and "2026-11-22".
struct ManualRelease {
    QByteArray version;
    QByteArray date;
};

QByteArray manText(const ManualPage &page, const ManualRelease &release);
