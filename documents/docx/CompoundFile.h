// SPDX-License-Identifier: MIT
// CompoundFile recognizes the Word documents that are no packages: those of Word 97 to 2003, and encrypted
// ones. Thread: any.
#pragma once

#include "documents/DocumentError.h"

#include <QByteArrayView>

#include <optional>

/// Encrypted or OldFormat for a compound file (MS-CFB); absent for other bytes.
std::optional<DocumentError::Cause> causeOfCompoundFile(QByteArrayView bytes);
