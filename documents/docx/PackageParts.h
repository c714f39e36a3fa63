// SPDX-License-Identifier: MIT
// PackageParts finds the parts of a package by content types and relationships (ECMA-376, Open Packaging
// Conventions). Parts outside of the package are never found; reading a part is left to ZipPackage.
// Thread: any; values.
#pragma once

#include "documents/package/ZipPackage.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QHash>

#include <optional>

/// The relationships of one part, or of the package itself, to other parts.
class Relationships {
public:
    /// Empty if the part has no relationships. source: the name of the part; empty for the package.
    static Result<Relationships, DocumentError::Cause> read(
        const ZipPackage &package, const QByteArray &source);

    /// The name of the target of a relationship; the part may be missing. Absent for an unknown identifier
    /// and for a target outside of the package.
    [[nodiscard]] std::optional<QByteArray> partById(const QByteArray &identifier) const;

    /// The target of the first relationship of a type. type: the last segment of its URI, such as "styles".
    [[nodiscard]] std::optional<QByteArray> partByType(const QByteArray &type) const;

private:
    friend class RelationshipsReader;
    QHash<QByteArray, QByteArray> m_byId;
    QHash<QByteArray, QByteArray> m_byType;
};

/// The MIME types of the parts.
class ContentTypes {
public:
    static Result<ContentTypes, DocumentError::Cause> read(const ZipPackage &package);

    /// Lower case, without parameters; empty if the package does not name it.
    [[nodiscard]] QByteArray typeOf(const QByteArray &partName) const;

private:
    friend class ContentTypesReader;
    QHash<QByteArray, QByteArray> m_byExtension;
    QHash<QByteArray, QByteArray> m_byPart;
};

/// The name of the main part of a Word document. Fails as WrongKind if the package is of another kind.
Result<QByteArray, DocumentError::Cause> mainPartOf(const ZipPackage &package, const ContentTypes &types);
