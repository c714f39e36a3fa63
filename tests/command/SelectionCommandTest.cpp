// SPDX-License-Identifier: MIT
#include "tests/command/ServiceCommandTest.h"
#include "tests/platform/pasteboard/SelectionOwner.h"

#include <QCryptographicHash>

using ::testing::HasSubstr;
using Outcome = ChildProcess::Outcome;

namespace {

class SelectionCommand : public ServiceCommandTest {
protected:
    static QString hashOf(const QByteArray &bytes)
    {
        return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
    }

    /// Runs the command, which must fail; returns its standard error and the notification.
    static std::pair<QByteArray, QByteArray> failure(const QByteArrayList &words)
    {
        ChildProcess server(testProgram(QStringLiteral("notification_server")));
        server.start({});
        EXPECT_EQ(server.readLine(), QByteArray("ready"));
        const Outcome outcome = quillbay(words);
        EXPECT_EQ(outcome.exitStatus, 1);
        EXPECT_EQ(outcome.output, QByteArray());
        return {outcome.errors, server.readLine()};
    }
};

using Told = std::pair<QByteArray, QByteArray>;

Told told(const QByteArray &cause, const QByteArray &sentence)
{
    return {"quillbay: " + cause + '\n', "Quillbay|com.quillbay.Quillbay|Quillbay|" + sentence};
}

} // namespace

TEST_F(SelectionCommand, SendsTheSelectedTextInItsRichestFormAndAsPlainText)
{
    const SelectionOwner owner(
        "PRIMARY", {{"text/html", "<b>page"}, {"text/rtf", "{\\rtf1 rich}"}, {"UTF8_STRING", "plain"}});
    const Outcome outcome = quillbay({"selection"});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.errors, QByteArray());
    EXPECT_EQ(outcome.output, QByteArray());
    EXPECT_EQ(request()[u"message"].toString(), QStringLiteral("wordCountSelectedTextService"));
    EXPECT_EQ(request()[u"forms"].toObject(),
        (QJsonObject{{QStringLiteral("text/rtf"), hashOf("{\\rtf1 rich}")},
            {QStringLiteral("text/plain;charset=utf-8"), hashOf("plain")}}));
    EXPECT_EQ(request()[u"text"].toString(), QStringLiteral("rich"));
}

TEST_F(SelectionCommand, SendsTheClipboardOnRequest)
{
    const SelectionOwner selected("PRIMARY", {{"UTF8_STRING", "selected"}});
    const SelectionOwner copied("CLIPBOARD", {{"UTF8_STRING", "copied"}});
    EXPECT_EQ(quillbay({"selection", "--clipboard"}).exitStatus, 0);
    EXPECT_EQ(request()[u"text"].toString(), QStringLiteral("copied"));
}

TEST_F(SelectionCommand, SendsTwentyMegabytes)
{
    const QByteArray contents(20 << 20, 'x');
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", contents}});
    EXPECT_EQ(quillbay({"selection"}).exitStatus, 0);
    EXPECT_EQ(request()[u"forms"].toObject(),
        (QJsonObject{{QStringLiteral("text/plain;charset=utf-8"), hashOf(contents)}}));
}

TEST_F(SelectionCommand, WritesTheFirstLaunchDefaultsBeforeItSendsTheMessage)
{
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "text"}});
    EXPECT_EQ(quillbay({"selection"}).exitStatus, 0);
    EXPECT_TRUE(request()[u"hasDefaults"].toBool());
}

TEST_F(SelectionCommand, PassesDisplayAndLocaleToTheProviderThroughTheBus)
{
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "text"}});
    ChildProcess command(productProgram(QStringLiteral("quillbay")));
    command.withVariable("LC_NUMERIC", "de_CH.UTF-8").withVariable("XDG_CURRENT_DESKTOP", "Harbour");
    EXPECT_EQ(command.run({"selection"}).exitStatus, 0);
    const QJsonObject environment = request()[u"environment"].toObject();
    EXPECT_EQ(environment[u"DISPLAY"].toString(), TestDisplay::start());
    EXPECT_EQ(environment[u"LANG"].toString(), QStringLiteral("en_US.UTF-8"));
    EXPECT_EQ(environment[u"LC_NUMERIC"].toString(), QStringLiteral("de_CH.UTF-8"));
    EXPECT_EQ(environment[u"XDG_CURRENT_DESKTOP"].toString(), QStringLiteral("Harbour"));
}

TEST_F(SelectionCommand, HidesTheDisplayOfAnEarlierSessionFromTheProvider)
{
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "text"}});
    ChildProcess earlier(productProgram(QStringLiteral("quillbay")));
    earlier.withVariable("WAYLAND_DISPLAY", "wayland-of-yesterday").withVariable("LC_ALL", "C.UTF-8");
    EXPECT_EQ(earlier.run({"selection"}).exitStatus, 0);
    EXPECT_EQ(
        request()[u"environment"][u"WAYLAND_DISPLAY"].toString(), QStringLiteral("wayland-of-yesterday"));
    EXPECT_EQ(quillbay({"selection"}).exitStatus, 0);
    const QJsonObject environment = requests().constLast()[u"environment"].toObject();
    EXPECT_EQ(environment[u"WAYLAND_DISPLAY"].toString(), QString());
    EXPECT_EQ(environment[u"LC_ALL"].toString(), QString());
    EXPECT_EQ(environment[u"DISPLAY"].toString(), TestDisplay::start());
}

TEST_F(SelectionCommand, PassesItsActivationTokenToTheProviderOnly)
{
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "text"}});
    for (const bool isX11 : {false, true}) {
        ChildProcess command(productProgram(QStringLiteral("quillbay")));
        command.withVariable("XDG_ACTIVATION_TOKEN", "token-1");
        if (isX11)
            command.withVariable("DESKTOP_STARTUP_ID", "token-2_TIME7");
        EXPECT_EQ(command.run({"selection"}).exitStatus, 0);
    }
    EXPECT_EQ(quillbay({"selection"}).exitStatus, 0);
    ASSERT_EQ(requests().size(), 3);
    EXPECT_EQ(requests()[0][u"token"].toString(), QStringLiteral("token-1"));
    EXPECT_EQ(requests()[1][u"token"].toString(), QStringLiteral("token-2_TIME7"));
    EXPECT_EQ(requests()[2][u"token"].toString(), QString());
    for (const QJsonObject &request : requests()) {
        EXPECT_FALSE(request[u"environment"].toObject().contains(u"XDG_ACTIVATION_TOKEN"));
        EXPECT_FALSE(request[u"environment"].toObject().contains(u"DESKTOP_STARTUP_ID"));
    }
}

TEST_F(SelectionCommand, ReportsThatNothingIsSelectedOrCopied)
{
    EXPECT_EQ(failure({"selection"}), told("nothing is selected", "Nothing is selected."));
    EXPECT_EQ(
        failure({"selection", "--clipboard"}), told("the clipboard is empty", "The clipboard is empty."));
    EXPECT_EQ(requests().size(), 0);
}

TEST_F(SelectionCommand, ReportsAnApplicationThatDoesNotAnswer)
{
    SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "text"}});
    owner.stop();
    EXPECT_EQ(failure({"selection"}),
        told("the application that has the selection does not answer",
            "The application that has the selection does not answer."));
    EXPECT_EQ(requests().size(), 0);
}

TEST_F(SelectionCommand, ReportsAMissingDisplay)
{
    qunsetenv("DISPLAY");
    const auto [errors, notification] = failure({"selection"});
    EXPECT_THAT(errors.toStdString(), HasSubstr("there is no display"));
    EXPECT_THAT(notification.toStdString(), HasSubstr("There is no display"));
}

TEST_F(SelectionCommand, ReportsTheProvidersErrorWordForWord)
{
    installProvider("No_such_text.");
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "text"}});
    EXPECT_EQ(failure({"selection"}), told("No_such_text.", "No_such_text."));
}

TEST_F(SelectionCommand, ReportsAMissingProvider)
{
    removeProvider();
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "text"}});
    const auto [errors, notification] = failure({"selection"});
    EXPECT_THAT(errors.toStdString(), HasSubstr("the service provider does not answer: "));
    EXPECT_THAT(notification.toStdString(), HasSubstr("com.quillbay.ServiceProvider"));
}

TEST_F(SelectionCommand, ReportsOnStandardErrorAloneWithoutANotificationServer)
{
    const Outcome withBus = quillbay({"selection"});
    EXPECT_EQ(withBus.exitStatus, 1);
    EXPECT_EQ(withBus.errors, QByteArray("quillbay: nothing is selected\n"));
    ChildProcess withoutBus(productProgram(QStringLiteral("quillbay")));
    withoutBus.withVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nobody");
    EXPECT_EQ(withoutBus.run({"selection"}).errors, QByteArray("quillbay: nothing is selected\n"));
}

TEST_F(SelectionCommand, ExplainsItsArguments)
{
    EXPECT_THAT(quillbay({"selection", "--help"}).output.toStdString(), HasSubstr("--clipboard"));
    for (const QByteArrayList &words : {QByteArrayList{"selection", "file"}, {"selection", "--json"}}) {
        const Outcome outcome = quillbay(words);
        EXPECT_EQ(outcome.exitStatus, 2);
        EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("Try 'quillbay selection --help' for more."));
    }
}
