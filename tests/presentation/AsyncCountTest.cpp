// SPDX-License-Identifier: MIT
// Counts through a service, here a stand-in that follows the plan of the test.
#include "presentation/WordCounterViewController.h"

#include "documents/rtfd/RtfdWriter.h"
#include "tests/presentation/AsyncCount.h"

#include <QCryptographicHash>
#include <QXmlStreamReader>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

QByteArray hashOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

} // namespace

TEST_F(AsyncCountTest, TheAnswerOfTheServiceIsShownInItsOrder)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    const CountingPanel panel;
    count(panel);
    EXPECT_TRUE(panel.controller->isAsyncCountOperationInProgress());
    waitForCompletions(1);
    EXPECT_EQ(panel.texts(), oneToEight);
    EXPECT_EQ(panel.controller->wordCounter()->statsRepresentation(),
        (QBYWordCounterStats{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_FALSE(panel.controller->wordCounter()->attributedStringToCount());
    EXPECT_THAT(panel.delegate.calls, ElementsAre("relayout"));
    EXPECT_FALSE(panel.controller->isAsyncCountOperationInProgress());
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(AsyncCountTest, AnswersOfZerosAreShownLikeAnyOther)
{
    const auto service = standIn({"answer 0 0 0 0 0 0 0 0"});
    const CountingPanel panel;
    count(panel);
    waitForCompletions(1);
    EXPECT_EQ(panel.texts(), textsFor({0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(AsyncCountTest, CountsAreCopiedWithoutAnyCheck)
{
    const auto service = standIn({"answer 18446744073709551615 9223372036854775808 0 0 0 0 0 1"});
    const CountingPanel panel;
    count(panel);
    waitForCompletions(1);
    EXPECT_EQ(panel.controller->wordCounter()->numberOfWords(), UINT64_MAX);
    EXPECT_EQ(panel.controller->wordCounter()->numberOfCharacters(), 9223372036854775808U);
}

TEST_F(AsyncCountTest, RequestsFollowTheDocumentationOfTheService)
{
    QXmlStreamReader description(
        readFile(QStringLiteral(BUS_DOCUMENTATION "/Brisklane.QBYServiceProviderXPC.xml")));
    QStringList names;
    QString path;
    while (!description.atEnd()) {
        if (description.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString name = description.attributes().value(QLatin1StringView("name")).toString();
        if (description.name() == u"node")
            path = name;
        else if (description.name() == u"interface" || description.name() == u"method")
            names.append(name);
    }
    ASSERT_THAT(names, SizeIs(3));

    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    setLocale("de_DE.UTF-8");
    const CountingPanel panel;
    count(panel);
    waitForCompletions(1);
    countDocument(panel, QUrl::fromLocalFile(writeFile(QStringLiteral("a.docx"), "bytes")));
    waitForCompletions(2);
    const auto requests = service->requests();
    ASSERT_THAT(requests, SizeIs(2));
    for (const ServiceStandIn::Request &request : requests) {
        EXPECT_EQ(request.path, path);
        EXPECT_EQ(request.interface, names[0]);
        EXPECT_EQ(request.signature, QStringLiteral("htba{sv}"));
        EXPECT_EQ(request.options, QVariantMap({{QStringLiteral("locale"), QStringLiteral("de_DE")}}));
    }
    EXPECT_EQ(requests[0].method, names[1]);
    EXPECT_EQ(requests[1].method, names[2]);
}

TEST_F(AsyncCountTest, AStyledTextIsSentWholeAsFlatRtfd)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    AttributedStringBuilder builder;
    TextAttributes bold;
    bold.font = FontAttributes{.family = QStringLiteral("Courier"), .pointSize = 9, .weight = 700};
    builder.append(u"Ein größerer ", {});
    builder.append(u"Text\n\tmit 😀", bold);
    const AttributedString styled = builder.build();
    const CountingPanel panel;
    panel.controller->asyncUpdateStatsWithAttributedString(styled, completion());
    waitForCompletions(1);
    ASSERT_THAT(service->requests(), SizeIs(1));
    const auto rtfd = RTFDFromRange(styled, 0, styled.length(), {});
    ASSERT_TRUE(rtfd);
    EXPECT_EQ(service->requests().front().hash, hashOf(rtfd.value()));
    EXPECT_FALSE(service->requests().front().isAbsent);
}

TEST_F(AsyncCountTest, AWordDocumentIsSentUnopened)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    const QByteArray bytes("no Word document \0 at all", 25);
    const CountingPanel panel;
    countDocument(panel, QUrl::fromLocalFile(writeFile(QStringLiteral("50% ä?#.docx"), bytes)));
    waitForCompletions(1);
    ASSERT_THAT(service->requests(), SizeIs(1));
    EXPECT_EQ(service->requests().front().hash, hashOf(bytes));
    EXPECT_EQ(service->requests().front().length, bytes.size());
    EXPECT_FALSE(service->requests().front().isAbsent);
    EXPECT_EQ(panel.texts(), oneToEight);
}

TEST_F(AsyncCountTest, AFileNameNeedNotBeTextInAnyEncoding)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    const QByteArray folder = world().root().toLocal8Bit();
    FILE *file = std::fopen((folder + "/\xff.docx").constData(), "w");
    ASSERT_NE(file, nullptr);
    std::fputs("bytes", file);
    std::fclose(file);
    const CountingPanel panel;
    countDocument(panel, QUrl(QStringLiteral("file://localhost%1/%FF.docx").arg(world().root())));
    waitForCompletions(1);
    EXPECT_EQ(service->requests().front().hash, hashOf("bytes"));
}

TEST_F(AsyncCountTest, AnUnreadableWordDocumentIsSentAsAbsentAndTheAnswerShown)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    const CountingPanel panel;
    const QString file = writeFile(QStringLiteral("a.docx"), "bytes");
    const std::vector<QUrl> unreadable = {QUrl::fromLocalFile(file + u'x'),
        QUrl::fromLocalFile(world().root()), QUrl(), QUrl(QStringLiteral("https://example.com") + file),
        QUrl(QStringLiteral("file://example.com") + file),
        QUrl(QStringLiteral("file://") + file + QStringLiteral("%00.docx"))};
    for (size_t i = 0; i < unreadable.size(); ++i) {
        countDocument(panel, unreadable[i]);
        waitForCompletions(i + 1);
        const auto requests = service->requests();
        ASSERT_THAT(requests, SizeIs(i + 1));
        EXPECT_TRUE(requests.back().isAbsent) << unreadable[i].toString().toStdString();
        EXPECT_EQ(requests.back().length, 0);
        EXPECT_EQ(requests.back().method, QStringLiteral("countWordsForDocX"));
    }
    EXPECT_EQ(panel.texts(), oneToEight);
}

TEST_F(AsyncCountTest, TheCompletionRunsOnTheMainThreadBetweenTheLabelsAndTheFlag)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    CountingPanel panel;
    const std::thread::id mainThread = std::this_thread::get_id();
    bool hasRun = false;
    panel.controller->asyncUpdateStatsWithAttributedString(text, [&] {
        EXPECT_EQ(std::this_thread::get_id(), mainThread);
        EXPECT_EQ(panel.texts(), oneToEight);
        EXPECT_THAT(panel.delegate.calls, ElementsAre("relayout"));
        EXPECT_TRUE(panel.controller->isAsyncCountOperationInProgress());
        hasRun = true;
    });
    EXPECT_TRUE(waitUntil([&hasRun] { return hasRun; }));
    EXPECT_FALSE(panel.controller->isAsyncCountOperationInProgress());
}

TEST_F(AsyncCountTest, ObserversAreNotifiedWhenTheFlagIsSetAndCleared)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    CountingPanel panel;
    std::vector<bool> heard;
    QObject::connect(panel.controller.get(),
        &WordCounterViewController::isAsyncCountOperationInProgressChanged, panel.controller.get(),
        [&] { heard.push_back(panel.controller->property("isAsyncCountOperationInProgress").toBool()); });
    count(panel);
    EXPECT_THAT(heard, ElementsAre(true));
    waitForCompletions(1);
    EXPECT_THAT(heard, ElementsAre(true, false));
    count(panel);
    panel.controller->stopAsyncOperation();
    EXPECT_THAT(heard, ElementsAre(true, false, true, false));
}

TEST_F(AsyncCountTest, ACountDuringACountIsSilentlyDropped)
{
    const auto service = standIn({"hold", "answer 0 0 0 0 0 0 0 0"});
    const CountingPanel panel;
    count(panel);
    service->waitForRequests(1);
    bool isDropped = false;
    const auto dropped = [&isDropped] { return [&isDropped] { isDropped = true; }; };
    panel.controller->asyncUpdateStatsWithAttributedString(text, dropped());
    panel.controller->asyncUpdateStatsDocXFileURL(QUrl(), dropped());
    EXPECT_TRUE(panel.controller->isAsyncCountOperationInProgress());
    service->release();
    waitForCompletions(1);
    EXPECT_EQ(panel.texts(), oneToEight);
    count(panel); // would arrive after the dropped one
    waitForCompletions(2);
    EXPECT_THAT(service->requests(), SizeIs(2));
    EXPECT_FALSE(isDropped);
}

TEST_F(AsyncCountTest, ACountThatACompletionStartsIsDropped)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    CountingPanel panel;
    bool isDropped = false;
    bool hasRun = false;
    panel.controller->asyncUpdateStatsWithAttributedString(text, [&] {
        panel.controller->asyncUpdateStatsWithAttributedString(text, [&isDropped] { isDropped = true; });
        hasRun = true;
    });
    EXPECT_TRUE(waitUntil([&hasRun] { return hasRun; }));
    EXPECT_FALSE(panel.controller->isAsyncCountOperationInProgress());
    count(panel);
    waitForCompletions(1);
    EXPECT_THAT(service->requests(), SizeIs(2));
    EXPECT_FALSE(isDropped);
}

TEST_F(AsyncCountTest, BothKindsOfCountsShareOneConnectionAndEveryPanelHasItsOwn)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    const CountingPanel panel;
    const CountingPanel other;
    count(panel);
    waitForCompletions(1);
    countDocument(panel, QUrl());
    waitForCompletions(2);
    count(other);
    waitForCompletions(3);
    const auto requests = service->requests();
    ASSERT_THAT(requests, SizeIs(3));
    EXPECT_EQ(requests[0].client, requests[1].client);
    EXPECT_NE(requests[1].client, requests[2].client);
}

TEST_F(AsyncCountTest, ARequestThatIsLostWithTheServiceIsSentAgain)
{
    const auto service = standIn({"crash", "answer 1 2 3 4 5 6 7 8"});
    const CountingPanel panel;
    count(panel);
    waitForCompletions(1);
    EXPECT_EQ(panel.texts(), oneToEight);
    EXPECT_THAT(service->requests(), SizeIs(2));
}

TEST_F(AsyncCountTest, TheLabelsAreNotNeededForACount)
{
    const auto service = standIn({"answer 1 2 3 4 5 6 7 8"});
    const auto controller = std::make_shared<WordCounterViewController>();
    controller->asyncUpdateStatsWithAttributedString(text, completion());
    waitForCompletions(1);
    EXPECT_EQ(controller->wordCounter()->numberOfWords(), 1U);
}
