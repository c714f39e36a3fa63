// SPDX-License-Identifier: MIT
// FurtherRulesBox is the group of the rules page with what is counted beside the eight statistics: which of
// it is shown, the size of a standard page, and the speeds of reading and speaking. Its check boxes name
// their preference and are left to the page, like all others.
// Thread: main.  Owner: RulesPage, as a Qt child.
#pragma once

#include "desk/RulesEditor.h"

#include <QGroupBox>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QSpinBox;

class FurtherRulesBox : public QGroupBox {
    Q_OBJECT

public:
    /// editor: outlives the box.
    explicit FurtherRulesBox(RulesEditor &editor);

    /// Shows what is stored, but for the check boxes.
    void showValues();

private:
    QCheckBox *addSwitch(const QString &text, Preference preference, const char *name);
    void addField(const QString &name, QWidget &field);
    QSpinBox *addSpeed(Preference preference, const char *name, const QString &description);
    QComboBox *addStandardPages();
    void changeStandardPage(const QString &text);

    RulesEditor &m_editor;
    QGridLayout *m_rows;
    QComboBox *m_standardPages;
    QSpinBox *m_readingSpeed;
    QSpinBox *m_speakingSpeed;
};
