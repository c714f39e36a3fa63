// SPDX-License-Identifier: MIT
#include "preferences/PrintSettingsExtension.h"

#include "platform/logging/LogChannel.h"
#include "platform/printing/PrintSettings.h"
#include "preferences/QBYUserDefaultsController.h"

#include <algorithm>

namespace {

std::optional<QBYPaper> paperNamed(const std::vector<Paper> &papers, const QString &name)
{
    const auto found =
        std::find_if(papers.begin(), papers.end(), [&](const Paper &paper) { return paper.ppdName == name; });
    return found == papers.end() ? std::nullopt : std::optional<QBYPaper>(*found);
}

} // namespace

std::vector<QBYPaper> QBYExtension::getAllPaperObjects(PrintSettings &printSettings)
{
    const std::vector<Paper> papers = printSettings.printer().papers;
    return {papers.begin(), papers.end()};
}

std::optional<QBYPaper> QBYExtension::paperObjectForPaperName(
    PrintSettings &printSettings, const QString &paperName)
{
    return paperNamed(printSettings.printer().papers, paperName);
}

std::optional<QBYPaper> QBYExtension::currentPaperObject(PrintSettings &printSettings)
{
    const auto preference = QBYUserDefaultsController::readPaperNameForLineMeasuring();
    std::optional<QString> name = preference ? preference.value() : std::nullopt;
    if (!name) {
        LogChannel::standard().error(u"Error retrieving current paper name. Defaulting to Letter.");
        name = paperNameWithoutChoice();
    }
    // A single answer for both lookups: between two, the printer could start to answer, with a list that has
    // the paper.
    const PrinterAnswer printer = printSettings.printer();
    if (std::optional<QBYPaper> paper = paperNamed(printer.papers, *name))
        return paper;
    LogChannel::standard().error(u"Error instantiating paper object...attempt to restore default.");
    if (!printer.defaultPaper || !printer.defaultPaper->ppdName)
        return std::nullopt;
    // A preference that could not be read may name an available paper, so it is not replaced.
    if (preference)
        QBYUserDefaultsController::setCurrentPaperNamePreference(*printer.defaultPaper->ppdName);
    return paperNamed(printer.papers, *printer.defaultPaper->ppdName);
}
