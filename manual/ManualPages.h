// SPDX-License-Identifier: MIT
// The pages of all programs, in the order in which they are listed.
// Thread: any.
#pragma once

#include "manual/ManualPage.h"

#include <span>

const ManualPage &quillbayPage();
const ManualPage &countPage();
const ManualPage &doctorPage();
const ManualPage &documentsPage();
const ManualPage &explainPage();
const ManualPage &extractPage();
const ManualPage &goalPage();
const ManualPage &historyPage();
const ManualPage &preferencesPage();
const ManualPage &selectionPage();
const ManualPage &statusPage();
const ManualPage &textPage();
const ManualPage &watchPage();
const ManualPage &deskPage();
const ManualPage &sayPage();
const ManualPage &countingServicePage();
const ManualPage &serviceProviderPage();
const ManualPage &documentReaderPage();
const ManualPage &clipboardKeeperPage();

std::span<const ManualPage *const> manualPages();

/// The page of "quillbay COMMAND"; null if there is no such command.
const ManualPage *pageOfCommand(QByteArrayView command);
