// SPDX-License-Identifier: MIT
// ZipPackage reads the parts of a package, a ZIP archive in memory, by name. Finding a part by its purpose is
// left to PackageParts.
// Thread: one at a time.  Owner: readPackageDocument(). The bytes must outlive it.
#pragma once

#include "documents/DocumentError.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>

#include <functional>
#include <memory>
#include <optional>

struct zip;

/// How much may still be read; shared by a document and the documents nested in it.
struct ReadAllowance {
    qint64 bytes = 536'870'912; ///< uncompressed
    int nestedDocuments = 3; ///< levels
    int chunks = 5'000; ///< even short ones take time
};

class ZipPackage {
public:
    /// Fails as WrongKind if the bytes do not begin as an archive.
    static Result<ZipPackage, DocumentError::Cause> open(QByteArrayView bytes, ReadAllowance &allowance);

    /// name: of the part, without a leading slash, such as "word/document.xml". Ignores case.
    [[nodiscard]] bool contains(const QByteArray &name) const;

    /// Passes a part to a function in pieces of at most 64 KiB, until the function returns false. Returns the
    /// failure; absent on success. Fails as Damaged if the part is missing.
    using Consumer = std::function<bool(QByteArrayView piece)>;
    [[nodiscard]] std::optional<DocumentError::Cause> read(
        const QByteArray &name, const Consumer &consume) const;

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
    QHash<QByteArray, quint64> m_parts; // from normalized names to indices in the archive
    ReadAllowance *m_allowance;
};
