// SPDX-License-Identifier: MIT
#include "documents/markup/MarkdownReader.h"

#include "documents/PlainTextReader.h"
#include "documents/markup/MarkdownBlocks.h"
#include "documents/markup/MarkdownTree.h"

#include <new>

namespace {

using Cause = DocumentError::Cause;
using Kind = MarkdownPart::Kind;

/// Bytes of UTF-8; the parser's positions have 32 bits and its buffers double.
constexpr qsizetype maxSourceLength = 1 << 30;

class Prose {
public:
    void add(const MarkdownPart &part)
    {
        switch (part.kind) {
        case Kind::Text:
            m_block += QString::fromUtf8(part.content);
            break;
        case Kind::SoftBreak:
            m_block += u'\n';
            break;
        case Kind::HardBreak:
            m_block += u'\u2028';
            break;
        case Kind::HtmlTag:
            if (part.content.startsWith("<br") || part.content.startsWith("<BR"))
                m_block += u'\u2028';
            break;
        case Kind::HtmlBlock:
            m_text += proseOfBlock(textOfHtml(QString::fromUtf8(part.content)), false);
            break;
        case Kind::BlockEnd:
            m_text += proseOfBlock(m_block, part.isFirstOfItem);
            m_block.clear();
            break;
        }
    }

    [[nodiscard]] const QString &text() const { return m_text; }

private:
    QString m_text;
    QString m_block; // the open paragraph or heading
};

} // namespace

Result<AttributedString, DocumentError> readMarkdown(QByteArrayView bytes, const QByteArray &charset)
{
    const Result<PlainText, DocumentError> plain = readPlainText(bytes, charset);
    if (!plain)
        return plain.error();
    const DocumentError tooComplex(Cause::TooComplex, DocumentKind::Markdown);
    try {
        QString text = plain.value().text;
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
        const QByteArray source = withoutNoteLabels(behindFrontMatter(text)).toUtf8();
        if (source.size() > maxSourceLength)
            return tooComplex;
        Prose prose;
        if (!forEachMarkdownPart(source, [&prose](const MarkdownPart &part) { prose.add(part); }))
            return tooComplex;
        return AttributedString(prose.text());
    } catch (const std::bad_alloc &) {
        return tooComplex;
    }
}
