// SPDX-License-Identifier: MIT
// PdfReaderOrder is what PdfReader and its program, quillbay-pdf-reader, say to each other. Going there: the
// limits as arguments, and the file as sealed memory on standard input. Coming back: the text on standard
// output, in UTF-16 of the machine's byte order, and an exit status.
// Thread: any; values.
#pragma once

#include "documents/DocumentError.h"

#include <QByteArrayList>

#include <chrono>
#include <optional>
#include <span>

struct PdfReaderOrder {
    std::chrono::seconds processorTime{};
    std::chrono::seconds realTime{};
    qint64 memory = 0; ///< bytes, beyond what the program has when it starts
    qint64 length = 0; ///< UTF-16 code units of text

    bool operator==(const PdfReaderOrder &) const = default;
};

QByteArrayList argumentsOf(const PdfReaderOrder &order);
/// Absent unless these are all the arguments of an order, each 1 or more.
std::optional<PdfReaderOrder> orderFrom(std::span<char *const> arguments);

/// Of a program that was not given what an order is made of.
constexpr int wrongUsageStatus = 2;

/// 0 where there is no error.
int exitStatusFor(std::optional<DocumentError::Cause> error);
/// The error that an exit status tells; one that the program does not give is a crash's, by its file.
std::optional<DocumentError::Cause> errorOfExitStatus(int status);
