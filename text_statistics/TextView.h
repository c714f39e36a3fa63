// SPDX-License-Identifier: MIT
// TextView is a column of text: a view with the storage of its text and the layout of that text in lines.
// Thread: main.  Owner: its superview, and a controller that shares it; shares ownership of the layout
// engine.
#pragma once

#include "platform/text_layout/LayoutManager.h"
#include "platform/views/View.h"

enum class Appearance { System, Light };

class TextView : public View {
public:
    /// engine: not null; may be shared within the thread.
    TextView(const QRectF &frame, std::shared_ptr<LayoutEngine> engine);

    [[nodiscard]] TextStorage &textStorage() { return m_textStorage; }
    /// Always as wide as the view: there is no inset and no padding.
    [[nodiscard]] const TextContainer &textContainer() const { return m_textContainer; }
    [[nodiscard]] LayoutManager &layoutManager() { return m_layoutManager; }

    [[nodiscard]] bool isEditable() const { return m_isEditable; }
    void setEditable(bool editable) { m_isEditable = editable; }
    [[nodiscard]] bool isSelectable() const { return m_isSelectable; }
    void setSelectable(bool selectable) { m_isSelectable = selectable; }

    /// Light: dark text on a light background, in a dark desktop too.
    [[nodiscard]] Appearance appearance() const { return m_appearance; }
    void setAppearance(Appearance appearance) { m_appearance = appearance; }

protected:
    void layoutForNewFrame() override;

private:
    std::shared_ptr<LayoutEngine> m_engine;
    TextStorage m_textStorage;
    TextContainer m_textContainer;
    LayoutManager m_layoutManager;
    bool m_isEditable = true;
    bool m_isSelectable = true;
    Appearance m_appearance = Appearance::System;
};
