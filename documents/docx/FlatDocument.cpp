// SPDX-License-Identifier: MIT
#include "documents/docx/FlatDocument.h"

#include "platform/text_encoding/AsciiBytes.h"

#include <algorithm>

namespace {

/// Bytes to examine. The root element of Word 2003 declares some twenty namespaces.
constexpr qsizetype signatureLength = 16'384;

QByteArrayView skipSpace(QByteArrayView text)
{
    return text.sliced(std::find_if_not(text.begin(), text.end(), isHtmlSpace) - text.begin());
}

/// The first tag, up to its end; absent parts make it empty.
QByteArrayView tagAtStart(QByteArrayView text)
{
    return text.first(std::max<qsizetype>(text.indexOf('>'), 0));
}

bool isRootOfWord(QByteArrayView tag)
{
    const auto *const nameEnd = std::find_if(tag.begin(), tag.end(), isHtmlSpace);
    const QByteArrayView name = tag.first(nameEnd - tag.begin());
    return (name.endsWith(":wordDocument")
               && tag.contains("\"http://schemas.microsoft.com/office/word/2003/wordml\""))
        || (name.endsWith(":package")
            && tag.contains("\"http://schemas.microsoft.com/office/2006/xmlPackage\""));
}

} // namespace

bool looksLikeFlatWordDocument(QByteArrayView bytes)
{
    QByteArrayView text = bytes.first(std::min(bytes.size(), signatureLength));
    if (text.startsWith("\xEF\xBB\xBF"))
        text = text.sliced(3);
    while (true) {
        text = skipSpace(text);
        const bool isComment = text.startsWith("<!--");
        if (!isComment && !text.startsWith("<?"))
            return isRootOfWord(tagAtStart(text));
        const QByteArrayView end = isComment ? "-->" : "?>";
        const qsizetype length = text.indexOf(end, 2);
        if (length < 0)
            return false;
        // Other programs of the same family store flat packages, too.
        constexpr QByteArrayView program("<?mso-application");
        if (text.startsWith(program))
            return text.first(length).contains("\"Word.Document\"");
        text = text.sliced(length + end.size());
    }
}
