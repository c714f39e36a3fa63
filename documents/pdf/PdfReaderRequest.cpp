// SPDX-License-Identifier: MIT
#include "documents/pdf/PdfReaderRequest.h"

#include <array>
#include <charconv>
#include <string_view>

namespace {

constexpr int success = 0;
constexpr int causeBase = 10; // statuses below are those of runtimes and shells
constexpr int lastError = causeBase + static_cast<int>(DocumentError::lastCause);
constexpr int linkerFailure = 127; // the dynamic linker's, where a library is missing

constexpr size_t numberCount = 4;

std::optional<qint64> numberFrom(std::string_view word)
{
    qint64 number = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size() || number < 1)
        return std::nullopt;
    return number;
}

} // namespace

QByteArrayList argumentsOf(const PdfReaderRequest &request)
{
    return {QByteArray::number(static_cast<qint64>(request.processorTime.count())),
        QByteArray::number(static_cast<qint64>(request.realTime.count())), QByteArray::number(request.memory),
        QByteArray::number(request.length)};
}

std::optional<PdfReaderRequest> requestFrom(std::span<char *const> arguments)
{
    std::array<qint64, numberCount> numbers{};
    if (arguments.size() != numberCount)
        return std::nullopt;
    for (size_t i = 0; i < numberCount; ++i) {
        const std::optional<qint64> number = numberFrom(arguments[i]);
        if (!number)
            return std::nullopt;
        numbers[i] = *number;
    }
    return PdfReaderRequest{.processorTime = std::chrono::seconds(numbers[0]),
        .realTime = std::chrono::seconds(numbers[1]),
        .memory = numbers[2],
        .length = numbers[3]};
}

int exitStatusFor(std::optional<DocumentError::Cause> error)
{
    return error ? causeBase + static_cast<int>(*error) : success;
}

std::optional<DocumentError::Cause> errorOfExitStatus(int status)
{
    if (status == success)
        return std::nullopt;
    if (status == linkerFailure || status == wrongUsageStatus)
        return DocumentError::Cause::NoPdfReader;
    const bool isError = status > causeBase && status <= lastError;
    return isError ? static_cast<DocumentError::Cause>(status - causeBase) : DocumentError::Cause::Damaged;
}
