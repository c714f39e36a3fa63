// SPDX-License-Identifier: MIT
// PaperPage is the page on which the user chooses the paper and the margins that lines are measured on, and
// sees that page. It applies every change at once.
// Thread: main.  Owner: the stack of pages, as a Qt child.
#pragma once

#include "desk/LengthUnit.h"
#include "desk/PaperListModel.h"
#include "desk/RulesEditor.h"
#include "text_statistics/CountingRules.h"

#include <QScrollArea>

#include <memory>

class QDoubleSpinBox;
namespace Ui {
class PaperPage;
}

class PaperPage : public QScrollArea {
    Q_OBJECT

public:
    /// Both outlive the page.
    PaperPage(RulesEditor &editor, PrinterPapers &papers);
    ~PaperPage() override;

    /// Shows all of the page.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void bindMargin(QDoubleSpinBox &spinBox, Preference preference);
    void choosePaper(int row);
    void pasteText();

    void showValues();
    void showPapers();
    void showMargin(QDoubleSpinBox &spinBox, Preference preference, double paperWidth);
    void showPage(const PageRules &page);
    [[nodiscard]] QString papersText() const;
    [[nodiscard]] QString basisText(const PageRules &page) const;

    RulesEditor &m_editor;
    PrinterPapers &m_papers;
    const LengthUnit m_unit = LengthUnit::ofUser();
    PaperListModel m_model;
    std::unique_ptr<Ui::PaperPage> m_ui;
};
