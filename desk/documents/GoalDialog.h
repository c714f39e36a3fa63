// SPDX-License-Identifier: MIT
// GoalDialog asks the user for the goal and the limit of a document.
// Thread: main.  Owner: DocumentsPage, while it is open.
#pragma once

#include "writing_progress/Goal.h"

#include <QDialog>

#include <memory>

namespace Ui {
class GoalDialog;
}

class GoalDialog : public QDialog {
    Q_OBJECT

public:
    /// name: of the document. plan: what is shown at first.
    GoalDialog(const QString &name, const Plan &plan, QWidget *parent);
    ~GoalDialog() override;

    [[nodiscard]] Plan plan() const;

private:
    void enableControls();

    std::unique_ptr<Ui::GoalDialog> m_ui;
};
