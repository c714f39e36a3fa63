// SPDX-License-Identifier: MIT
// From the kind and the bytes of a document to its text: the one place that knows which reader is for which
// kind.
// Thread: any.
#pragma once

#include "counting_service/protocol/WorkerMessages.h"
#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArrayView>

Result<AttributedString, DocumentError> readDocument(PayloadKind kind, QByteArrayView bytes);
