// SPDX-License-Identifier: MIT
#include "preferences/FirstLaunch.h"

#include "platform/logging/LogChannel.h"
#include "platform/printing/PrintSettings.h"
#include "preferences/PreferenceTable.h"
#include "preferences/QBYPaper.h"

#include <cerrno>

namespace {

void addPaper(std::vector<DefaultsEntry> &entries, const QBYPaper &paper)
{
    if (paper.paperName())
        entries.push_back({keyOf(Preference::PaperName), *paper.paperName()});
    entries.push_back({keyOf(Preference::LeftMargin), paper.leftMarginInInches()});
    entries.push_back({keyOf(Preference::RightMargin), paper.rightMarginInInches()});
}

} // namespace

Result<Paper, PrintingStatus> systemDefaultPaper()
{
    if (const std::optional<Paper> paper = PrintSettings::shared().printer().defaultPaper)
        return *paper;
    return PrintingStatus{ETIMEDOUT};
}

void writeFirstLaunchDefaults(UserDefaults &defaults, const DefaultPaperLookup &lookUpDefaultPaper)
{
    const QString hasAppBeenOpened = keyOf(Preference::HasAppBeenOpened);
    if (defaults.boolForKey(hasAppBeenOpened))
        return;
    std::vector<DefaultsEntry> entries = fixedFirstLaunchDefaults();
    if (const auto paper = lookUpDefaultPaper()) {
        addPaper(entries, QBYPaper(paper.value()));
    } else {
        LogChannel::standard().error(u"Error getting default paper name/margins!");
        LogChannel::standard().error(u"{}", {paper.error().code});
    }
    // Without the key of the step itself, which is still to be done.
    std::vector<DefaultsEntry> inMemory = entries;
    entries.push_back({hasAppBeenOpened, true});
    // Checked again inside the transaction: another process may have written the defaults meanwhile, and the
    // user may have changed a preference since.
    if (defaults.setObjectsUnless(hasAppBeenOpened, entries))
        inMemory.clear();
    defaults.setFallbackValues(std::move(inMemory));
}
