// SPDX-License-Identifier: MIT
#include "desk/RulesPage.h"

#include "desk/ControlText.h"
#include "desk/FurtherRulesBox.h"
#include "desk/PageSize.h"
#include "ui_RulesPage.h"

#include <QAction>
#include <QSignalBlocker>

#include <algorithm>

namespace {

/// The row that the control names in its interface file.
const EditablePreference &rowOf(const QWidget &control)
{
    const EditablePreference *const row = editablePreferenceNamed(control.property("preference").toString());
    Q_ASSERT(row);
    return *row;
}

} // namespace

RulesPage::RulesPage(RulesEditor &editor, QAction &restoreDefaults, const QString &launchPath)
    : m_editor(editor)
    , m_sample(launchPath)
    , m_ui(std::make_unique<Ui::RulesPage>())
{
    m_ui->setupUi(this);
    m_further = new FurtherRulesBox(editor);
    m_ui->contentLayout->insertWidget(m_ui->contentLayout->indexOf(m_ui->speechBox) + 1, m_further);
    for (QCheckBox *const checkBox : findChildren<QCheckBox *>())
        bindCheckBox(*checkBox);
    bindMinimum();
    connect(m_ui->restoreButton, &QPushButton::clicked, &restoreDefaults, &QAction::trigger);
    connect(m_ui->sampleButton, &QPushButton::clicked, &m_sample, &SpeechSample::speak);
    connect(&m_sample, &SpeechSample::changed, this, &RulesPage::showSpeech);
    connect(&m_editor, &RulesEditor::changed, this, &RulesPage::showValues);
    showValues();
    showSpeech({});
}

RulesPage::~RulesPage() = default;

QSize RulesPage::sizeHint() const
{
    return sizeOfContent(*this);
}

void RulesPage::bindCheckBox(QCheckBox &checkBox)
{
    const Preference preference = rowOf(checkBox).preference;
    connect(&checkBox, &QCheckBox::clicked, this, [this, preference, &checkBox](bool isOn) {
        m_editor.change({{preference, isOn}}, plainControlText(checkBox.text()));
    });
}

void RulesPage::bindMinimum()
{
    QSpinBox &spinBox = *m_ui->minimumSpinBox;
    const auto preference = rowOf(spinBox).preference;
    connect(&spinBox, &QSpinBox::valueChanged, this, [this, preference](int number) {
        m_editor.change({{preference, qint64{number}}}, tr("Minimum Number of Sentences"));
    });
}

void RulesPage::showValues()
{
    for (QCheckBox *const checkBox : findChildren<QCheckBox *>()) {
        // Only clicks are reported as changes of the user.
        checkBox->setChecked(valueOf(rowOf(*checkBox)) == DefaultsValue(true));
    }
    m_ui->whitespaceCheckBox->setEnabled(m_ui->charactersCheckBox->isChecked());

    m_further->showValues();

    const EditablePreference &minimum = rowOf(*m_ui->minimumSpinBox);
    const auto number = std::get<qint64>(*valueOf(minimum));
    const qint64 max = std::get<NumberAccessors>(minimum.accessors).max;
    const QSignalBlocker blocker(m_ui->minimumSpinBox);
    // A number beyond the range may have been stored elsewhere: it is in force, so it is shown.
    const qint64 shown = std::min<qint64>(number, std::numeric_limits<int>::max());
    m_ui->minimumSpinBox->setRange(0, static_cast<int>(std::max(shown, max)));
    m_ui->minimumSpinBox->setValue(static_cast<int>(shown));
}

void RulesPage::showSpeech(const QString &problem)
{
    m_ui->sampleButton->setEnabled(m_sample.isCommandInstalled() && !m_sample.isSpeaking());
    QString state = problem;
    if (!m_sample.isCommandInstalled())
        state = tr("No speech program is installed: %1 does not exist. Nothing will be spoken.")
                    .arg(m_sample.launchPath());
    m_ui->speechStateLabel->setText(state);
    m_ui->speechStateLabel->setVisible(!state.isEmpty());
}
