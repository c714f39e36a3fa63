// SPDX-License-Identifier: MIT
// The statistics of WordCounterViewController as HTML and styled text, for the clipboard and other programs.
#include "presentation/WordCounterViewController.h"

#include "documents/loading/SandboxedReader.h"

namespace {

const auto lineBreak = QStringLiteral("</br>");

} // namespace

QString WordCounterViewController::htmlRepresentationWithTitle(
    const std::optional<QString> &title, bool fullHTMLDocument) const
{
    QString html;
    if (title)
        html += QStringLiteral("<strong>") + *title + QStringLiteral("</strong>") + lineBreak;
    const Labels &labels = visibleTextfieldsForLayout();
    for (size_t i = 0; i < labels.size(); ++i) {
        QString text = labels[i]->stringValue();
        if (text.isEmpty())
            continue;
        html += text.replace(u'\u2022', u'-');
        if (i + 1 != labels.size())
            html += lineBreak;
    }
    if (!fullHTMLDocument)
        return html;
    return QStringLiteral("<!DOCTYPE html><html><head><title></title></head><body>") + html
        + QStringLiteral("</body></html>");
}

std::optional<AttributedString> WordCounterViewController::attributedStringRepresentationWithTitle(
    const std::optional<QString> &title) const
{
    const QString html = htmlRepresentationWithTitle(title, true);
    if (!html.isValidUtf16())
        return std::nullopt;
    auto text = SandboxedReader::shared().read(DocumentKind::Html, html.toUtf8(), {.charset = "utf-8"});
    if (!text)
        return std::nullopt;
    return std::move(text).value();
}

MimeContent WordCounterViewController::statisticsToCopy() const
{
    if (m_wordCounter->wordCountFormattedString().isNull())
        return {}; // not counted yet
    MimeContent content{
        {QStringLiteral("text/html"), htmlRepresentationWithTitle(std::nullopt, true).toUtf8()}};
    // The lines as they are: the user waits for no other process.
    content.emplace(QStringLiteral("text/plain"),
        htmlRepresentationWithTitle(std::nullopt, false).replace(lineBreak, QStringLiteral("\n")).toUtf8());
    return content;
}

QString WordCounterViewController::statisticsToRead() const
{
    if (m_wordCounter->wordCountFormattedString().isNull())
        return {}; // not counted yet
    QStringList texts;
    for (const std::shared_ptr<Label> &label : visibleTextfieldsForLayout())
        texts.append(label->accessibleName());
    return texts.join(QStringLiteral(", "));
}

void WordCounterViewController::serve(Window &window)
{
    window.setSummaryProvider([weakPanel = weak_from_this()] {
        const auto panel = weakPanel.lock();
        return panel ? panel->statisticsToRead() : QString();
    });
    window.setCopyProvider([weakPanel = weak_from_this()] {
        const auto panel = weakPanel.lock();
        return panel ? panel->statisticsToCopy() : MimeContent();
    });
    connect(&window, &Window::textMetricsDidChange, this, &WordCounterViewController::fitLabels);
}
