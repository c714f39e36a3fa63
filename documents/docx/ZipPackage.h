// SPDX-License-Identifier: MIT
// ZipPackage reads the parts of a package, a ZIP archive in memory, by their names. What a part is for,
// others know.
// Thread: one at a time.  Owner: whoever opens it; the bytes must outlive it.
#pragma once

#include "documents/docx/DocxReader.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

#include <functional>
#include <memory>
#include <optional>

struct zip;

/// How much may still be read: shared by a document and those within it.
struct ReadAllowance {
    qint64 bytes = 536'870'912; ///< uncompressed
    int nestedDocuments = 3; ///< levels
    int chunks = 5'000; ///< each takes time, however short it is
};

class ZipPackage {
public:
    /// Encrypted and old documents, which are no archives, are told apart by their beginnings.
    static Result<ZipPackage, DocumentError::Cause> open(QByteArrayView bytes, ReadAllowance &allowance);

    /// Part names are those of OPC without the leading slash, of any case: "word/document.xml".
    [[nodiscard]] bool contains(const QByteArray &name) const;

    /// Hands a part over piece by piece, none longer than 64 KiB, until take() returns false. Absent where
    /// the part was read to its end or to where take() stopped; a missing part is Damaged.
    using Take = std::function<bool(QByteArrayView piece)>;
    [[nodiscard]] std::optional<DocumentError::Cause> read(const QByteArray &name, const Take &take) const;

    [[nodiscard]] Result<QByteArray, DocumentError::Cause> contents(const QByteArray &name) const;

    [[nodiscard]] ReadAllowance &allowance() const { return *m_allowance; }

private:
    struct Discard {
        void operator()(zip *archive) const;
    };
    using Archive = std::unique_ptr<zip, Discard>;

    ZipPackage(Archive archive, ReadAllowance &allowance)
        : m_archive(std::move(archive))
        , m_allowance(&allowance)
    {
    }
    [[nodiscard]] std::optional<DocumentError::Cause> listParts();

    Archive m_archive;
    QHash<QByteArray, quint64> m_parts; // lower-case names to places in the archive
    ReadAllowance *m_allowance;
};
