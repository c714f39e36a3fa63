// SPDX-License-Identifier: MIT
#include "desk/documents/GoalDialog.h"

#include "ui_GoalDialog.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const char *, goalStatistics.size()> names{QT_TRANSLATE_NOOP("GoalDialog", "Words"),
    QT_TRANSLATE_NOOP("GoalDialog", "Characters"),
    QT_TRANSLATE_NOOP("GoalDialog", "Characters with white space"), QT_TRANSLATE_NOOP("GoalDialog", "Lines")};

constexpr int suggestedGoal = 500;
constexpr int suggestedLimit = 5000;
constexpr int suggestedDays = 30;

int placeOf(Statistic statistic)
{
    return static_cast<int>(std::ranges::find(goalStatistics, statistic) - goalStatistics.begin());
}

Statistic statisticAt(int place)
{
    return goalStatistics.at(static_cast<std::size_t>(place));
}

} // namespace

GoalDialog::GoalDialog(const QString &name, const Plan &plan, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::GoalDialog>())
{
    m_ui->setupUi(this);
    setWindowTitle(tr("Goal of %1").arg(name));
    for (const char *const text : names) {
        m_ui->goalComboBox->addItem(tr(text));
        m_ui->limitComboBox->addItem(tr(text));
    }
    const Goal goal = plan.goal.value_or(Goal{.amount = suggestedGoal});
    const Limit limit = plan.limit.value_or(Limit{.amount = suggestedLimit});
    m_ui->goalBox->setChecked(plan.goal.has_value());
    m_ui->goalSpinBox->setValue(static_cast<int>(goal.amount));
    m_ui->goalComboBox->setCurrentIndex(placeOf(goal.statistic));
    m_ui->dayRadioButton->setChecked(goal.span == Goal::Span::Day);
    m_ui->deadlineCheckBox->setChecked(goal.deadline.has_value());
    m_ui->deadlineEdit->setDate(goal.deadline.value_or(QDate::currentDate().addDays(suggestedDays)));
    m_ui->addedCheckBox->setChecked(goal.countsAddedOnly);
    m_ui->limitBox->setChecked(plan.limit.has_value());
    m_ui->limitSpinBox->setValue(static_cast<int>(limit.amount));
    m_ui->limitComboBox->setCurrentIndex(placeOf(limit.statistic));
    connect(m_ui->goalBox, &QGroupBox::toggled, this, &GoalDialog::enableControls);
    connect(m_ui->dayRadioButton, &QRadioButton::toggled, this, &GoalDialog::enableControls);
    connect(m_ui->deadlineCheckBox, &QCheckBox::toggled, this, &GoalDialog::enableControls);
    enableControls();
}

GoalDialog::~GoalDialog() = default;

void GoalDialog::enableControls()
{
    const bool isOn = m_ui->goalBox->isChecked();
    const bool isForDay = m_ui->dayRadioButton->isChecked();
    m_ui->deadlineCheckBox->setEnabled(isOn && !isForDay);
    m_ui->deadlineEdit->setEnabled(isOn && !isForDay && m_ui->deadlineCheckBox->isChecked());
    m_ui->addedCheckBox->setEnabled(isOn && isForDay);
}

Plan GoalDialog::plan() const
{
    Plan plan;
    const bool isForDay = m_ui->dayRadioButton->isChecked();
    if (m_ui->goalBox->isChecked()) {
        plan.goal = Goal{.statistic = statisticAt(m_ui->goalComboBox->currentIndex()),
            .amount = static_cast<quint64>(m_ui->goalSpinBox->value()),
            .span = isForDay ? Goal::Span::Day : Goal::Span::Total,
            .countsAddedOnly = isForDay && m_ui->addedCheckBox->isChecked()};
        if (!isForDay && m_ui->deadlineCheckBox->isChecked())
            plan.goal->deadline = m_ui->deadlineEdit->date();
    }
    if (m_ui->limitBox->isChecked())
        plan.limit = Limit{.statistic = statisticAt(m_ui->limitComboBox->currentIndex()),
            .amount = static_cast<quint64>(m_ui->limitSpinBox->value())};
    return plan;
}
