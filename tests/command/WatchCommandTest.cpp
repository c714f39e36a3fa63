// SPDX-License-Identifier: MIT
#include "tests/command/ServiceCommandTest.h"
#include "tests/platform/pasteboard/SelectionOwner.h"

#include <QJsonArray>
#include <QUrl>

using Outcome = ChildProcess::Outcome;

namespace {

class WatchCommand : public ServiceCommandTest {
protected:
    static constexpr char picture[] = "\x89PNG\r\n\x1a\n\0\0\0\rIHDR";

    static QString urlOf(const QByteArray &path)
    {
        return QString::fromLatin1(QUrl::fromLocalFile(QFile::decodeName(path)).toEncoded());
    }

    /// Runs the command beside a notification server; returns its outcome and the notification.
    static std::pair<Outcome, QByteArray> runNotified(const QByteArrayList &words)
    {
        ChildProcess server(testProgram(QStringLiteral("notification_server")));
        server.start({});
        EXPECT_EQ(server.readLine(), QByteArray("ready"));
        const Outcome outcome = quillbay(words);
        return {outcome, server.readLine()};
    }

    static QByteArray notice(const QByteArray &text)
    {
        return "Quillbay|com.quillbay.Quillbay|Quillbay|" + text;
    }
};

} // namespace

TEST_F(WatchCommand, SendsItsFilesInOneRequest)
{
    const QByteArray text = file("one.txt", "One.");
    const QByteArray page = file("two.html", "<p>Two.");
    const Outcome outcome = quillbay({"watch", text, page});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.errors, QByteArray());
    EXPECT_EQ(request()[u"message"].toString(), QStringLiteral("watchTheTextFileService"));
    EXPECT_EQ(request()[u"files"].toArray(), (QJsonArray{urlOf(text), urlOf(page)}));
}

TEST_F(WatchCommand, NamesAPictureAmongTextsAndWatchesTheTexts)
{
    const QByteArray text = file("one.txt", "One.");
    const QByteArray image = file("two.png", QByteArray(picture, sizeof picture));
    const auto [outcome, notification] = runNotified({"watch", image, text});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors, count({image}).errors);
    EXPECT_EQ(request()[u"files"].toArray(), QJsonArray{urlOf(text)});
    EXPECT_EQ(notification, notice(outcome.errors.mid(sizeof "quillbay: " - 1).trimmed() + '.'));
}

TEST_F(WatchCommand, NamesEveryFileThatCannotBeWatchedInOneNotification)
{
    const QByteArray folder = QFile::encodeName(world().home());
    const auto [outcome, notification] = runNotified({"watch", "/no/such", folder, "/dev/zero"});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors,
        "quillbay: /no/such: no such file\nquillbay: " + folder
            + ": is a folder\nquillbay: /dev/zero: is a device\n");
    EXPECT_EQ(notification, notice("/no/such: no such file. 2 other files are left out too."));
    EXPECT_EQ(requests().size(), 0);
}

TEST_F(WatchCommand, TestsTheCopiedFilesToo)
{
    const QByteArray text = file("one.txt", "One.");
    const SelectionOwner copied(
        "CLIPBOARD", {{"text/uri-list", "file:///no/such\r\n" + urlOf(text).toLatin1() + "\r\n"}});
    const auto [outcome, notification] = runNotified({"watch", "--clipboard"});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors, QByteArray("quillbay: /no/such: no such file\n"));
    EXPECT_EQ(notification, notice("/no/such: no such file."));
    EXPECT_EQ(request()[u"files"].toArray(), QJsonArray{urlOf(text)});
}

TEST_F(WatchCommand, SaysThatCopiedFilesAreElsewhere)
{
    const SelectionOwner copied("CLIPBOARD", {{"text/uri-list", "sftp://harbour/letter.txt\r\n"}});
    const Outcome outcome = quillbay({"watch", "--clipboard"});
    EXPECT_EQ(outcome.exitStatus, 1);
    EXPECT_EQ(outcome.errors,
        QByteArray("quillbay: the copied files are not on this computer; "
                   "copy them here and watch the copies\n"));
    EXPECT_EQ(requests().size(), 0);
}
