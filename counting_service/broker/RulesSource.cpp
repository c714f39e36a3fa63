// SPDX-License-Identifier: MIT
#include "counting_service/broker/RulesSource.h"

#include "platform/text_layout/FontCatalogue.h"
#include "preferences/QBYUserDefaultsController.h"
#include "text_statistics/CountingRules.h"

#include <utility>

RulesSource::RulesSource()
{
    m_onThread.moveToThread(&m_thread);
    connect(this, &RulesSource::wanted, &m_onThread, [this] { Q_EMIT taken(take()); });
    connect(this, &RulesSource::taken, this, &RulesSource::hand, Qt::QueuedConnection);
    m_thread.setObjectName(QStringLiteral("rules"));
    m_thread.start();
}

RulesSource::~RulesSource()
{
    m_thread.quit();
    m_thread.wait();
}

void RulesSource::ask(const Receiver &receiver)
{
    m_waiting.push_back(receiver);
    if (!m_isTaking)
        takeNext();
}

void RulesSource::takeNext()
{
    m_isTaking = true;
    m_served = std::exchange(m_waiting, {});
    Q_EMIT wanted();
}

RulesSource::Snapshot RulesSource::take()
{
    Snapshot snapshot;
    snapshot.fontGeneration = m_fonts.generation();
    // Workers may write nothing: the list of the fonts is cached here, or each of them would read them all.
    if (std::exchange(m_generation, snapshot.fontGeneration) != snapshot.fontGeneration)
        const FontCatalogue listed;
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    const CountingRules rules = currentCountingRules();
    snapshot.rules = {.localeName = rules.text.localeIdentifier().toUtf8(),
        .minimumSentencesOfParagraph = rules.text.minimumSentencesOfParagraph,
        .sentencesNeedTerminalPunctuation = rules.text.sentencesNeedTerminalPunctuation,
        .page = rules.page};
    return snapshot;
}

void RulesSource::hand(const Snapshot &snapshot)
{
    m_isTaking = false;
    const std::vector<Receiver> served = std::exchange(m_served, {});
    if (!m_waiting.empty())
        takeNext();
    for (const Receiver &receiver : served)
        receiver(snapshot);
}
