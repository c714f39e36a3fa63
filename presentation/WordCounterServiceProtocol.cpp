// SPDX-License-Identifier: MIT
#include "presentation/WordCounterServiceProtocol.h"

#include "platform/locale/CurrentLocale.h"

QString WordCounterServiceProtocol::serviceName()
{
    return QStringLiteral("Brisklane.QBYServiceProviderXPC");
}

RemoteObjectInterface WordCounterServiceProtocol::interface()
{
    return {.objectPath = QStringLiteral("/Brisklane/QBYServiceProviderXPC"),
        .name = QStringLiteral("com.quillbay.WordCounterServiceProtocol")};
}

void WordCounterServiceProtocol::countWordsForAttributedStringRTFDData(Data data, Results withResults) const
{
    send(QStringLiteral("countWordsForAttributedStringRTFDData"), std::move(data), std::move(withResults));
}

void WordCounterServiceProtocol::countWordsForDocX(Data data, Results withResults) const
{
    send(QStringLiteral("countWordsForDocX"), std::move(data), std::move(withResults));
}

void WordCounterServiceProtocol::countDocument(
    DocumentKind kind, Data data, Results withResults, Failed failed) const
{
    m_proxy.send(
        {.method = QStringLiteral("countWordsForDocX"),
            .payload = std::move(data),
            .options = {{QStringLiteral("locale"), currentLocaleIdentifier()},
                {QStringLiteral("type"), mimeTypes(kind).first()}, {QStringLiteral("wants-cause"), true}}},
        [withResults = std::move(withResults)](
            const RemoteReply &reply) { withResults(statsFromCounts(reply)); },
        std::move(failed));
}

void WordCounterServiceProtocol::send(const QString &method, Data data, Results withResults) const
{
    m_proxy.send({.method = method,
                     .payload = std::move(data),
                     .options = {{QStringLiteral("locale"), currentLocaleIdentifier()}}},
        [withResults = std::move(withResults)](
            const RemoteReply &reply) { withResults(statsFromCounts(reply)); });
}
