// SPDX-License-Identifier: MIT
// Markdown and LaTeX without their marks, in the commands that read documents.
#include "tests/command/CommandTest.h"

#include <QJsonDocument>
#include <QJsonObject>

using ::testing::HasSubstr;

namespace {

class CountMarkupTest : public CommandTest {
protected:
    static int words(const QByteArrayList &arguments)
    {
        const ChildProcess::Outcome outcome = count(QByteArrayList{"--json"} + arguments);
        return QJsonDocument::fromJson(outcome.output).object()[u"words"].toInt(-1);
    }

    const QByteArray m_markdown =
        file("tale.md", "---\ntitle: A tale\n---\n# One *two*\n\n[three](https://x.org)\n");
    const QByteArray m_latex = file("tale.tex", "\\section{One} \\emph{two} \\cite{no} $x$ three four");
};

} // namespace

TEST_F(CountMarkupTest, MarksCountUnlessTheyAreLeftOut)
{
    EXPECT_EQ(words({m_markdown}), 8); // title, A, tale, One, two, three, https, x.org
    EXPECT_EQ(words({"--markdown", m_markdown}), 3);
    EXPECT_EQ(words({"--latex", m_latex}), 4);
}

TEST_F(CountMarkupTest, OnlyPlainTextIsReadWithoutMarks)
{
    const QByteArray page = file("page.html", "<p>*one* two</p>");
    EXPECT_EQ(words({"--markdown", page}), 2);
    EXPECT_EQ(words({"--markdown", "--as-text", file("only.html", "<p>one</p>\n\n*two*")}), 2);
}

TEST_F(CountMarkupTest, WithBothTheNameDecides)
{
    EXPECT_EQ(words({"--markdown", "--latex", m_markdown}), 3);
    EXPECT_EQ(words({"--markdown", "--latex", m_latex}), 4);
}

TEST_F(CountMarkupTest, ExtractPrintsWhatIsCountedAndExplainMarksIt)
{
    EXPECT_EQ(quillbay({"extract", "--markdown", m_markdown}).output, QByteArray("One two\nthree\n"));
    EXPECT_THAT(quillbay({"extract", "--json", "--latex", m_latex}).output.toStdString(),
        HasSubstr("\"type\":\"text/x-tex\",\"length\":19,\"text\":\"One\\ntwo three four\\n\""));
    EXPECT_THAT(quillbay({"explain", "--markdown", "--words", m_markdown}).output.toStdString(),
        HasSubstr("[One] [two]"));
}
