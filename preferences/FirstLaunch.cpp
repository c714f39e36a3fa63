// SPDX-License-Identifier: MIT
#include "preferences/FirstLaunch.h"

#include "platform/logging/LogChannel.h"
#include "platform/printing/BuiltInPapers.h"
#include "preferences/PreferenceTable.h"

namespace {

double inches(double points)
{
    constexpr double pointsPerInch = 72;
    return points / pointsPerInch;
}

void addPaper(std::vector<DefaultsEntry> &entries, const Paper &paper)
{
    if (paper.ppdName)
        entries.push_back({keyOf(Preference::PaperName), *paper.ppdName});
    entries.push_back({keyOf(Preference::LeftMargin), inches(paper.margins.left)});
    entries.push_back({keyOf(Preference::RightMargin), inches(paper.margins.right)});
}

} // namespace

Result<Paper, PrintingStatus> systemDefaultPaper()
{
    return builtInDefaultPaper();
}

void writeFirstLaunchDefaults(UserDefaults &defaults, const DefaultPaperLookup &lookUpDefaultPaper)
{
    const QString hasAppBeenOpened = keyOf(Preference::HasAppBeenOpened);
    if (defaults.boolForKey(hasAppBeenOpened))
        return;
    std::vector<DefaultsEntry> entries = fixedFirstLaunchDefaults();
    if (const auto paper = lookUpDefaultPaper()) {
        addPaper(entries, paper.value());
    } else {
        LogChannel::standard().error(u"Error getting default paper name/margins!");
        LogChannel::standard().error(u"{}", {paper.error().code});
    }
    entries.push_back({hasAppBeenOpened, true});
    // Looked at again inside the transaction: another process may have launched meanwhile, and its user may
    // have changed a preference since.
    defaults.setObjectsUnless(hasAppBeenOpened, entries);
}
