// SPDX-License-Identifier: MIT
// The checks of what the counts of lines depend on: the font of plain text and the paper.
#include "doctor/Checks.h"
#include "platform/printing/PrintSettings.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/text_layout/FontCatalogue.h"
#include "platform/text_layout/FontRequest.h"
#include "platform/text_layout/LayoutEngine.h"
#include "preferences/QBYUserDefaultsController.h"
#include "text_statistics/CountingRules.h"

#include <QFile>

#include <algorithm>

namespace {

QString fontPackages()
{
    return Doctor::tr("Install the package fonts-urw-base35 or fonts-liberation.");
}

bool isLikeHelvetica(const QByteArray &fontFile)
{
    const FontCatalogue catalogue;
    return std::any_of(
        catalogue.fonts().begin(), catalogue.fonts().end(), [&fontFile](const CatalogueFont &font) {
            return font.path == fontFile
                && std::any_of(font.families.begin(), font.families.end(), hasDefaultAdvances);
        });
}

QString describe(PrinterState state)
{
    switch (state) {
    case PrinterState::Answering:
        return Doctor::tr("The default printer answers.");
    case PrinterState::NoPrinter:
        return Doctor::tr("There is no printer; Quillbay offers the usual papers.");
    case PrinterState::NotAnswering:
        break;
    }
    return Doctor::tr(
        "The default printer does not answer within a second; meanwhile Quillbay offers the usual "
        "papers.");
}

/// The column of the preferred margins on the preferred paper. Absent if they leave none, and without a known
/// paper.
std::optional<double> preferredColumn(const Paper &paper)
{
    constexpr double pointsPerInch = 72;
    return columnWidthOf({.paperName = paper.ppdName,
        .paperSize = paper.size,
        .leftMargin = pointsPerInch * QBYUserDefaultsController::leftMarginForPaperSizeLineMeasuring(),
        .rightMargin = pointsPerInch * QBYUserDefaultsController::rightMarginForPaperSizeLineMeasuring()});
}

} // namespace

Finding checkFonts()
{
    LayoutEngine engine;
    constexpr double columnWidth = 500; // points
    engine.countLines(AttributedString(QStringLiteral("Quillbay")), columnWidth);
    const QByteArrayList files = engine.fontFilesInUse();
    if (files.isEmpty())
        return limitedFinding(
            Doctor::tr("There is no usable font: lines are counted as if all letters had the same width."),
            fontPackages());
    const QString file = QFile::decodeName(files.first());
    if (!isLikeHelvetica(files.first()))
        return limitedFinding(Doctor::tr("Plain text is measured with %1, whose letters are not as wide as "
                                         "those of Helvetica: lines are counted otherwise than elsewhere.")
                                  .arg(file),
            fontPackages());
    return goodFinding(Doctor::tr("Plain text is measured with %1, which stands for Helvetica.").arg(file));
}

Finding checkPaper()
{
    const PrinterAnswer printer = PrintSettings::shared().printer();
    QString text = describe(printer.state);
    const std::optional<QString> name = QBYUserDefaultsController::paperNameForLineMeasuring();
    const auto paper = std::find_if(printer.papers.begin(), printer.papers.end(),
        [&name](const Paper &known) { return name && known.ppdName == name; });
    if (paper != printer.papers.end()) {
        const std::optional<double> column = preferredColumn(*paper);
        if (!column)
            return limitedFinding(
                text + u' ' + Doctor::tr("The margins leave no width for text on the paper %1.").arg(*name),
                Doctor::tr("Run \"quillbay preferences --reset left-margin right-margin\"."));
        text += u' '
            + Doctor::tr("Lines are counted in a column of %1 points on the paper %2.")
                  .arg(QString::number(*column, 'g', 6), *name);
    }
    if (printer.state == PrinterState::NotAnswering)
        return limitedFinding(text, Doctor::tr("Check the printer with \"lpstat -t\"."));
    if (printer.state == PrinterState::NoPrinter)
        return noteFinding(text);
    return goodFinding(text);
}
