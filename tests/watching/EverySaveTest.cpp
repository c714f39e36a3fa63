// SPDX-License-Identifier: MIT
// Another process saves the watched document in all the ways that programs use, with the real clock.
#include "tests/platform/file_coordination/SaveModes.h"
#include "tests/watching/WatchedFileTest.h"

#include <QFile>

#include <cstdio>

using ::testing::IsEmpty;

class EverySaveTest : public WatchedFileTest, public ::testing::WithParamInterface<int> {
protected:
    /// Waits until the delegate has the last saved text.
    void save(const QString &mode, int number, int lines, int pause)
    {
        const QString contents = (QString::number(number) + u'\n').repeated(lines);
        m_saver.writeLine(
            QStringLiteral("%1 %2:%3 %4").arg(mode).arg(number).arg(lines).arg(pause).toLatin1());
        EXPECT_TRUE(waitUntil([&] { return m_delegate.lastText().string() == contents; }))
            << qPrintable(mode) << " with pauses of " << pause << " microseconds";
        EXPECT_EQ(m_saver.readLine(), QByteArray("saved"));
    }

    ChildProcess m_saver{testProgram(QStringLiteral("file_saver"))};
};

TEST_P(EverySaveTest, IsReportedAsTheTextAndNothingElse)
{
    const QString mode = SaveModes::names().at(GetParam());
    WatchTextFileModel model(QUrl::fromLocalFile(m_path), &m_delegate, m_activity);
    model.beginWatchingTextFile();
    takeLog();
    m_saver.start({QFile::encodeName(m_path)});
    int number = 0;
    for (const int pause : {0, 1000, 30'000}) {
        save(mode, ++number, 1, pause);
        save(mode, ++number, 100'000, pause);
    }
    for (const QString &message : m_delegate.takeMessages())
        EXPECT_TRUE(message.startsWith(QStringLiteral("text "))) << message.left(80).toStdString();
    EXPECT_TRUE(model.isWatchingTextFile());
    EXPECT_THAT(takeLog(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Modes, EverySaveTest, ::testing::Range(0, static_cast<int>(SaveModes::names().size())));

TEST(SavesAtRandom, AHundredAreReportedWithoutAMistake)
{
    const ChildProcess::Outcome outcome = ChildProcess(testProgram(QStringLiteral("save_soak"))).run({"100"});
    EXPECT_EQ(outcome.exitStatus, 0) << outcome.output.toStdString();
    std::printf("%s", outcome.output.constData());
}
