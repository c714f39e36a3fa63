// SPDX-License-Identifier: MIT
// RulesPage is the page with the rules of the counts: what is shown, what is a sentence and a paragraph,
// what is spoken, and what is counted beside the eight statistics. It applies every change at once.
// Thread: main.  Owner: the stack of pages, as a Qt child.
#pragma once

#include "desk/RulesEditor.h"
#include "desk/SpeechSample.h"

#include <QScrollArea>

#include <memory>

class FurtherRulesBox;
class QAction;
class QCheckBox;
namespace Ui {
class RulesPage;
}

class RulesPage : public QScrollArea {
    Q_OBJECT

public:
    /// editor: outlives the page. restoreDefaults: what the button of that name does. launchPath: of the
    /// speech command.
    RulesPage(RulesEditor &editor, QAction &restoreDefaults, const QString &launchPath);
    ~RulesPage() override;

    /// Shows all of the page.
    [[nodiscard]] QSize sizeHint() const override;

private:
    void bindCheckBox(QCheckBox &checkBox);
    void bindMinimum();
    void showValues();
    void showSpeech(const QString &problem);

    RulesEditor &m_editor;
    SpeechSample m_sample;
    std::unique_ptr<Ui::RulesPage> m_ui;
    FurtherRulesBox *m_further; ///< a Qt child
};
