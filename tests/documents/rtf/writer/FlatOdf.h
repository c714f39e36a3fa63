// SPDX-License-Identifier: MIT
// FlatOdf looks up what a flat OpenDocument text says of pieces of its text.
// Thread: any.
#pragma once

#include <QHash>
#include <QString>

#include <vector>

class FlatOdf {
public:
    explicit FlatOdf(const QByteArray &document);

    /// A property of the span, or of the paragraph, that holds a piece of text: "font-size"; empty where the
    /// document's automatic styles say nothing of it.
    [[nodiscard]] QString ofSpan(const QString &piece, const char *property) const;
    [[nodiscard]] QString ofParagraph(const QString &piece, const char *property) const;
    /// In points, of a paragraph; fails the test where it is no length.
    [[nodiscard]] double points(const QString &piece, const char *property) const;

private:
    struct Piece {
        QString text;
        QString spanStyle;
        QString paragraphStyle;
    };
    [[nodiscard]] const Piece *pieceWith(const QString &text) const;

    QHash<QString, QHash<QString, QString>> m_styles; ///< properties without prefix, by the name of a style
    std::vector<Piece> m_pieces;
};
