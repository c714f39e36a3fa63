// SPDX-License-Identifier: MIT
#include "platform/printing/PrinterDescription.h"

#include <QByteArray>
#include <QHash>

#include <algorithm>

namespace {

constexpr qsizetype maxChoices = 1000;

// *Keyword Option/Translation: "value"
struct Statement {
    QByteArrayView keyword;
    QByteArrayView option;
    QByteArrayView value;
};

std::optional<Statement> parseStatement(QByteArrayView line)
{
    const qsizetype colon = line.indexOf(':');
    if (!line.startsWith('*') || line.startsWith("*%") || colon < 0)
        return std::nullopt;
    const QByteArrayView head = line.first(colon).trimmed();
    QByteArrayView value = line.sliced(colon + 1).trimmed();
    if (value.startsWith('"'))
        value = value.sliced(1);
    if (value.endsWith('"'))
        value.chop(1);
    const char *const space =
        std::find_if(head.begin(), head.end(), [](char c) { return c == ' ' || c == '\t'; });
    const QByteArrayView keyword(head.begin(), space);
    const QByteArrayView option = QByteArrayView(space, head.end()).trimmed();
    const qsizetype slash = option.indexOf('/');
    return Statement{keyword, slash < 0 ? option : option.first(slash).trimmed(), value};
}

// Exactly this count of numbers, otherwise none.
std::vector<double> parseNumbers(QByteArrayView text, size_t count)
{
    std::vector<double> numbers;
    for (const QByteArray &word : text.toByteArray().simplified().split(' ')) {
        bool isNumber = false;
        numbers.push_back(word.toDouble(&isNumber));
        if (!isNumber || !std::isfinite(numbers.back()) || numbers.size() > count)
            return {};
    }
    return numbers.size() == count ? numbers : std::vector<double>();
}

struct Measures {
    std::vector<double> dimension; // width, height
    std::vector<double> imageableArea; // left, bottom, right, top, from the lower left corner
};

std::optional<Paper> makePaper(const QByteArray &name, const Measures &measures)
{
    if (measures.dimension.empty())
        return std::nullopt;
    Paper paper;
    paper.ppdName = QString::fromUtf8(name);
    paper.size = QSizeF(measures.dimension[0], measures.dimension[1]);
    if (!isPossiblePaperSize(paper.size))
        return std::nullopt;
    if (!measures.imageableArea.empty()) {
        const std::vector<double> &area = measures.imageableArea;
        const double width = paper.size.width();
        const double height = paper.size.height();
        paper.margins = {.top = std::clamp(height - area[3], 0.0, height),
            .left = std::clamp(area[0], 0.0, width),
            .bottom = std::clamp(area[1], 0.0, height),
            .right = std::clamp(width - area[2], 0.0, width)};
    }
    return paper;
}

} // namespace

PrinterDescription parsePrinterDescription(QByteArrayView file)
{
    QList<QByteArray> choices;
    QHash<QByteArray, Measures> measuresOfChoices;
    PrinterDescription description;
    while (!file.isEmpty()) {
        const char *const lineEnd =
            std::find_if(file.begin(), file.end(), [](char c) { return c == '\n' || c == '\r'; });
        const std::optional<Statement> statement = parseStatement(QByteArrayView(file.begin(), lineEnd));
        file = QByteArrayView(lineEnd == file.end() ? lineEnd : lineEnd + 1, file.end());
        if (!statement)
            continue;
        if (statement->keyword == "*DefaultPageSize" && statement->value != "Unknown")
            description.defaultPaperName = QString::fromUtf8(statement->value);
        if (statement->option.isEmpty() || measuresOfChoices.size() >= 3 * maxChoices)
            continue;
        const QByteArray option = statement->option.toByteArray();
        if (statement->keyword == "*PageSize" && choices.size() < maxChoices)
            choices.append(option);
        else if (statement->keyword == "*PaperDimension")
            measuresOfChoices[option].dimension = parseNumbers(statement->value, 2);
        else if (statement->keyword == "*ImageableArea")
            measuresOfChoices[option].imageableArea = parseNumbers(statement->value, 4);
    }
    for (const QByteArray &choice : choices) {
        if (std::optional<Paper> paper = makePaper(choice, measuresOfChoices.value(choice)))
            description.papers.push_back(*std::move(paper));
    }
    return description;
}
