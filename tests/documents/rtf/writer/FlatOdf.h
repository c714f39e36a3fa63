// SPDX-License-Identifier: MIT
// FlatOdf looks up the properties of pieces of text in a flat OpenDocument text.
// Thread: any.
#pragma once

#include <QHash>
#include <QString>

#include <vector>

class FlatOdf {
public:
    explicit FlatOdf(const QByteArray &document);

    /// A property, such as "font-size", of the span or of the paragraph that contains a piece of text; empty
    /// if the automatic styles do not set it.
    [[nodiscard]] QString ofSpan(const QString &piece, const char *property) const;
    [[nodiscard]] QString ofParagraph(const QString &piece, const char *property) const;
    /// A property of a paragraph in points; fails the test if it is not a length.
    [[nodiscard]] double points(const QString &piece, const char *property) const;

private:
    struct Piece {
        QString text;
        QString spanStyle;
        QString paragraphStyle;
    };
    [[nodiscard]] const Piece *pieceWith(const QString &text) const;

    QHash<QString, QHash<QString, QString>> m_styles; ///< properties without prefix, by style name
    std::vector<Piece> m_pieces;
};
