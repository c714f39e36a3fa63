// SPDX-License-Identifier: MIT
#include "documents/package/ZipPackage.h"

#include <zip.h>

#include <algorithm>
#include <array>

namespace {

constexpr qint64 maxParts = 20'000;
constexpr qsizetype pieceLength = 65'536;
// DEFLATE compresses a repeated byte 1:1032 and repetitive text up to 1:200. Parts up to uncheckedLength may
// have any ratio, because they do no harm.
constexpr qint64 maxRatio = 400;
constexpr qint64 uncheckedLength = 33'554'432;

DocumentError::Cause causeOf(int zipError)
{
    switch (zipError) {
    case ZIP_ER_NOPASSWD:
    case ZIP_ER_WRONGPASSWD:
    case ZIP_ER_ENCRNOTSUPP:
        return DocumentError::Cause::Encrypted;
    case ZIP_ER_MEMORY:
        return DocumentError::Cause::NotEnoughMemory;
    default:
        return DocumentError::Cause::Damaged;
    }
}

struct CloseFile {
    void operator()(zip_file_t *file) const { zip_fclose(file); }
};

QByteArray normalizeName(const QByteArray &name)
{
    QByteArray lower = name.toLower();
    lower.replace('\\', '/');
    return lower.startsWith('/') ? lower.sliced(1) : lower;
}

} // namespace

void ZipPackage::Discard::operator()(zip *archive) const
{
    zip_discard(archive);
}

Result<ZipPackage, DocumentError::Cause> ZipPackage::open(QByteArrayView bytes, ReadAllowance &allowance)
{
    if (!bytes.startsWith("PK"))
        return DocumentError::Cause::WrongKind;
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t *source =
        zip_source_buffer_create(bytes.data(), static_cast<zip_uint64_t>(bytes.size()), 0, &error);
    Archive archive(source ? zip_open_from_source(source, ZIP_RDONLY, &error) : nullptr);
    const int cause = zip_error_code_zip(&error);
    zip_error_fini(&error);
    if (!archive) {
        if (source)
            zip_source_free(source);
        return causeOf(cause);
    }
    ZipPackage package(std::move(archive), allowance);
    if (const std::optional<DocumentError::Cause> failure = package.listParts())
        return *failure;
    return package;
}

std::optional<DocumentError::Cause> ZipPackage::listParts()
{
    const zip_int64_t count = zip_get_num_entries(m_archive.get(), 0);
    if (count > maxParts)
        return DocumentError::Cause::TooLarge;
    for (zip_int64_t i = 0; i < count; ++i) {
        const auto place = static_cast<quint64>(i);
        const QByteArray name = normalizeName(zip_get_name(m_archive.get(), place, ZIP_FL_ENC_RAW));
        if (name.isEmpty() || name.endsWith('/'))
            continue;
        // Two parts of one name are ambiguous, and forbidden by OPC.
        if (m_parts.contains(name))
            return DocumentError::Cause::Damaged;
        m_parts.insert(name, place);
    }
    return std::nullopt;
}

bool ZipPackage::contains(const QByteArray &name) const
{
    return m_parts.contains(normalizeName(name));
}

std::optional<DocumentError::Cause> ZipPackage::read(const QByteArray &name, const Consumer &consume) const
{
    const auto part = m_parts.constFind(normalizeName(name));
    zip_stat_t description;
    if (part == m_parts.cend() || zip_stat_index(m_archive.get(), *part, 0, &description) != 0)
        return DocumentError::Cause::Damaged;
    const std::unique_ptr<zip_file_t, CloseFile> file(zip_fopen_index(m_archive.get(), *part, 0));
    if (!file)
        return causeOf(zip_error_code_zip(zip_get_error(m_archive.get())));

    std::array<char, pieceLength> piece;
    const auto compressed = static_cast<qint64>(description.comp_size);
    for (qint64 total = 0;;) {
        const zip_int64_t length = zip_fread(file.get(), piece.data(), piece.size());
        if (length < 0)
            return causeOf(zip_error_code_zip(zip_file_get_error(file.get())));
        if (length == 0)
            return std::nullopt;
        total += length;
        m_allowance->bytes -= length;
        if (m_allowance->bytes < 0 || (total > uncheckedLength && total / maxRatio > compressed))
            return DocumentError::Cause::TooLarge;
        if (!consume(QByteArrayView(piece.data(), static_cast<qsizetype>(length))))
            return std::nullopt;
    }
}

Result<QByteArray, DocumentError::Cause> ZipPackage::contents(const QByteArray &name) const
{
    QByteArray bytes;
    const std::optional<DocumentError::Cause> failure = read(name, [&bytes](QByteArrayView piece) {
        bytes.append(piece);
        return true;
    });
    if (failure)
        return *failure;
    return bytes;
}
