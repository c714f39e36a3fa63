// SPDX-License-Identifier: MIT
// file_type_teller FILE: prints a word for each kind of the file, for tests that need another user.
#include "watching/FileTypes.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    const QUrl url = QUrl::fromLocalFile(application.arguments().value(1));
    if (QBYExtension::doesConformToDocXFileUTI(url))
        std::puts("docx");
    if (QBYExtension::doesConformToRTFFileUTI(url))
        std::puts("rtf");
    if (QBYExtension::doesConformToRTFDFileUTI(url))
        std::puts("rtfd");
    if (QBYExtension::doesConformToPlainTextFileUTI(url))
        std::puts("text");
    return 0;
}
