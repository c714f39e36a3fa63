// SPDX-License-Identifier: MIT
// What the documents show of a terminal is what a terminal shows: each command of a "console" block is run in
// a copy of samples/ and prints the lines below it; each line of an "sh" block runs without an error.
#include "preferences/QBYUserDefaultsController.h"
#include "tests/command/CommandTest.h"

namespace {

struct Example {
    QByteArray command;
    QByteArray output; ///< of both streams; not compared in an "sh" block
    bool isOutputShown = false;
};

std::vector<Example> examplesOf(const QByteArray &page)
{
    std::vector<Example> examples;
    QByteArray block; // the name of the one that the line is in
    bool isInBlock = false;
    for (const QByteArray &line : page.split('\n')) {
        if (line.startsWith("```")) {
            isInBlock = !isInBlock;
            block = line.sliced(3);
        } else if (isInBlock && block == "sh") {
            examples.push_back({line, {}, false});
        } else if (isInBlock && block == "console") {
            if (line.startsWith("$ "))
                examples.push_back({line.sliced(2), {}, true});
            else
                examples.back().output += line + '\n';
        }
    }
    return examples;
}

class ConsoleExamples : public CommandTest, public ::testing::WithParamInterface<const char *> {
protected:
    ConsoleExamples()
    {
        qputenv("LC_ALL", "en_US.UTF-8");
        QBYUserDefaultsController::setCurrentPaperNamePreference(QStringLiteral("A4"));
        EXPECT_EQ(ChildProcess(QStringLiteral("cp"))
                      .run({"-r", QUILLBAY_SOURCE "/samples", QFile::encodeName(folder())})
                      .exitStatus,
            0);
    }

    static QString folder() { return world().root() + QStringLiteral("/samples"); }

    static ChildProcess::Outcome run(const QByteArray &command)
    {
        const QByteArray programs =
            QFile::encodeName(QFileInfo(productProgram(QStringLiteral("quillbay"))).path());
        return ChildProcess(QStringLiteral("/bin/bash"))
            .inFolder(folder())
            .withVariable("PATH", programs + ':' + qgetenv("PATH"))
            .run({"-c", "exec 2>&1\n" + command});
    }
};

} // namespace

TEST_P(ConsoleExamples, PrintWhatTheDocumentShows)
{
    QFile page(QStringLiteral(QUILLBAY_SOURCE "/") + QString::fromUtf8(GetParam()));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const std::vector<Example> examples = examplesOf(page.readAll());
    EXPECT_FALSE(examples.empty());
    for (const Example &example : examples) {
        const ChildProcess::Outcome outcome = run(example.command);
        if (example.isOutputShown)
            EXPECT_EQ(outcome.output.toStdString(), example.output.toStdString())
                << example.command.constData();
        else
            EXPECT_EQ(outcome.exitStatus, 0) << example.command.constData() << '\n'
                                             << outcome.output.constData();
    }
}

INSTANTIATE_TEST_SUITE_P(Documents, ConsoleExamples,
    ::testing::Values("README.md", "docs/explain.md", "docs/preferences.md", "docs/privacy-and-sandbox.md",
        "docs/rules.md"));
