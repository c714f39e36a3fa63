// SPDX-License-Identifier: MIT
#include "desk/documents/DocumentList.h"

#include "platform/defaults/FaultText.h"

#include <QFile>

#include <algorithm>
#include <map>
#include <numeric>
#include <utility>

namespace {

/// Texts that wait to be counted are in memory.
constexpr std::size_t maxWaitingCounts = 8;
/// How often the date is looked at, and whether missing files are back.
constexpr std::chrono::seconds checkInterval{5};

} // namespace

DocumentList::DocumentList(ApplicationActivity &activity)
    : m_surroundings{m_queue, m_recorder, activity}
    , m_day(QDate::currentDate())
{
    m_beginning.setSingleShot(true);
    connect(&m_beginning, &QTimer::timeout, this, &DocumentList::beginNext);
    connect(&m_queue, &CountQueue::advanced, &m_beginning, qOverload<>(&QTimer::start));
    connect(&m_checking, &QTimer::timeout, this, &DocumentList::checkAll);
    m_checking.start(checkInterval);
}

DocumentList::~DocumentList() = default;

bool DocumentList::reportProblem(const ProgressStore::Failure &failure)
{
    const QString file = QFile::decodeName(m_store.path());
    if (failure)
        Q_EMIT problem(tr("%1: cannot be used (%2), so the list, the goals and the history are not stored. "
                          "Check the permissions and the free space of its folder.")
                           .arg(file, faultText(failure->reason)));
    else if (!m_store.brokenFile().isEmpty())
        Q_EMIT problem(tr("%1: was damaged. It was renamed to %2, and a new list begun.")
                           .arg(file, QFile::decodeName(m_store.brokenFile())));
    else
        Q_EMIT problem({});
    return !failure;
}

std::unique_ptr<FollowedDocument> DocumentList::makeDocument(const ListedDocument &listed)
{
    auto document = std::make_unique<FollowedDocument>(listed, m_surroundings);
    FollowedDocument *const known = document.get();
    connect(known, &FollowedDocument::changed, this, [this, known] {
        if (!m_isResetting)
            Q_EMIT changed(indexOf(*known));
    });
    connect(known, &FollowedDocument::recorded, this, [this, known] { readTotal(*known); });
    connect(known, &FollowedDocument::moved, this, [this, known](const QByteArray &from) {
        if (auto plan = m_plans.extract(from)) {
            plan.key() = known->path();
            m_plans.insert(std::move(plan));
        }
    });
    return document;
}

void DocumentList::load()
{
    const auto listed = m_store.documents();
    const auto plans = m_store.plans();
    ProgressStore::Failure failure;
    if (!listed)
        failure = listed.error();
    else if (!plans)
        failure = plans.error();
    if (!reportProblem(failure))
        return;
    Q_EMIT aboutToReset();
    m_isResetting = true;
    std::map<QByteArray, std::unique_ptr<FollowedDocument>> known;
    for (auto &document : m_documents)
        known[document->path()] = std::move(document);
    m_documents.clear();
    m_plans = plans.value();
    for (const ListedDocument &document : listed.value()) {
        const auto found = known.find(document.path);
        const bool isKnown = found != known.end() && found->second->identifier() == document.identifier;
        m_documents.push_back(isKnown ? std::move(found->second) : makeDocument(document));
        if (!isKnown)
            m_toBegin.emplace_back(m_documents.back().get());
    }
    readTotals();
    m_isResetting = false;
    Q_EMIT wasReset();
    m_beginning.start();
}

void DocumentList::readTotals()
{
    m_day = QDate::currentDate();
    const auto totals = m_store.totalsOfDay(m_day);
    if (!totals)
        return;
    for (const auto &document : m_documents) {
        if (const auto found = totals.value().find(document->identifier()); found != totals.value().end())
            document->setToday(found->second);
    }
}

void DocumentList::readTotal(FollowedDocument &document)
{
    const auto total = m_store.totalOfDay(document.path(), m_day);
    if (total && total.value())
        document.setToday(*total.value());
}

void DocumentList::beginNext()
{
    // Reading runs the event loop when it takes long.
    if (m_isBeginning)
        return;
    m_isBeginning = true;
    constexpr std::chrono::milliseconds turn{20};
    const auto end = std::chrono::steady_clock::now() + turn;
    const QPointer<DocumentList> self(this);
    while (
        !m_toBegin.empty() && m_queue.size() < maxWaitingCounts && std::chrono::steady_clock::now() < end) {
        const QPointer<FollowedDocument> document = m_toBegin.front();
        m_toBegin.pop_front();
        if (document)
            document->begin();
        if (!self)
            return;
    }
    m_isBeginning = false;
    if (!m_toBegin.empty() && m_queue.size() < maxWaitingCounts)
        m_beginning.start();
}

void DocumentList::checkAll()
{
    if (m_day != QDate::currentDate())
        readTotals();
    for (const auto &document : m_documents) {
        const bool isLost = document->state() == FollowedDocument::State::Missing
            || document->state() == FollowedDocument::State::Unreadable;
        if (isLost && document->isBack())
            m_toBegin.emplace_back(document.get());
    }
    m_beginning.start();
}

void DocumentList::followRules()
{
    for (const auto &document : m_documents) {
        if (document->isOutdated())
            m_toBegin.emplace_back(document.get());
    }
    m_beginning.start();
}

const Plan &DocumentList::planOf(const FollowedDocument &document) const
{
    static const Plan none;
    const auto found = m_plans.find(document.path());
    return found == m_plans.end() ? none : found->second;
}

int DocumentList::indexOf(const FollowedDocument &document) const
{
    const auto found =
        std::ranges::find_if(m_documents, [&](const auto &known) { return known.get() == &document; });
    return found == m_documents.end() ? -1 : static_cast<int>(found - m_documents.begin());
}

QByteArrayList DocumentList::pathsOf(const std::vector<int> &indexes) const
{
    QByteArrayList paths;
    for (const int index : indexes)
        paths.append(at(index).path());
    return paths;
}

void DocumentList::add(const QByteArrayList &paths)
{
    const auto added = m_store.add(paths);
    if (reportProblem(added ? std::nullopt : std::optional(added.error())))
        load();
}

void DocumentList::remove(const QByteArrayList &paths)
{
    if (reportProblem(m_store.remove(paths)))
        load();
}

void DocumentList::shift(int index, int step)
{
    std::vector<int> order(m_documents.size());
    std::iota(order.begin(), order.end(), 0);
    std::iter_swap(order.begin() + index, order.begin() + index + step);
    if (reportProblem(m_store.setOrder(pathsOf(order))))
        load();
}

FollowedDocument *DocumentList::documentAt(const QByteArray &path) const
{
    const auto found =
        std::ranges::find_if(m_documents, [&](const auto &document) { return document->path() == path; });
    return found == m_documents.end() ? nullptr : found->get();
}

void DocumentList::setPlan(const QByteArray &path, const Plan &plan)
{
    if (!reportProblem(m_store.setPlan(path, plan)))
        return;
    m_plans[path] = plan;
    if (const FollowedDocument *const document = documentAt(path))
        Q_EMIT changed(indexOf(*document));
}

void DocumentList::find(const QByteArray &from, const QByteArray &path)
{
    if (!reportProblem(m_store.move(from, path)))
        return;
    if (FollowedDocument *const document = documentAt(from))
        document->follow(path);
    load();
}

bool DocumentList::keepsHistory()
{
    const auto keeps = m_store.keepsHistory();
    return !keeps || keeps.value();
}

void DocumentList::setKeepsHistory(bool keeps)
{
    reportProblem(m_store.setKeepsHistory(keeps));
}

void DocumentList::forgetHistory(const std::vector<int> &indexes)
{
    if (reportProblem(m_store.forgetHistory(pathsOf(indexes))))
        readTotals();
}
