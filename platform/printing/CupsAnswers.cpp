// SPDX-License-Identifier: MIT
#include "platform/printing/CupsAnswers.h"

#include "platform/printing/BuiltInPapers.h"
#include "platform/printing/PrinterDescription.h"

#include <QByteArrayList>

#include <cups/cups.h>
#include <cups/pwg.h>

#include <algorithm>

namespace {

constexpr int maxPapers = 1000;

// A media keyword of the printer, with the size that the keyword itself contains.
struct Medium {
    QByteArray keyword;
    QSizeF size; // points
};

QByteArrayList strings(ipp_t *message, const char *name)
{
    QByteArrayList values;
    ipp_attribute_t *attribute = ippFindAttribute(message, name, IPP_TAG_ZERO);
    const int count = std::min(ippGetCount(attribute), maxPapers);
    for (int index = 0; index < count; ++index) {
        if (const char *value = ippGetString(attribute, index, nullptr))
            values.append(value);
    }
    return values;
}

QSizeF sizeInPoints(int width, int length)
{
    return QSizeF(width, length) * pointsPerMillimetre / 100;
}

std::vector<Medium> supportedMedia(ipp_t *attributes)
{
    std::vector<Medium> media;
    for (const QByteArray &keyword : strings(attributes, "media-supported")) {
        if (const pwg_media_t *medium = pwgMediaForPWG(keyword.constData()))
            media.push_back({keyword, sizeInPoints(medium->width, medium->length)});
    }
    return media;
}

// In hundredths of a millimetre; 0 if it is missing, or a range.
int length(ipp_t *collection, const char *name)
{
    return ippGetInteger(ippFindAttribute(collection, name, IPP_TAG_INTEGER), 0);
}

std::vector<Paper> papersOfDatabase(ipp_t *attributes)
{
    std::vector<Paper> papers;
    ipp_attribute_t *database = ippFindAttribute(attributes, "media-col-database", IPP_TAG_BEGIN_COLLECTION);
    const int count = std::min(ippGetCount(database), maxPapers);
    for (int index = 0; index < count; ++index) {
        ipp_t *entry = ippGetCollection(database, index);
        ipp_t *size = ippGetCollection(ippFindAttribute(entry, "media-size", IPP_TAG_BEGIN_COLLECTION), 0);
        Paper paper;
        paper.size = sizeInPoints(length(size, "x-dimension"), length(size, "y-dimension"));
        if (!isPossiblePaperSize(paper.size))
            continue;
        const auto margin = [entry](const char *name, double side) {
            return std::clamp(length(entry, name) * pointsPerMillimetre / 100, 0.0, side);
        };
        paper.margins = {.top = margin("media-top-margin", paper.size.height()),
            .left = margin("media-left-margin", paper.size.width()),
            .bottom = margin("media-bottom-margin", paper.size.height()),
            .right = margin("media-right-margin", paper.size.width())};
        papers.push_back(paper);
    }
    return papers;
}

void identify(Paper &paper, const std::vector<Medium> &media)
{
    const auto medium = std::find_if(media.begin(), media.end(),
        [&](const Medium &other) { return isSamePaperSize(other.size, paper.size); });
    if (medium != media.end()) {
        paper.identifier = QString::fromUtf8(medium->keyword);
        paper.isCustom = medium->keyword.startsWith("custom_");
    }
    if (const std::optional<Paper> known = builtInPaperOfSize(paper.size)) {
        paper.size = known->size;
        if (!paper.ppdName)
            paper.ppdName = known->ppdName;
    }
}

// Finds the paper for one word of a "media" option: a name of a printer description, a keyword of the
// printer, or an older keyword such as "iso-a4".
std::optional<Paper> findPaper(const std::vector<Paper> &papers, const QByteArray &word)
{
    const QString name = QString::fromUtf8(word);
    for (const Paper &paper : papers) {
        if (paper.identifier == name
            || (paper.ppdName && paper.ppdName->compare(name, Qt::CaseInsensitive) == 0))
            return paper;
    }
    const pwg_media_t *medium = pwgMediaForPWG(word.constData());
    if (!medium)
        medium = pwgMediaForLegacy(word.constData());
    if (!medium)
        medium = pwgMediaForPPD(word.constData());
    if (!medium)
        return std::nullopt;
    const auto found = std::find_if(papers.begin(), papers.end(),
        [size = sizeInPoints(medium->width, medium->length)](
            const Paper &paper) { return isSamePaperSize(paper.size, size); });
    return found == papers.end() ? std::nullopt : std::optional(*found);
}

std::optional<Paper> defaultPaper(const std::vector<Paper> &papers, const CupsAnswers &answers,
    const std::optional<QString> &describedDefault)
{
    // "media" may contain tray and type too, as in "A4,Upper". In CUPS, PageSize takes precedence.
    QByteArrayList words{answers.pageSizeOption};
    words += answers.mediaOption.split(',');
    if (describedDefault)
        words += describedDefault->toUtf8();
    words += strings(answers.attributes, "media-default");
    for (const QByteArray &word : words) {
        if (std::optional<Paper> paper = findPaper(papers, word))
            return paper;
    }
    return std::nullopt;
}

double pageScale(const QByteArray &scalingOption)
{
    constexpr double maxScale = 1000;
    bool isNumber = false;
    const double scale = scalingOption.toDouble(&isNumber);
    return isNumber && scale > 0 && scale <= maxScale ? scale : 100;
}

} // namespace

Printer parsePrinter(const CupsAnswers &answers)
{
    PrinterDescription description = parsePrinterDescription(answers.descriptionFile);
    Printer printer;
    printer.papers =
        description.papers.empty() ? papersOfDatabase(answers.attributes) : std::move(description.papers);
    const std::vector<Medium> media = supportedMedia(answers.attributes);
    for (Paper &paper : printer.papers)
        identify(paper, media);
    printer.defaultPaper = defaultPaper(printer.papers, answers, description.defaultPaperName);
    printer.pageScale = pageScale(answers.scalingOption);
    return printer;
}
