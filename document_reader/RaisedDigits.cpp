// SPDX-License-Identifier: MIT
#include "document_reader/RaisedDigits.h"

#include <algorithm>

namespace {

constexpr QStringView lineEnd(u"\r\n");
constexpr size_t maxObjects = 1'000; // on a page: every line is compared with each of them

// In heights of a raised digit.
constexpr double maxOverlap = 0.4;
constexpr double maxGapBefore = 0.5;
constexpr double maxGapBehind = 2.5; // a word space and more
constexpr double wordSpace = 0.35;
constexpr double minRise = 0.15;
constexpr double maxRise = 0.8; // of its lower edge above the upper edge of its neighbour

bool isDigit(QChar unit)
{
    return unit >= u'0' && unit <= u'9';
}

/// Whether the lower edge of one is above that of the other, but by less than a line. Upwards is negative.
bool isRaisedAbove(const QRectF &digit, const QRectF &neighbour)
{
    const double height = digit.height();
    return digit.bottom() < neighbour.bottom() - minRise * height
        && digit.bottom() > neighbour.top() - maxRise * height;
}

bool isGapWithin(double gap, double height, double maxGap)
{
    return gap > -maxOverlap * height && gap < maxGap * height;
}

struct LineEnds {
    std::vector<qsizetype> places; // of line ends with a digit before or after them
    QString digits; // each once
};

LineEnds lineEndsAtDigits(const QString &text)
{
    LineEnds result;
    const auto take = [&result](QChar unit) {
        if (!isDigit(unit))
            return false;
        if (!result.digits.contains(unit))
            result.digits.append(unit);
        return true;
    };
    for (qsizetype end = text.indexOf(lineEnd); end >= 0; end = text.indexOf(lineEnd, end + lineEnd.size())) {
        const bool isBehindDigit = end > 0 && take(text[end - 1]);
        const qsizetype next = end + lineEnd.size();
        const bool isBeforeDigit = next < text.size() && take(text[next]);
        if (isBehindDigit || isBeforeDigit)
            result.places.push_back(end);
    }
    return result;
}

} // namespace

std::vector<RaisedDigits::Raised> RaisedDigits::raisedObjects(const QList<QPolygonF> &bounds)
{
    std::vector<Raised> result;
    for (qsizetype i = 1; i < bounds.size() && result.size() < maxObjects; ++i) {
        const QRectF before = bounds[i - 1].boundingRect();
        const QRectF place = bounds[i].boundingRect();
        const double height = place.height();
        if (!isGapWithin(place.left() - before.right(), height, maxGapBefore)
            || !isRaisedAbove(place, before))
            continue;
        Raised raised{place};
        if (i + 1 < bounds.size()) {
            const QRectF behind = bounds[i + 1].boundingRect();
            const double gap = behind.left() - place.right();
            raised.isFollowed = isGapWithin(gap, height, maxGapBehind) && isRaisedAbove(place, behind);
            raised.hasSpaceBehind = gap > wordSpace * height;
        }
        result.push_back(raised);
    }
    return result;
}

RaisedDigits::DigitPlaces RaisedDigits::placesOfDigits(const QString &text, const QString &digits, int page)
{
    DigitPlaces places;
    for (const QChar digit : digits) {
        if (m_searchesLeft-- <= 0)
            break;
        m_search.setSearchString(QString(digit));
        const QList<QPdfLink> results = m_search.resultsOnPage(page);
        if (results.size() != text.count(digit))
            continue; // the results cannot be assigned to the digits of the text
        qsizetype index = -1;
        for (const QPdfLink &result : results) {
            index = text.indexOf(digit, index + 1);
            places.insert(index, result.rectangles().value(0));
        }
    }
    return places;
}

QString RaisedDigits::textOfPage(int page)
{
    const QPdfSelection selection = m_document.getAllText(page);
    QString text = selection.text(); // not const, so that it can be moved out
    const LineEnds ends = lineEndsAtDigits(text);
    if (ends.places.empty())
        return text;
    const std::vector<Raised> objects = raisedObjects(selection.bounds());
    if (objects.empty())
        return text;
    const DigitPlaces places = placesOfDigits(text, ends.digits, page);
    const auto raisedAt = [&](qsizetype index) -> const Raised * {
        const auto digit = places.constFind(index);
        const auto object = std::ranges::find_if(objects, [&](const Raised &raised) {
            return digit != places.cend() && raised.place.contains(digit->center());
        });
        return object == objects.end() ? nullptr : &*object;
    };
    QString result;
    qsizetype copied = 0;
    for (const qsizetype end : ends.places) {
        const qsizetype next = end + lineEnd.size();
        const Raised *behind = raisedAt(next);
        const Raised *before = raisedAt(end - 1);
        if (!behind && !(before && before->isFollowed))
            continue;
        result += QStringView(text).sliced(copied, end - copied);
        copied = next;
        if (!behind && before->hasSpaceBehind && next < text.size() && !text[next].isSpace())
            result += u' ';
    }
    result += QStringView(text).sliced(copied);
    return result;
}
