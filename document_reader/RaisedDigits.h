// SPDX-License-Identifier: MIT
// RaisedDigits takes the text of a page from Qt Pdf and keeps raised digits (m², footnote marks) in their
// line and word: as their baseline differs, Qt Pdf often ends the line before them, after them or both.
// Thread: as Qt Pdf.  Owner: forEachPdfPage().
#pragma once

#include <QHash>
#include <QPdfDocument>
#include <QPdfSearchModel>
#include <QPdfSelection>
#include <QRectF>
#include <QString>

#include <vector>

class RaisedDigits {
public:
    explicit RaisedDigits(QPdfDocument &document)
        : m_document(document)
    {
        m_search.setDocument(&document);
    }

    QString textOfPage(int page);

private:
    /// A text object of the page that is raised above its neighbour on the left.
    struct Raised {
        QRectF place;
        bool isFollowed = false; ///< by an object in the same line
        bool hasSpaceBehind = false;
    };
    /// Places on the page, by the index of the digit in the text.
    using DigitPlaces = QHash<qsizetype, QRectF>;

    static std::vector<Raised> raisedObjects(const QList<QPolygonF> &bounds);
    DigitPlaces placesOfDigits(const QString &text, const QString &digits, int page);

    QPdfDocument &m_document;
    QPdfSearchModel m_search;
    int m_searchesLeft = 2'000; ///< a search takes as long as the text of a page: long books of formulas stay
                                ///< as they are
};
