// SPDX-License-Identifier: MIT
// PackageParts finds the parts of a package by what the package says of them: content types and relationships
// (ECMA-376, Open Packaging Conventions). What lies outside of the package is not to be found.
// Thread: any.
#pragma once

#include "documents/docx/ZipPackage.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QHash>

#include <optional>

/// The relationships of one part, or of the package itself, to other parts.
class Relationships {
public:
    /// source: the name of the part; empty for the package. A part without relationships has none.
    static Result<Relationships, DocumentError::Cause> read(
        const ZipPackage &package, const QByteArray &source);

    /// The name of the part that a relationship leads to, whether it is there or not. Absent for an unknown
    /// identifier and for a target outside of the package.
    [[nodiscard]] std::optional<QByteArray> partById(const QByteArray &identifier) const;

    /// The first one of a type, which is the last part of its URI: "styles", "officeDocument".
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

    /// Lower case, without parameters; empty where the package does not say.
    [[nodiscard]] QByteArray typeOf(const QByteArray &partName) const;

private:
    friend class ContentTypesReader;
    QHash<QByteArray, QByteArray> m_byExtension;
    QHash<QByteArray, QByteArray> m_byPart;
};

/// The name of the main part of a Word document; NotWordDocument where the package is of another kind.
Result<QByteArray, DocumentError::Cause> mainPartOf(const ZipPackage &package, const ContentTypes &types);
