// SPDX-License-Identifier: MIT
#include "counting_service/broker/ServiceObject.h"

#include <algorithm>

namespace {

using Outcome = ReceivedRequest::Outcome;

// A name that no locale has leaves the count without one, as such a name in LANG does.
std::optional<QByteArray> localeNameIn(const QVariantMap &options)
{
    const QVariant value = options.value(QStringLiteral("locale"));
    const QString name = value.toString();
    if (value.metaType() != QMetaType::fromType<QString>() || name.isEmpty())
        return std::nullopt;
    const bool isPossible = name.size() <= RulesSnapshot::longestLocaleName
        && std::all_of(
            name.begin(), name.end(), [](QChar unit) { return unit > u' ' && unit < QChar(0x7F); });
    return isPossible ? name.toLatin1() : QByteArray("C");
}

// In the order of the interface.
QVariantList argumentsOf(const QBYWordCounterStats &stats)
{
    return {stats.numberOfWords, stats.numberOfCharacters, stats.numberOfCharactersIncludingWhitespace,
        stats.numberOfSentences, stats.numberOfLines, stats.numberOfHardLineBreaks, stats.numberOfParagraphs,
        stats.numberOfIndentedParagraphs};
}

} // namespace

ServiceObject::ServiceObject(Receiver receiver)
    : m_receiver(std::move(receiver))
{
    // Until then the bus's library does not know the type by its name.
    qRegisterMetaType<QDBusUnixFileDescriptor>("QDBusUnixFileDescriptor");
}

QString ServiceObject::serviceName()
{
    return QStringLiteral("Brisklane.QBYServiceProviderXPC");
}

QString ServiceObject::path()
{
    return QStringLiteral("/Brisklane/QBYServiceProviderXPC");
}

void ServiceObject::countWordsForAttributedStringRTFDData(const QDBusUnixFileDescriptor &payload,
    qulonglong length, bool absent, const QVariantMap &options, qulonglong &, qulonglong &, qulonglong &,
    qulonglong &, qulonglong &, qulonglong &, qulonglong &, qulonglong &)
{
    receive(PayloadKind::FlatRtfd, payload, length, absent, options);
}

void ServiceObject::countWordsForDocX(const QDBusUnixFileDescriptor &payload, qulonglong length, bool absent,
    const QVariantMap &options, qulonglong &, qulonglong &, qulonglong &, qulonglong &, qulonglong &,
    qulonglong &, qulonglong &, qulonglong &)
{
    receive(PayloadKind::WordDocument, payload, length, absent, options);
}

void ServiceObject::receive(PayloadKind kind, const QDBusUnixFileDescriptor &payload, quint64 length,
    bool absent, const QVariantMap &options)
{
    setDelayedReply(true);
    if (!message().isReplyRequired())
        return; // nobody waits for the counts
    // The message itself holds a copy of the descriptor, the prepared reply does not.
    const QDBusMessage reply = message().createReply();
    const QDBusConnection bus = connection();
    m_receiver({kind, payload, length, absent, localeNameIn(options), [reply, bus](const Outcome &outcome) {
                    QDBusMessage filled = reply;
                    filled.setArguments(argumentsOf(outcome ? outcome.value() : QBYWordCounterStats()));
                    bus.send(filled);
                }});
}
