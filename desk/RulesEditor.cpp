// SPDX-License-Identifier: MIT
#include "desk/RulesEditor.h"

#include "preferences/PrintSettingsExtension.h"
#include "preferences/QBYUserDefaultsController.h"

#include <QFile>
#include <QFileInfo>
#include <QUndoCommand>

#include <algorithm>
#include <chrono>

namespace {

// A write makes several events within milliseconds.
constexpr std::chrono::milliseconds settlingTime{50};

QString suiteFile()
{
    return QFile::decodeName(QBYUserDefaultsController::sharedUserDefaults().path());
}

} // namespace

/// One step of the user: the values of the preferences before and after it.
class PreferencesCommand : public QUndoCommand {
public:
    PreferencesCommand(RulesEditor &editor, RulesEditor::Values changes, const QString &description)
        : QUndoCommand(description)
        , m_editor(editor)
        , m_before(RulesEditor::currentValues())
        , m_after(std::move(changes))
    {
    }

    void redo() override
    {
        if (m_isDone) {
            m_editor.restore(m_after);
            return;
        }
        m_isDone = true;
        m_editor.apply(m_after);
        keepDifferences(RulesEditor::currentValues());
    }

    void undo() override { m_editor.restore(m_before); }

    [[nodiscard]] int id() const override { return 1; }

    bool mergeWith(const QUndoCommand *other) override
    {
        const auto &later = static_cast<const PreferencesCommand &>(*other);
        if (later.text() != text() || !isOfNumbers() || !concernsTheSame(later))
            return false;
        m_after = later.m_after;
        return true;
    }

private:
    void keepDifferences(const RulesEditor::Values &now)
    {
        RulesEditor::Values before;
        RulesEditor::Values after;
        for (size_t i = 0; i < now.size(); ++i) {
            if (m_before[i].value != now[i].value) {
                before.push_back(m_before[i]);
                after.push_back(now[i]);
            }
        }
        m_before = std::move(before);
        m_after = std::move(after);
        setObsolete(m_after.empty());
    }

    // The arrows of a number make many small steps.
    [[nodiscard]] bool isOfNumbers() const
    {
        return std::all_of(m_after.begin(), m_after.end(), [](const RulesEditor::Change &change) {
            return std::holds_alternative<qint64>(change.value)
                || std::holds_alternative<double>(change.value);
        });
    }

    [[nodiscard]] bool concernsTheSame(const PreferencesCommand &other) const
    {
        if (m_after.size() != other.m_after.size())
            return false;
        for (size_t i = 0; i < m_after.size(); ++i) {
            if (m_after[i].preference != other.m_after[i].preference)
                return false;
        }
        return true;
    }

    RulesEditor &m_editor;
    RulesEditor::Values m_before;
    RulesEditor::Values m_after;
    bool m_isDone = false;
};

RulesEditor::RulesEditor(PrinterPapers &papers)
    : m_papers(papers)
    , m_notifications(QBYPreferencesChangedNotification)
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(settlingTime);
    connect(&m_settling, &QTimer::timeout, this, [this] {
        followFile();
        Q_EMIT changed();
    });
    const auto settle = [this] { m_settling.start(); };
    connect(&m_notifications, &NotificationObserver::posted, this, settle);
    // The margins and the rule of sentences are changed without a notification. Every write makes and removes
    // a journal in the folder.
    connect(&m_folder, &QFileSystemWatcher::directoryChanged, this, settle);
    followFile();
}

RulesEditor::~RulesEditor() = default;

void RulesEditor::followFile()
{
    // The folder may have been made or replaced meanwhile.
    const QString folder = QFileInfo(suiteFile()).path();
    if (!m_folder.directories().contains(folder) && QFileInfo(folder).isDir())
        m_folder.addPath(folder);
}

RulesEditor::Values RulesEditor::currentValues()
{
    Values values;
    for (const EditablePreference &row : editablePreferences()) {
        // A paper that was never chosen counts as this one, and cannot be unset.
        values.push_back(
            {row.preference, valueOf(row).value_or(DefaultsValue(QBYExtension::paperNameWithoutChoice()))});
    }
    return values;
}

void RulesEditor::apply(const Values &values)
{
    // The folder may have become writable since the launch. Otherwise the next launch would replace the
    // values.
    if (QBYUserDefaultsController::unstoredDefaults())
        QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    bool isStored = true;
    for (const Change &change : values)
        isStored = setValue(editablePreference(change.preference), change.value) && isStored;
    if (isStored)
        Q_EMIT stored();
    else
        Q_EMIT failed(suiteFile());
    Q_EMIT changed();
}

void RulesEditor::restore(const Values &values)
{
    const Values others = currentValues();
    apply(values);
    // Setting one preference may have changed another, which is not among them.
    const auto isAmongThem = [&values](const Change &other) {
        return std::any_of(values.begin(), values.end(),
            [&](const Change &change) { return change.preference == other.preference; });
    };
    Values sideEffects;
    for (const Change &other : others) {
        if (!isAmongThem(other) && valueOf(editablePreference(other.preference)) != other.value)
            sideEffects.push_back(other);
    }
    if (!sideEffects.empty())
        apply(sideEffects);
}

void RulesEditor::change(const std::vector<Change> &changes, const QString &description)
{
    m_undoStack.push(new PreferencesCommand(*this, changes, description));
}

void RulesEditor::restoreDefaults()
{
    Values values;
    for (const EditablePreference &row : editablePreferences()) {
        if (const auto value = defaultValueOf(row, m_papers.answer()))
            values.push_back({row.preference, *value});
    }
    change(values, tr("Restore Defaults"));
}
