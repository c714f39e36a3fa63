// SPDX-License-Identifier: MIT
// Sources that nobody writes: every one is read, or refused, in time proportional to its length.
#include "documents/markup/LatexReader.h"
#include "documents/markup/MarkdownReader.h"
#include "tests/harness/QuillbayTest.h"

namespace {

constexpr qsizetype length = 100'000; // bytes; quadratic time would take minutes

QByteArray repeated(const QByteArray &piece)
{
    return piece.repeated(length / piece.size());
}

} // namespace

TEST(HostileMarkup, LatexThatEndsNothing)
{
    for (const char *piece : {"{", "}", "\\label{", "\\a[", "\\[", "\\(", "$$", "$x", "\\begin{verbatim}",
             "\\begin{equation}", "\\begin{tabular}{", "\\footnote{", "\\section{", "\\iffalse", "\\verb|",
             "\\begin{", "\\", "%", "\\'", "\\def\\a", "\\newcommand", "\\\\[", "&", "-", "`"}) {
        const Result<AttributedString, DocumentError> text = readLatex(repeated(piece));
        ASSERT_TRUE(text) << piece;
        EXPECT_LE(text.value().length(), 2 * length) << piece;
    }
}

TEST(HostileMarkup, EveryPrefixOfALatexSourceIsRead)
{
    const QString source =
        QStringLiteral("\\documentclass[a]{b}\\begin{document}\\section*[x]{T}\\'{\\i}$a$$$b$$"
                       "\\begin{tabular}{l}a&b\\\\[1pt]\\end{tabular}\\footnote{n}\\verb|x|"
                       "\\cite[p]{q}\\def\\a#1{b}\\href{c}{d}%e\n\\[f\\]\\end{document}");
    for (qsizetype end = 0; end <= source.size(); ++end)
        EXPECT_LE(proseOfLatex(source.first(end)).size(), source.size());
}

TEST(HostileMarkup, MarkdownThatNests)
{
    for (const char *piece : {">", "* ", "[", "![", "*a_", "`", "<", "<!--", "<a", "[^", "[^a]:", "|-",
             "- [ ] ", "a\n", "&", "\\", "***", "[a](", "    "}) {
        const Result<AttributedString, DocumentError> text = readMarkdown(repeated(piece));
        ASSERT_TRUE(text) << piece;
        EXPECT_LE(text.value().length(), 2 * length) << piece;
    }
}

TEST(HostileMarkup, BytesOfAllValuesAreRead)
{
    QByteArray bytes;
    for (int i = 0; i < 4096; ++i)
        bytes.append(static_cast<char>(i * 7 + i / 256));
    EXPECT_TRUE(readMarkdown(bytes));
    EXPECT_TRUE(readLatex(bytes));
    EXPECT_TRUE(readMarkdown(QByteArray(100, '\0')));
}
