// SPDX-License-Identifier: MIT
// Prints the text of the PDF file that its argument names, without ever making an application object.
#include "documents/loading/PdfFileText.h"

#include <QFile>

#include <cstdio>

int main(int, char **arguments)
{
    const QUrl url = QUrl::fromLocalFile(QFile::decodeName(arguments[1]));
    const std::optional<AttributedString> text = QBYExtension::attributedStringFromPDFFileURL(url);
    if (!text)
        return 1;
    std::fputs(text->string().toUtf8().constData(), stdout);
    return 0;
}
