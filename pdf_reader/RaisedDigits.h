// SPDX-License-Identifier: MIT
// RaisedDigits takes the text of a page from Qt Pdf and keeps raised digits (m², footnote marks) in their
// line and word: Qt Pdf, seeing another baseline, often ends the line before them, behind them or both.
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
    /// A text object of the page that stands raised behind its neighbour on the left.
    struct Raised {
        QRectF place;
        bool isFollowed = false; ///< by something in the same line
        bool hasSpaceBehind = false;
    };
    /// On the page, by the digit's index in its text.
    using DigitPlaces = QHash<qsizetype, QRectF>;

    static std::vector<Raised> raisedObjects(const QList<QPolygonF> &bounds);
    DigitPlaces placesOfDigits(const QString &text, const QString &digits, int page);

    QPdfDocument &m_document;
    QPdfSearchModel m_search;
    int m_searchesLeft =
        2'000; // each takes as long as the text of a page: a book of formulas is left as it is
};
