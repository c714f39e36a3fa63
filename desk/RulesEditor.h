// SPDX-License-Identifier: MIT
// RulesEditor changes the preferences for the pages of the window, with undo, and reports every change of
// them, by whichever process. What the preferences mean is left to the pages.
// Thread: main.  Owner: DeskWindow.
#pragma once

#include "desk/PrinterPapers.h"
#include "platform/session_bus/DistributedNotificationCenter.h"
#include "preferences/EditablePreferences.h"

#include <QFileSystemWatcher>
#include <QTimer>
#include <QUndoStack>

#include <vector>

class RulesEditor : public QObject {
    Q_OBJECT

public:
    /// papers: outlives the editor.
    explicit RulesEditor(PrinterPapers &papers);
    ~RulesEditor() override;

    [[nodiscard]] QUndoStack &undoStack() { return m_undoStack; }

    struct Change {
        Preference preference;
        DefaultsValue value;
    };
    /// Stores the changes at once, as one step for undo. description: for the Undo command, such as "Paper".
    /// Steps of one number that follow each other become one.
    void change(const std::vector<Change> &changes, const QString &description);

    /// Gives every preference its first-launch value; paper and margins only if the printer answers.
    void restoreDefaults();

Q_SIGNALS:
    /// A preference may have changed, here or elsewhere: read them again.
    void changed();
    /// The user's change is on disk.
    void stored();
    /// A value could not be stored. file: where the preferences are.
    void failed(const QString &file);

private:
    friend class PreferencesCommand; // applies its values

    using Values = std::vector<Change>;
    [[nodiscard]] static Values currentValues();
    /// With all that setting a preference changes beside it.
    void apply(const Values &values);
    /// Changes nothing but these.
    void restore(const Values &values);
    void followFile();

    PrinterPapers &m_papers;
    QUndoStack m_undoStack;
    NotificationObserver m_notifications;
    QFileSystemWatcher m_folder;
    QTimer m_settling;
};
