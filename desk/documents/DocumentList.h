// SPDX-License-Identifier: MIT
// DocumentList has the documents of the list in the user's order, follows them all, and stores what the user
// changes. How they are shown is left to DocumentTable.
// Thread: main.  Owner: DocumentsPage.
#pragma once

#include "desk/documents/FollowedDocument.h"

#include <memory>
#include <vector>

class DocumentList : public QObject {
    Q_OBJECT

public:
    /// activity: outlives the list.
    explicit DocumentList(ApplicationActivity &activity);
    ~DocumentList() override;

    [[nodiscard]] int size() const { return static_cast<int>(m_documents.size()); }
    [[nodiscard]] const FollowedDocument &at(int index) const
    {
        return *m_documents.at(static_cast<std::size_t>(index));
    }
    [[nodiscard]] const Plan &planOf(const FollowedDocument &document) const;

    [[nodiscard]] QByteArrayList pathsOf(const std::vector<int> &indexes) const;

    /// Reads the list from disk. The documents are followed and counted later, from the event loop.
    void load();
    /// Adds files, and shows them. Those that are there stay.
    void add(const QByteArrayList &paths);
    void remove(const QByteArrayList &paths);
    /// Moves the document up (-1) or down (1).
    void shift(int index, int step);
    void setPlan(const QByteArray &path, const Plan &plan);
    /// The user has found a missing file.
    void find(const QByteArray &from, const QByteArray &path);
    [[nodiscard]] bool keepsHistory();
    void setKeepsHistory(bool keeps);
    void forgetHistory(const std::vector<int> &indexes);

    /// The rules of the counts have changed.
    void followRules();

Q_SIGNALS:
    void aboutToReset();
    void wasReset();
    void changed(int index);
    /// The store cannot be used, or was renewed; empty once it works. text: for the user.
    void problem(const QString &text);

private:
    std::unique_ptr<FollowedDocument> makeDocument(const ListedDocument &listed);
    void readTotals();
    void readTotal(FollowedDocument &document);
    void checkAll();
    void beginNext();
    [[nodiscard]] int indexOf(const FollowedDocument &document) const;
    [[nodiscard]] FollowedDocument *documentAt(const QByteArray &path) const;
    /// Whether there is none.
    bool reportProblem(const ProgressStore::Failure &failure);

    ProgressStore m_store;
    ProgressRecorder m_recorder;
    CountQueue m_queue;
    FollowingSurroundings m_surroundings;
    ProgressStore::Plans m_plans;
    QDate m_day;
    std::vector<std::unique_ptr<FollowedDocument>> m_documents;
    std::deque<QPointer<FollowedDocument>> m_toBegin;
    QTimer m_beginning;
    QTimer m_checking;
    bool m_isBeginning = false;
    bool m_isResetting = false;
};
