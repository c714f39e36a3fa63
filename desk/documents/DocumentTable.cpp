// SPDX-License-Identifier: MIT
#include "desk/documents/DocumentTable.h"

#include "platform/system/FileURL.h"
#include "preferences/QBYUserDefaultsController.h"
#include "writing_progress/ProgressText.h"

#include <QFile>
#include <QLocale>

#include <array>

namespace {

using State = FollowedDocument::State;

/// By Statistic.
constexpr std::array<const char *, statisticCount> countTitles{QT_TRANSLATE_NOOP("DocumentTable", "Words"),
    QT_TRANSLATE_NOOP("DocumentTable", "Characters"),
    QT_TRANSLATE_NOOP("DocumentTable", "Characters with white space"),
    QT_TRANSLATE_NOOP("DocumentTable", "Sentences"), QT_TRANSLATE_NOOP("DocumentTable", "Lines"),
    QT_TRANSLATE_NOOP("DocumentTable", "Hard line breaks"), QT_TRANSLATE_NOOP("DocumentTable", "Paragraphs"),
    QT_TRANSLATE_NOOP("DocumentTable", "Indented paragraphs")};

bool isShown(Statistic statistic)
{
    using Preferences = QBYUserDefaultsController;
    switch (statistic) {
    case Statistic::Words:
        return true;
    case Statistic::Characters:
        return Preferences::isShowCharacterCountPreferenceOn();
    case Statistic::CharactersIncludingWhitespace: // hidden together with the characters, as in the windows
        return Preferences::isShowCharacterCountPreferenceOn()
            && Preferences::isShowCharacterCountIncludingWhitespacePreferenceOn();
    case Statistic::Sentences:
        return Preferences::isShowSentencesCountPreferenceOn();
    case Statistic::Lines:
        return Preferences::isShowLineCountPreferenceOn();
    case Statistic::HardLineBreaks:
        return Preferences::isShowHardLineBreakCountPreferenceOn();
    case Statistic::Paragraphs:
        return Preferences::isShowParagraphCountPreferenceOn();
    case Statistic::IndentedParagraphs:
        return Preferences::isShowHardIndentParagraphCountPreferenceOn();
    }
    return false;
}

QString numberText(quint64 number)
{
    return QLocale().toString(static_cast<qulonglong>(number));
}

QString folderText(const FollowedDocument &document)
{
    return QFile::decodeName(folderOf(document.path()));
}

} // namespace

DocumentTable::DocumentTable(const DocumentList &list)
    : m_list(list)
{
    chooseColumns();
    connect(&list, &DocumentList::aboutToReset, this, &DocumentTable::beginResetModel);
    connect(&list, &DocumentList::wasReset, this, &DocumentTable::endResetModel);
    connect(&list, &DocumentList::changed, this, [this](int row) {
        if (row >= 0 && row < rowCount())
            Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    });
}

void DocumentTable::chooseColumns()
{
    // What a writer looks for first is on the left; a narrow window hides the rest.
    std::vector<Column> columns{{Kind::Name}, {Kind::Count, Statistic::Words}, {Kind::Session}, {Kind::Today},
        {Kind::Goal}, {Kind::Progress}};
    for (const StatisticRow &row : statisticTable) {
        if (row.statistic != Statistic::Words && isShown(row.statistic))
            columns.push_back({Kind::Count, row.statistic});
    }
    columns.push_back({Kind::Saved});
    columns.push_back({Kind::Folder});
    const bool isSame = std::ranges::equal(columns, m_columns, [](const Column &one, const Column &other) {
        return one.kind == other.kind && one.statistic == other.statistic;
    });
    if (isSame)
        return;
    beginResetModel();
    m_columns = std::move(columns);
    endResetModel();
}

int DocumentTable::columnOf(Kind kind) const
{
    const auto found =
        std::ranges::find_if(m_columns, [kind](const Column &column) { return column.kind == kind; });
    return static_cast<int>(found - m_columns.begin());
}

int DocumentTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_list.size();
}

int DocumentTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

std::optional<GoalProgress> DocumentTable::progressOf(const FollowedDocument &document) const
{
    const Plan &plan = m_list.planOf(document);
    if (!plan.goal || !document.today())
        return std::nullopt;
    return ::progressOf(*plan.goal, *document.today());
}

QVariant DocumentTable::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_list.size())
        return {};
    const FollowedDocument &document = m_list.at(index.row());
    const Column &shown = column(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return text(document, shown);
    case sortRole:
        return sortValue(document, shown);
    case percentRole:
        if (const auto progress = progressOf(document); progress && shown.kind == Kind::Progress)
            return progress->percent();
        return {};
    case Qt::ToolTipRole:
        return toolTip(document).toHtmlEscaped();
    case Qt::TextAlignmentRole: {
        const bool isNumber =
            shown.kind == Kind::Count || shown.kind == Kind::Session || shown.kind == Kind::Today;
        return QVariant::fromValue(
            Qt::Alignment(isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    default:
        return {};
    }
}

QString DocumentTable::text(const FollowedDocument &document, const Column &shown) const
{
    const auto &today = document.today();
    const Plan &plan = m_list.planOf(document);
    switch (shown.kind) {
    case Kind::Name:
        return lastPathComponent(fileURLOfPath(document.path()));
    case Kind::Folder:
        return folderText(document);
    case Kind::Count:
        return today ? numberText(today->count(shown.statistic)) : QString();
    case Kind::Session:
        return document.changeOfSession() ? changeText(*document.changeOfSession()) : QString();
    case Kind::Today:
        return today ? changeText(today->change(Statistic::Words)) : QString();
    case Kind::Goal:
        if (plan.goal)
            return goalText(*plan.goal);
        return plan.limit ? limitText(*plan.limit) : QString();
    case Kind::Progress: {
        if (plan.limit && today && isPassed(*plan.limit, today->counts))
            return tr("More than %1").arg(amountText(plan.limit->statistic, plan.limit->amount));
        const auto progress = progressOf(document);
        return progress ? tr("%1 %").arg(progress->percent()) : QString();
    }
    case Kind::Saved:
        break;
    }
    switch (document.state()) {
    case State::Waiting:
        return tr("Reading …");
    case State::Counted:
        return QLocale().toString(document.saved(), QLocale::ShortFormat);
    case State::Missing:
        return tr("The file is missing");
    case State::Unreadable:
        return tr("The file cannot be read");
    case State::Uncounted:
        return tr("The counting service does not answer");
    }
    return {};
}

QVariant DocumentTable::sortValue(const FollowedDocument &document, const Column &shown) const
{
    const auto &today = document.today();
    switch (shown.kind) {
    case Kind::Count:
        return today ? static_cast<qlonglong>(today->count(shown.statistic)) : qlonglong{-1};
    case Kind::Session:
        return static_cast<qlonglong>(document.changeOfSession().value_or(0));
    case Kind::Today:
        return static_cast<qlonglong>(today ? today->change(Statistic::Words) : 0);
    case Kind::Progress: {
        const auto progress = progressOf(document);
        return progress ? progress->percent() : -1;
    }
    case Kind::Saved:
        return document.saved();
    default:
        return text(document, shown);
    }
}

QString DocumentTable::toolTip(const FollowedDocument &document) const
{
    QStringList lines{QFile::decodeName(document.path())};
    const Plan &plan = m_list.planOf(document);
    if (const auto progress = progressOf(document))
        lines.append(progressText(*plan.goal, *progress));
    if (plan.limit)
        lines.append(limitText(*plan.limit));
    return lines.join(u'\n');
}

QVariant DocumentTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const Column &shown = column(section);
    const bool isTip = role == Qt::ToolTipRole;
    if (role != Qt::DisplayRole && !isTip)
        return {};
    switch (shown.kind) {
    case Kind::Name:
        return isTip ? QString() : tr("Name");
    case Kind::Folder:
        return isTip ? QString() : tr("Folder");
    case Kind::Count:
        return isTip ? QString() : tr(countTitles.at(static_cast<std::size_t>(shown.statistic)));
    case Kind::Session:
        return isTip ? tr("By how many words the document has changed since this window was opened")
                     : tr("Session");
    case Kind::Today:
        return isTip ? tr("By how many words the document has changed since midnight") : tr("Today");
    case Kind::Goal:
        return isTip ? QString() : tr("Goal");
    case Kind::Progress:
        return isTip ? QString() : tr("Progress");
    case Kind::Saved:
        break;
    }
    return isTip ? QString() : tr("Last save");
}

QString DocumentTable::totalText(const std::vector<int> &rows) const
{
    QBYWordCounterStats counts;
    qint64 today = 0;
    for (const int row : rows) {
        if (const auto &total = m_list.at(row).today()) {
            counts += total->counts;
            today += total->change(Statistic::Words);
        }
    }
    QStringList parts;
    for (const Column &shown : m_columns) {
        if (shown.kind == Kind::Count)
            parts.append(tr("%1: %2").arg(tr(countTitles.at(static_cast<std::size_t>(shown.statistic))),
                numberText(countOf(counts, shown.statistic))));
    }
    parts.append(tr("Today: %1").arg(changeText(today)));
    return parts.join(QStringLiteral(" · "));
}
