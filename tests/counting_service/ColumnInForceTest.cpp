// SPDX-License-Identifier: MIT
// Margins that leave no width keep the column of the previous count: that of the whole service, whichever
// worker counts or remembers.
#include "documents/rtfd/RtfdReader.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/counting_service/CountingServiceTest.h"
#include "tests/documents/SampleTexts.h"
#include "text_statistics/WordCounterModel.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>

namespace {

using Preferences = QBYUserDefaultsController;

class ColumnInForceTest : public CountingServiceTest {
protected:
    ColumnInForceTest()
    {
        Preferences::configureUserDefaultsOnApplicationLaunch();
        Preferences::setCurrentPaperNamePreference(QStringLiteral("A4"));
    }

    static void setMargins(double left, double right)
    {
        Preferences::setLeftMarginForPaperSizeLineMeasuring(left);
        Preferences::setRightMarginForPaperSizeLineMeasuring(right);
    }

    /// The command counts with the model.
    [[nodiscard]] quint64 linesOfModel() const
    {
        m_model->setAttributedStringToCount(readFlatRtfd(m_document).value());
        return m_model->numberOfLines();
    }
    [[nodiscard]] quint64 linesOfService() const { return count(message(m_document)).numberOfLines; }

    void killService() const
    {
        const pid_t process = service();
        ::kill(process, SIGKILL);
        EXPECT_TRUE(waitUntil([&] { return service() != process; }));
    }
    void killWorkers() const
    {
        for (const SeenProcess &worker : childrenOf(service()))
            ::kill(worker.identifier, SIGKILL);
    }

    const QString m_text = SampleTexts::english.repeated(5);
    const QByteArray m_document = flatRtfd(m_text);
    const std::unique_ptr<WordCounterModel> m_model = std::make_unique<WordCounterModel>();
};

} // namespace

TEST_F(ColumnInForceTest, CommandAndServiceAgreeOverASeriesOfMargins)
{
    constexpr std::pair<double, double> series[] = {
        {1, 1}, {5, 5}, {2, 2.5}, {5, 5}, {8.27, 0}, {1, 1}, {5, 5}, {0, 7}, {4.2, 4.2}, {1, 1}};
    for (const auto &[left, right] : series) {
        setMargins(left, right);
        const quint64 lines = linesOfModel();
        EXPECT_EQ(linesOfService(), lines) << left << ' ' << right;
        EXPECT_EQ(linesOfService(), lines) << "remembered, of " << left << ' ' << right;
        killWorkers();
        EXPECT_EQ(linesOfService(), lines) << "by a new worker, of " << left << ' ' << right;
    }
}

TEST_F(ColumnInForceTest, AFirstCountWithoutAColumnHasOneOfNoWidth)
{
    setMargins(5, 5);
    const QString file = writeFile(QStringLiteral("text.txt"), m_text.toUtf8());
    const ChildProcess::Outcome counted = ChildProcess(productProgram(QStringLiteral("quillbay")))
                                              .run({"count", "--json", QFile::encodeName(file)});
    const auto lines = static_cast<quint64>(
        QJsonDocument::fromJson(counted.output).object().value(QStringLiteral("lines")).toInteger());
    EXPECT_GT(lines, 100U);
    EXPECT_EQ(linesOfService(), lines);
    setMargins(1, 1);
    EXPECT_LT(linesOfService(), lines);
    setMargins(5, 5);
    EXPECT_LT(linesOfService(), lines);
    killService(); // the next service has counted nothing yet
    EXPECT_EQ(linesOfService(), lines);
}
