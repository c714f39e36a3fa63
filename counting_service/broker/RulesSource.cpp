// SPDX-License-Identifier: MIT
#include "counting_service/broker/RulesSource.h"

#include "platform/text_layout/FontCatalogue.h"
#include "preferences/QBYUserDefaultsController.h"
#include "text_statistics/CountingRules.h"

#include <utility>

RulesSource::RulesSource()
{
    m_onThread.moveToThread(&m_thread);
    connect(
        this, &RulesSource::snapshotRequested, &m_onThread, [this] { Q_EMIT snapshotTaken(takeSnapshot()); });
    connect(this, &RulesSource::snapshotTaken, this, &RulesSource::deliver, Qt::QueuedConnection);
    m_thread.setObjectName(QStringLiteral("rules"));
    m_thread.start();
}

RulesSource::~RulesSource()
{
    m_thread.quit();
    m_thread.wait();
}

void RulesSource::requestSnapshot(const Receiver &receiver)
{
    m_waiting.push_back(receiver);
    if (!m_isTaking)
        startNext();
}

void RulesSource::startNext()
{
    m_isTaking = true;
    m_current = std::exchange(m_waiting, {});
    Q_EMIT snapshotRequested();
}

RulesSource::Snapshot RulesSource::takeSnapshot()
{
    Snapshot snapshot;
    snapshot.fontGeneration = m_fonts.generation();
    // Fills the font cache: workers cannot write it, and each of them would read all fonts otherwise.
    if (std::exchange(m_generation, snapshot.fontGeneration) != snapshot.fontGeneration)
        const FontCatalogue catalogue;
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    const CountingRules rules = currentCountingRules();
    snapshot.rules = {.localeName = rules.text.localeIdentifier().toUtf8(),
        .minimumSentencesOfParagraph = rules.text.minimumSentencesOfParagraph,
        .sentencesNeedTerminalPunctuation = rules.text.sentencesNeedTerminalPunctuation,
        .page = rules.page};
    return snapshot;
}

void RulesSource::deliver(const Snapshot &snapshot)
{
    m_isTaking = false;
    const std::vector<Receiver> receivers = std::exchange(m_current, {});
    if (!m_waiting.empty())
        startNext();
    for (const Receiver &receiver : receivers)
        receiver(snapshot);
}
