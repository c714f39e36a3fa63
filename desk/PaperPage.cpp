// SPDX-License-Identifier: MIT
#include "desk/PaperPage.h"

#include "desk/ControlText.h"
#include "desk/PageSize.h"
#include "preferences/PrintSettingsExtension.h"
#include "preferences/QBYUserDefaultsController.h"
#include "ui_PaperPage.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalBlocker>

#include <algorithm>
#include <cmath>

PaperPage::PaperPage(RulesEditor &editor, PrinterPapers &papers)
    : m_editor(editor)
    , m_papers(papers)
    , m_ui(std::make_unique<Ui::PaperPage>())
{
    m_ui->setupUi(this);
    m_ui->paperComboBox->setModel(&m_model);
    connect(m_ui->paperComboBox, &QComboBox::activated, this, &PaperPage::choosePaper);
    bindMargin(*m_ui->leftMarginSpinBox, Preference::LeftMargin);
    bindMargin(*m_ui->rightMarginSpinBox, Preference::RightMargin);
    connect(m_ui->pasteButton, &QPushButton::clicked, this, &PaperPage::pasteText);
    connect(m_ui->sampleTextButton, &QPushButton::clicked, this,
        [this] { m_ui->preview->setText(pagePreviewSampleText()); });
    connect(&m_editor, &RulesEditor::changed, this, &PaperPage::showValues);
    connect(&m_papers, &PrinterPapers::changed, this, &PaperPage::showValues);
    showValues();
}

PaperPage::~PaperPage() = default;

QSize PaperPage::sizeHint() const
{
    return sizeOfContent(*this);
}

void PaperPage::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    m_papers.refresh();
}

void PaperPage::bindMargin(QDoubleSpinBox &spinBox, Preference preference)
{
    spinBox.setSuffix(m_unit.suffix());
    spinBox.setDecimals(m_unit.decimals());
    spinBox.setSingleStep(m_unit.step());
    const QString description = preference == Preference::LeftMargin ? tr("Left Margin") : tr("Right Margin");
    connect(&spinBox, &QDoubleSpinBox::valueChanged, this, [this, preference, description](double length) {
        m_editor.change({{preference, m_unit.toInches(length)}}, description);
    });
}

void PaperPage::choosePaper(int row)
{
    using Preferences = QBYUserDefaultsController;
    std::vector<RulesEditor::Change> changes{{Preference::PaperName, m_model.nameAt(row)}};
    if (const std::optional<QBYPaper> &paper = m_model.paperAt(row)) {
        // A paper on which the margins leave no column brings its own.
        const double left = Preferences::leftMarginForPaperSizeLineMeasuring();
        const double right = Preferences::rightMarginForPaperSizeLineMeasuring();
        if (!leaveColumn(left, right, paper->paperSize().width())) {
            changes.push_back({Preference::LeftMargin, paper->leftMarginInInches()});
            changes.push_back({Preference::RightMargin, paper->rightMarginInInches()});
        }
    }
    m_editor.change(changes, tr("Paper"));
}

void PaperPage::pasteText()
{
    const QString text = QGuiApplication::clipboard()->text();
    if (!text.isEmpty())
        m_ui->preview->setText(text);
}

void PaperPage::showValues()
{
    // May replace a paper that the printer lacks, so it comes first.
    const PageRules page = currentPageRules();
    showPapers();
    showMargin(*m_ui->leftMarginSpinBox, Preference::LeftMargin, page.paperSize.width());
    showMargin(*m_ui->rightMarginSpinBox, Preference::RightMargin, page.paperSize.width());
    showPage(page);
}

void PaperPage::showPapers()
{
    const std::optional<QString> chosen = QBYUserDefaultsController::paperNameForLineMeasuring();
    const std::vector<Paper> &papers = m_papers.answer().papers;
    m_model.setPapers(papers, chosen);
    m_ui->paperComboBox->setCurrentIndex(
        m_model.rowOf(chosen.value_or(QBYExtension::paperNameWithoutChoice())));
}

void PaperPage::showMargin(QDoubleSpinBox &spinBox, Preference preference, double paperWidth)
{
    const EditablePreference &row = editablePreference(preference);
    const auto &accessors = std::get<MarginAccessors>(row.accessors);
    const double length = m_unit.fromInches(accessors.get());
    // What was stored elsewhere may be out of range: it is in force, so it is shown.
    const double max = std::max(m_unit.fromInches(maxMargin(paperWidth, accessors.getOpposite())), length);
    const double min = std::min(0.0, length);
    const QSignalBlocker blocker(&spinBox);
    // Setting what is there already would disturb a user who is typing or holds an arrow.
    const auto isShown = [&spinBox](double shown, double wanted) {
        return std::abs(shown - wanted) < std::pow(10, -spinBox.decimals()) / 2;
    };
    if (!isShown(spinBox.maximum(), max) || !isShown(spinBox.minimum(), min))
        spinBox.setRange(min, max);
    if (!isShown(spinBox.value(), length))
        spinBox.setValue(length);
}

void PaperPage::showPage(const PageRules &page)
{
    m_ui->preview->setPage(page);
    m_ui->stateLabel->setText(papersText() + u' ' + basisText(page));
}

QString PaperPage::papersText() const
{
    if (m_papers.isWaiting())
        return tr("Asking the printing system for the papers of your printer…");
    switch (m_papers.answer().state) {
    case PrinterState::Answering:
        return tr("These are the papers of your printer.");
    case PrinterState::NoPrinter:
        return tr("There is no printer, so these are common papers.");
    case PrinterState::NotAnswering:
        break;
    }
    return tr("The printing system does not answer, so these are common papers.");
}

QString PaperPage::basisText(const PageRules &page) const
{
    if (!columnWidthOf(page))
        return tr("The margins leave no column on this paper, so lines are measured in the column before. "
                  "Make the margins smaller.");
    if (!page.paperName)
        return tr("Your paper is not available, so lines are measured on a page of %1 × %2.")
            .arg(m_unit.numberText(page.paperSize.width()), m_unit.text(page.paperSize.height()));
    if (!QBYUserDefaultsController::paperNameForLineMeasuring())
        return tr("No paper has been chosen yet, so lines are measured on %1.").arg(*page.paperName);
    return tr("Lines are measured on %1.").arg(*page.paperName);
}
