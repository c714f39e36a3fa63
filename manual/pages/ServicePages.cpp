// SPDX-License-Identifier: MIT
// The programs that others start.
#include "manual/ManualPages.h"

const ManualPage &countingServicePage()
{
    static const ManualPage page{
        .program = "quillbay-counting-service",
        .section = 8,
        .summary = QT_TRANSLATE_NOOP("Manual", "count documents for Quillbay's windows"),
        .usages = {"[--idle-time=MILLISECONDS]"},
        .description =
            {QT_TRANSLATE_NOOP("Manual",
                 "Counts documents for other programs. The session bus starts it for the first request to "
                 "Brisklane.QBYServiceProviderXPC; it exits when it has been idle for a while."),
                QT_TRANSLATE_NOOP("Manual",
                    "The documents are read by processes of their own, which are sandboxed before they "
                    "receive one. Where systemd manages the session, the unit "
                    "quillbay-counting-service.service limits all of them together.")},
        .options = {{.name = "idle-time",
                        .placeholder = "MILLISECONDS",
                        .text = QT_TRANSLATE_NOOP(
                            "Manual", "exit after being idle for this long (default: 60000)")},
            helpOption(), versionOption()},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "it was idle, or was told to stop")},
            {1, QT_TRANSLATE_NOOP("Manual", "the service could not be offered on the session bus")},
            {2, wrongUsageMeaning()}},
        .seeAlso = {"quillbay-count(1)", "quillbay-service-provider(8)"},
    };
    return page;
}

const ManualPage &serviceProviderPage()
{
    static const ManualPage page{
        .program = "quillbay-service-provider",
        .section = 8,
        .summary = QT_TRANSLATE_NOOP("Manual", "show Quillbay's windows with counts"),
        .usages = {""},
        .description = {QT_TRANSLATE_NOOP("Manual",
            "Shows the windows with the counts of selected texts and of watched files. The session bus "
            "starts it for the first request to com.quillbay.ServiceProvider, as 'quillbay text' and "
            "'quillbay watch' send it; it exits when the last window is closed.")},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "no window is left, or the session has ended")},
            {1, QT_TRANSLATE_NOOP("Manual", "there is no display, or the services could not be offered")},
            {2, wrongUsageMeaning()},
            {3, QT_TRANSLATE_NOOP("Manual", "the connection to the X server was lost")}},
        .seeAlso = {"quillbay-selection(1)", "quillbay-text(1)", "quillbay-watch(1)",
            "quillbay-counting-service(8)"},
    };
    return page;
}

const ManualPage &documentReaderPage()
{
    static const ManualPage page{
        .program = "quillbay-document-reader",
        .section = 8,
        .summary = QT_TRANSLATE_NOOP("Manual", "read one document in a sandbox"),
        .usages = {""},
        .description = {QT_TRANSLATE_NOOP("Manual",
            "Reads one document for another program of Quillbay, which starts it. It receives the document "
            "in memory and can open no file and no connection; its memory and time are limited in proportion "
            "to the document.")},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "the document was read, or none was sent")},
            {2, wrongUsageMeaning()}},
        .seeAlso = {"quillbay-count(1)", "quillbay-extract(1)"},
    };
    return page;
}

const ManualPage &clipboardKeeperPage()
{
    static const ManualPage page{
        .program = "quillbay-clipboard-keeper",
        .section = 8,
        .summary = QT_TRANSLATE_NOOP("Manual", "keep what you copied from Quillbay's windows"),
        .usages = {""},
        .description = {QT_TRANSLATE_NOOP("Manual",
            "Takes over what you have copied from a window of Quillbay when the last one is closed, and "
            "hands it to the clipboard manager of the desktop. Without a manager it keeps the content until "
            "another program copies something or the display closes.")},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "the content is saved, or was replaced")},
            {1, QT_TRANSLATE_NOOP("Manual", "there was nothing to take over")}, {2, wrongUsageMeaning()}},
        .seeAlso = {"quillbay-service-provider(8)"},
    };
    return page;
}
