// SPDX-License-Identifier: MIT
#include "platform/printing/BuiltInPapers.h"

#include <QFile>
#include <QFileInfo>

#include <paper.h>
#include <unicode/ulocdata.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace {

constexpr PaperMargins genericMargins{.top = 36, .left = 18, .bottom = 36, .right = 18};

Paper builtInPaper(const QString &ppdName, const QString &identifier, double width, double height)
{
    return {ppdName, identifier, false, QSizeF(width, height), genericMargins};
}

// libpaper reads its file to the end of the first word, so a device or a pipe would block for ever.
bool isReadableSettingsFile(const QString &path)
{
    constexpr qint64 maxSize = 65'536;
    const QFileInfo file(path);
    return file.isFile() && file.size() <= maxSize;
}

// The format of papersize(5): white space and comments from "#" to the line's end are ignored.
bool namesAPaper(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    while (!file.atEnd()) {
        if (!file.readLine().split('#').constFirst().trimmed().isEmpty())
            return true;
    }
    return false;
}

// The first that is set and not empty, as POSIX ranks them.
std::string_view firstVariable(std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        const char *value = std::getenv(name);
        if (value && *value)
            return value;
    }
    return {};
}

std::optional<Paper> configuredPaper()
{
    const bool isNamedByEnvironment = !firstVariable({"PAPERSIZE"}).empty();
    if (!isNamedByEnvironment) {
        const char *path = systempapersizefile();
        // For a file without a name, libpaper returns its own fallback, which nobody has configured.
        if (!path || !isReadableSettingsFile(QFile::decodeName(path))
            || !namesAPaper(QFile::decodeName(path)))
            return std::nullopt;
    }
    const std::unique_ptr<char, decltype(&std::free)> name(systempapername(), &std::free);
    const paper *configured = name ? paperinfo(name.get()) : nullptr;
    if (!configured)
        return std::nullopt;
    return builtInPaperOfSize(QSizeF(paperpswidth(configured), paperpsheight(configured)));
}

std::optional<Paper> localePaper()
{
    const std::string_view posixName = firstVariable({"LC_ALL", "LC_PAPER", "LANG"});
    // Charset and variant do not change the region.
    const std::string name(posixName.substr(0, posixName.find_first_of(".@")));
    // To ICU an empty name is the locale that the process started with.
    if (name.empty())
        return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    int32_t height = 0;
    int32_t width = 0;
    ulocdata_getPaperSize(name.c_str(), &height, &width, &status); // millimetres
    if (U_FAILURE(status))
        return std::nullopt;
    return builtInPaperOfSize(QSizeF(width, height) * pointsPerMillimetre);
}

} // namespace

const std::vector<Paper> &builtInPapers()
{
    // Names of the PPD format 4.3 in the spelling of CUPS, whole points as in its table; identifiers
    // of PWG 5101.1.
    // Never destroyed: a printer query may still use it while the process exits.
    static const auto &papers = *new std::vector<Paper>{
        builtInPaper(QStringLiteral("Letter"), QStringLiteral("na_letter_8.5x11in"), 612, 792),
        builtInPaper(QStringLiteral("Legal"), QStringLiteral("na_legal_8.5x14in"), 612, 1008),
        builtInPaper(QStringLiteral("Executive"), QStringLiteral("na_executive_7.25x10.5in"), 522, 756),
        builtInPaper(QStringLiteral("Statement"), QStringLiteral("na_invoice_5.5x8.5in"), 396, 612),
        builtInPaper(QStringLiteral("Tabloid"), QStringLiteral("na_ledger_11x17in"), 792, 1224),
        builtInPaper(QStringLiteral("A3"), QStringLiteral("iso_a3_297x420mm"), 842, 1191),
        builtInPaper(QStringLiteral("A4"), QStringLiteral("iso_a4_210x297mm"), 595, 842),
        builtInPaper(QStringLiteral("A5"), QStringLiteral("iso_a5_148x210mm"), 420, 595),
        builtInPaper(QStringLiteral("A6"), QStringLiteral("iso_a6_105x148mm"), 297, 420),
        builtInPaper(QStringLiteral("B5"), QStringLiteral("jis_b5_182x257mm"), 516, 729),
        builtInPaper(QStringLiteral("ISOB5"), QStringLiteral("iso_b5_176x250mm"), 499, 709),
        builtInPaper(QStringLiteral("Env10"), QStringLiteral("na_number-10_4.125x9.5in"), 297, 684),
        builtInPaper(QStringLiteral("EnvMonarch"), QStringLiteral("na_monarch_3.875x7.5in"), 279, 540),
        builtInPaper(QStringLiteral("EnvDL"), QStringLiteral("iso_dl_110x220mm"), 312, 624),
        builtInPaper(QStringLiteral("EnvC5"), QStringLiteral("iso_c5_162x229mm"), 459, 649),
        builtInPaper(QStringLiteral("EnvC6"), QStringLiteral("iso_c6_114x162mm"), 323, 459)};
    return papers;
}

std::optional<Paper> builtInPaperOfSize(QSizeF size)
{
    for (const Paper &paper : builtInPapers()) {
        if (isSamePaperSize(paper.size, size))
            return paper;
    }
    return std::nullopt;
}

Paper builtInDefaultPaper()
{
    if (const std::optional<Paper> paper = configuredPaper())
        return *paper;
    if (const std::optional<Paper> paper = localePaper())
        return *paper;
    return *builtInPaperOfSize(QSizeF(210, 297) * pointsPerMillimetre);
}
