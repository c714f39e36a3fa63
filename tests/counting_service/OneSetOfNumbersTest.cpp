// SPDX-License-Identifier: MIT
// Every way to count a document, in any process, gives the same eight numbers.
#include "documents/loading/DocumentLoader.h"
#include "presentation/WordCounterViewController.h"
#include "tests/counting_service/CountingServiceTest.h"
#include "tests/documents/SampleTexts.h"
#include "tests/documents/docx/PackageWriter.h"
#include "tests/documents/pdf/PdfWriter.h"
#include "tests/platform/printing/PrintServer.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QBYWordCounterStats statsFromJson(const QByteArray &line)
{
    const QJsonObject report = QJsonDocument::fromJson(line).object();
    QBYWordCounterStats stats;
    for (const StatisticRow &row : statisticTable)
        stats.*row.count = static_cast<quint64>(report.value(QLatin1StringView(row.name)).toInteger());
    return stats;
}

} // namespace

class OneSetOfNumbers : public CountingServiceTest {
protected:
    /// The samples of the project, and a document of each kind in several languages.
    static QByteArrayList documents()
    {
        QByteArrayList paths;
        const QDir samples(QStringLiteral(QUILLBAY_SAMPLES));
        for (const QString &name : samples.entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
            paths.append(QFile::encodeName(samples.filePath(name)));
        const QString text = QStringLiteral("\ta b. ") + SampleTexts::german + u'\n' + SampleTexts::arabic
            + u'\n' + SampleTexts::japanese + u'\n' + SampleTexts::hindi.repeated(9);
        paths.append(QFile::encodeName(writeFile(QStringLiteral("languages.txt"), text.toUtf8())));
        const QByteArray html =
            "<!DOCTYPE html><h1>a</h1><p style='font-size:20pt'>" + text.toUtf8() + "</p>";
        paths.append(QFile::encodeName(writeFile(QStringLiteral("languages.html"), html)));
        const QByteArray word = WordPackage{.body = "<w:p><w:r><w:rPr><w:sz w:val='40'/></w:rPr><w:t>"
                + text.toUtf8() + "</w:t></w:r></w:p>"}
                                    .bytes();
        paths.append(QFile::encodeName(writeFile(QStringLiteral("languages.docx"), word)));
        const QByteArray pdf = PdfWriter{{"One page of a few words.\nAnd a line.", "Another page."}}.bytes();
        paths.append(QFile::encodeName(writeFile(QStringLiteral("pages.pdf"), pdf)));
        return paths;
    }

    static QBYWordCounterStats countByCommand(const QByteArrayList &words)
    {
        const auto outcome = ChildProcess(productProgram(QStringLiteral("quillbay"))).run(words);
        EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.constData();
        return statsFromJson(outcome.output);
    }

    static QBYWordCounterStats countByPanel(const QByteArray &path)
    {
        const auto panel = std::make_shared<WordCounterViewController>();
        panel->view();
        bool isCounted = false;
        const auto completion = [&isCounted] { isCounted = true; };
        if (path.endsWith(".docx"))
            panel->asyncUpdateStatsDocXFileURL(QUrl::fromLocalFile(QFile::decodeName(path)), completion);
        else
            panel->asyncUpdateStatsWithAttributedString(
                loadDocument(path, {.readsPdf = true}).value(), completion);
        EXPECT_TRUE(waitUntil([&] { return isCounted && !panel->isAsyncCountOperationInProgress(); }));
        return panel->wordCounter()->statsRepresentation();
    }

    static void expectOneSetOfNumbers()
    {
        for (const QByteArray &path : documents()) {
            const QBYWordCounterStats stats = countByCommand({"count", "--json", path});
            EXPECT_GT(stats.numberOfWords, 0U) << path.constData();
            EXPECT_EQ(countByCommand({"count", "--json", "--service", path}), stats) << path.constData();
            EXPECT_EQ(countByPanel(path), stats) << path.constData();
        }
    }
};

TEST_F(OneSetOfNumbers, ForCommandServiceAndPanel)
{
    expectOneSetOfNumbers();
}

TEST_F(OneSetOfNumbers, AndOneCauseOfAFailureForTheCommandWithAndWithoutTheService)
{
    const QByteArray damaged =
        QFile::encodeName(writeFile(QStringLiteral("damaged.docx"), "PK and the rest"));
    const QByteArray deep = QFile::encodeName(
        writeFile(QStringLiteral("deep.html"), "<!DOCTYPE html>" + QByteArray("<div>").repeated(5000)));
    for (const QByteArray &path : {damaged, deep, QByteArray("/no/such/file")}) {
        const QString program = productProgram(QStringLiteral("quillbay"));
        const auto here = ChildProcess(program).run({"count", path});
        const auto inService = ChildProcess(program).run({"count", "--service", path});
        EXPECT_EQ(inService.exitStatus, 1) << path.constData();
        EXPECT_EQ(inService.output, here.output);
        EXPECT_TRUE(inService.errors.contains(here.errors.trimmed())) << inService.errors.constData();
    }
}

TEST_F(OneSetOfNumbers, InALocaleOtherThanThatOfTheBus)
{
    setLocale("de_DE.UTF-8");
    expectOneSetOfNumbers();
}

TEST_F(OneSetOfNumbers, OnThePaperOfAPrinter)
{
    SKIP_WITHOUT_PACKAGE(PrintServer::isInstalled(), "cups, cups-daemon, cups-client");
    PrintServer server;
    server.addQueue("odd");
    server.makeDefault("odd");
    expectOneSetOfNumbers();
}
