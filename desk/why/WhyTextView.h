// SPDX-License-Identifier: MIT
// WhyTextView shows a text with what counted and what did not marked in it. Only the visible part is marked,
// so that long texts scroll freely.
// Thread: main.  Owner: WhyPage, as a Qt child.
#pragma once

#include "desk/why/FoundItems.h"
#include "desk/why/ShownText.h"

#include <QPlainTextEdit>

#include <memory>

class WhyTextView : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit WhyTextView(QWidget *parent = nullptr);

    /// Without marks.
    void showText(ShownText text);
    [[nodiscard]] const ShownText &shownText() const { return m_text; }

    /// items: not null. rules: of their count, for the reasons.
    void showItems(std::shared_ptr<const FoundItems> items, const TextRules &rules);
    [[nodiscard]] const FoundItems &items() const { return *m_items; }

    /// Selects an item and scrolls to it.
    void select(std::size_t index);
    /// Where the user is, in UTF-16 code units of the text.
    [[nodiscard]] qsizetype position() const;

    /// Why an item counts or not, in a sentence with its text.
    [[nodiscard]] QString sentenceOn(std::size_t index) const;

Q_SIGNALS:
    void clicked(std::size_t index);
    void pasteRequested();

protected:
    bool viewportEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void markVisibleItems();
    [[nodiscard]] QTextCursor cursorOf(const CountedItem &item) const;
    [[nodiscard]] std::optional<std::size_t> itemUnder(QPoint place) const;

    ShownText m_text;
    std::shared_ptr<const FoundItems> m_items = std::make_shared<const FoundItems>(); // large
    TextRules m_rules;
};
