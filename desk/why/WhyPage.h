// SPDX-License-Identifier: MIT
// WhyPage is the page that shows why counts are what they are: a text that the user opens, pastes or drops,
// its eight counts by the counting service, and what counted and what did not, marked in the text.
// Thread: main.  Owner: the stack of pages, as a Qt child.
#pragma once

#include "desk/why/FoundItems.h"
#include "desk/why/TextSource.h"

#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

class WordCounterViewController;
namespace Ui {
class WhyPage;
}

class WhyPage : public QWidget {
    Q_OBJECT

public:
    explicit WhyPage(QWidget *parent = nullptr);
    ~WhyPage() override;

    /// The text appears later, from the event loop.
    void openFile(const QUrl &file);

    /// The rules of the counts have changed.
    void followRules();

protected:
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void fillCountList();
    void fitCountList();
    void chooseFile();
    void paste();
    /// text: shown while a text is read.
    void showReading(const QString &text);
    void showState(const QString &text);
    void takeText(const AttributedString &text, const QString &name);
    void count();
    void showCounts(bool areKnown);
    void findMarks();
    void showMarks(const std::shared_ptr<const FoundItems> &items, const ExplainedText &explained);
    /// To the next item in a direction that the user wants to see: 1 or -1.
    void walk(int step);
    void goTo(std::size_t index);
    [[nodiscard]] Statistic statistic() const;

    std::unique_ptr<Ui::WhyPage> m_ui;
    TextSource m_source;
    std::shared_ptr<WordCounterViewController> m_counter; // its views are never loaded
    std::optional<AttributedString> m_text;
    std::optional<BackgroundWork<std::shared_ptr<const FoundItems>>> m_marking; // while items are being found
    std::optional<std::size_t> m_current; // the item that was walked to
    bool m_isWalkWanted = false; // as soon as they have been found
    QTimer m_silence; // of the counting service
};
