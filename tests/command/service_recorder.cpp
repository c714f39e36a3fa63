// SPDX-License-Identifier: MIT
// service_recorder FILE [REFUSAL]: a service provider, started by the session bus. Appends each request to
// FILE as a JSON object on a line, answers with the error REFUSAL if it is given, and exits.
#include "documents/loading/PasteboardText.h"
#include "platform/services/ServicesRegistration.h"
#include "preferences/QBYUserDefaultsController.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcessEnvironment>

namespace {

class Recorder : public ServicesProvider {
public:
    Recorder(QString file, QString refusal)
        : m_file(std::move(file))
        , m_refusal(std::move(refusal))
    {
    }

    void setToken(const QByteArray &token) { m_token = token; }

    void wordCountSelectedTextService(const Pasteboard &pasteboard, const QString &, QString *error) override
    {
        record("wordCountSelectedTextService", pasteboard, error);
    }
    void watchTheTextFileService(const Pasteboard &pasteboard, const QString &, QString *error) override
    {
        record("watchTheTextFileService", pasteboard, error);
    }

private:
    void record(const char *message, const Pasteboard &pasteboard, QString *error) const
    {
        QJsonObject forms;
        for (const auto &[type, bytes] : pasteboard.forms())
            forms[type] =
                QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
        QJsonObject environment;
        const QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        for (const QString &name : variables.keys())
            environment[name] = variables.value(name);
        const auto text = readAttributedString(pasteboard);
        const QJsonObject request{
            {QStringLiteral("message"), QString::fromLatin1(message)},
            {QStringLiteral("token"), QString::fromUtf8(m_token)},
            {QStringLiteral("forms"), forms},
            {QStringLiteral("files"),
                QJsonArray::fromStringList(QUrl::toStringList(pasteboard.readFileURLs()))},
            {QStringLiteral("text"), text ? text->string().left(1000) : QString()},
            {QStringLiteral("environment"), environment},
            // True only after the first-launch step.
            {QStringLiteral("hasDefaults"),
                QBYUserDefaultsController::shouldEnforceTrailingPeriodForSentencesCount()},
        };
        QFile file(m_file);
        if (file.open(QIODevice::Append))
            file.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
        *error = m_refusal;
    }

    const QString m_file;
    const QString m_refusal;
    QByteArray m_token;
};

} // namespace

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    const QStringList words = QCoreApplication::arguments();
    Recorder recorder(words.value(1), words.value(2));
    ServicesRegistration registration(
        recorder, [&](const QByteArray &token) { recorder.setToken(token); }, &QCoreApplication::quit,
        &QCoreApplication::quit);
    if (!registration.start())
        return 1;
    const int status = QCoreApplication::exec();
    registration.giveNameAway();
    return status;
}
