// SPDX-License-Identifier: MIT
#include "tests/command/CommandTest.h"
#include "tests/documents/docx/PackageWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using ::testing::HasSubstr;
using Outcome = ChildProcess::Outcome;

namespace {

class ExtractCommandTest : public CommandTest {
protected:
    static Outcome extract(const QByteArrayList &words, const QByteArray &input = {})
    {
        return quillbay(QByteArrayList{"extract"} + words, input);
    }
    static QJsonObject jsonOf(const QByteArray &name)
    {
        return QJsonDocument::fromJson(extract({"--json", name}).output).object();
    }
};

const QByteArray sample = "The caf\xC3\xA9 \xF0\x9F\x98\x80 opened.\n\n\tIt rained. We left.\r\nThe end";

} // namespace

TEST_F(ExtractCommandTest, PrintsTheTextOfEachFileAndNothingElse)
{
    const QByteArray rtf = file("letter.rtf", "{\\rtf1\\ansi Dear {\\v hidden}caf\\'e9\\par}");
    const QByteArray page = file("page.html", "<p>one<p>two");
    const QByteArray plain = file("plain.txt", "\xFF\xFE" + QByteArray("O\0n\0e\0", 6));
    const Outcome outcome = extract({rtf, page, plain});
    EXPECT_EQ(outcome.output, QByteArray("Dear caf\xC3\xA9\none\n\ntwoOne"));
    EXPECT_EQ(outcome.errors, QByteArray());
    EXPECT_EQ(outcome.exitStatus, 0);
}

TEST_F(ExtractCommandTest, ReadsStandardInput)
{
    EXPECT_EQ(extract({}, sample).output, sample);
    EXPECT_EQ(extract({"-"}, "{\\rtf1 one}").output, QByteArray("one"));
    EXPECT_EQ(extract({}, "").output, QByteArray());
}

TEST_F(ExtractCommandTest, ControlCharactersAndAttachmentsAreOnAPipeAsTheyAreCounted)
{
    EXPECT_EQ(extract({}, "\x1B[31mred\f\r").output, QByteArray("\x1B[31mred\f\r"));
    file("text.rtfd/sun.png", "bytes");
    const QByteArray package =
        file("text.rtfd/TXT.rtf", R"({\rtf1 a{{\NeXTGraphic sun.png \width0\height0}\'ac}b})").chopped(8);
    EXPECT_EQ(extract({package}).output,
        QByteArray("a\xEF\xBF\xBC"
                   "b"));
    EXPECT_EQ(jsonOf(package)[u"type"].toString(), QStringLiteral("application/x-flat-rtfd"));
}

TEST_F(ExtractCommandTest, ADocumentCannotControlTheTerminal)
{
    const QByteArray name = file("hostile.txt",
        "one\ttwo\r\n\x1B]0;title\a\xC2\x9B"
        "31m end");
    // script(1) runs a command on a terminal of its own.
    ChildProcess terminal(QStringLiteral("/usr/bin/script"));
    const QByteArray command =
        QFile::encodeName(productProgram(QStringLiteral("quillbay"))) + " extract " + name;
    const Outcome outcome = terminal.run({"-q", "-c", command, "/dev/null"});
    EXPECT_EQ(outcome.output, QByteArray("one\ttwo\r\n\\x1b]0;title\\x07\\x9b31m end\r\n"));
}

TEST_F(ExtractCommandTest, JsonHasTheTextAndWhereItsParagraphsAre)
{
    const QJsonObject json = jsonOf(file("sample.md", sample));
    const QString text = QString::fromUtf8(sample);
    EXPECT_EQ(json[u"text"].toString(), text);
    EXPECT_EQ(json[u"length"].toInt(), text.size());
    EXPECT_EQ(json[u"type"].toString(), QStringLiteral("text/plain"));
    QStringList paragraphs;
    for (const QJsonValue value : json[u"paragraphs"].toArray()) {
        const QJsonObject paragraph = value.toObject();
        const QString content = text.mid(paragraph[u"offset"].toInt(), paragraph[u"length"].toInt());
        EXPECT_EQ(
            sample.mid(paragraph[u"byteOffset"].toInt(), paragraph[u"byteLength"].toInt()), content.toUtf8());
        paragraphs.append(content);
    }
    EXPECT_EQ(paragraphs.join(u'|'), QStringLiteral("The café 😀 opened.||\tIt rained. We left.|The end"));
}

TEST_F(ExtractCommandTest, TheCountsOfTheParagraphsAddUpToThoseOfTheFile)
{
    const QByteArray body = "<w:p><w:r><w:t>Two words.</w:t></w:r></w:p><w:p><w:r><w:tab/><w:t>Three. And "
                            "four</w:t></w:r></w:p>";
    const QByteArray name = file("report.docx", WordPackage{.body = body}.bytes());
    const QJsonObject counts = QJsonDocument::fromJson(count({"--json", name}).output).object();
    for (const char *statistic : {"words", "characters", "charactersIncludingWhitespace", "sentences",
             "hardLineBreaks", "paragraphs", "indentedParagraphs"}) {
        int sum = 0;
        for (const QJsonValue paragraph : jsonOf(name)[u"paragraphs"].toArray())
            sum += paragraph[QLatin1String(statistic)].toInt();
        EXPECT_EQ(sum, counts[QLatin1String(statistic)].toInt()) << statistic;
        EXPECT_GT(sum, 0) << statistic;
    }
}

TEST_F(ExtractCommandTest, FailsLikeCountAndPrintsTheOthers)
{
    const QByteArray picture = file("picture.txt", QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1", 20));
    const QByteArray sound = file("sound.txt", "Two words.");
    const Outcome outcome = extract({"/no/such", picture, sound});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.output, QByteArray("Two words."));
    EXPECT_EQ(outcome.errors, count({"/no/such", picture}).errors);
    EXPECT_EQ(extract({"--as-text"}, "<p>one").output, QByteArray("<p>one"));
    EXPECT_EQ(extract({"--as-text", picture}).exitStatus, 0);
}

TEST_F(ExtractCommandTest, ReportsThatItCannotWrite)
{
    const QByteArray command = QFile::encodeName(productProgram(QStringLiteral("quillbay")));
    const Outcome outcome =
        ChildProcess(QStringLiteral("/bin/sh")).run({"-c", "\"$0\" extract >/dev/full", command}, "words");
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors, QByteArray("quillbay: standard output: No space left on device\n"));
}

TEST_F(ExtractCommandTest, WrongUsageIsReported)
{
    EXPECT_EQ(extract({"--help"}).exitStatus, 0);
    const Outcome outcome = extract({"--tsv"});
    EXPECT_EQ(outcome.exitStatus, 2);
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("invalid option '--tsv'"));
}
