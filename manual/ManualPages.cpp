// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

#include <array>

std::span<const ManualPage *const> manualPages()
{
    static const std::array pages{&quillbayPage(), &countPage(), &doctorPage(), &documentsPage(),
        &explainPage(), &extractPage(), &goalPage(), &historyPage(), &preferencesPage(), &selectionPage(),
        &statusPage(), &textPage(), &watchPage(), &deskPage(), &sayPage(), &countingServicePage(),
        &serviceProviderPage(), &documentReaderPage(), &clipboardKeeperPage()};
    return pages;
}

const ManualPage *pageOfCommand(QByteArrayView command)
{
    for (const ManualPage *const page : manualPages()) {
        if (page->command && page->command == command)
            return page;
    }
    return nullptr;
}
