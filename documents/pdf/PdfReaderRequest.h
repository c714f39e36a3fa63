// SPDX-License-Identifier: MIT
// PdfReaderRequest is what PdfReader passes to its program, quillbay-pdf-reader: the limits as arguments, and
// the file as sealed memory on standard input. The program answers with the text on standard output, in
// UTF-16 of the machine's byte order, and with its exit status.
// Thread: any; values.
#pragma once

#include "documents/DocumentError.h"

#include <QByteArrayList>

#include <chrono>
#include <optional>
#include <span>

struct PdfReaderRequest {
    std::chrono::seconds processorTime{};
    std::chrono::seconds realTime{};
    qint64 memory = 0; ///< bytes, beyond what the program has when it starts
    qint64 length = 0; ///< UTF-16 code units of text

    bool operator==(const PdfReaderRequest &) const = default;
};

QByteArrayList argumentsOf(const PdfReaderRequest &request);
/// Absent unless these are exactly the arguments of a request, each 1 or more.
std::optional<PdfReaderRequest> requestFrom(std::span<char *const> arguments);

/// The exit status of a program that was started without a request.
constexpr int wrongUsageStatus = 2;

/// 0 for no error.
int exitStatusFor(std::optional<DocumentError::Cause> error);
/// The error that an exit status stands for. The program has crashed over the file (Damaged) where it ends
/// with a status that it never gives.
std::optional<DocumentError::Cause> errorOfExitStatus(int status);
