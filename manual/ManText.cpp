// SPDX-License-Identifier: MIT
#include "manual/ManText.h"

#include <QRegularExpression>
#include <QSet>

namespace {

/// What roff would take for a command.
QString escaped(QString text)
{
    text.replace(u'\\', QStringLiteral("\\e"));
    text.replace(u'-', QStringLiteral("\\-"));
    text.replace(u'\'', QStringLiteral("\\(aq"));
    return text.replace(u'^', QStringLiteral("\\(ha")).replace(u'~', QStringLiteral("\\(ti"));
}

/// Lines of the source end with a sentence, and before they are longer than a terminal is wide.
QString inShortLines(const QString &text)
{
    constexpr qsizetype maxLength = 78;
    QString lines;
    QString line;
    for (const QString &word : text.split(u' ')) {
        if (!line.isEmpty() && (line.size() + 1 + word.size() > maxLength || line.endsWith(u'.'))) {
            lines += line + u'\n';
            line.clear();
        }
        // At the start of a line, a dot would make it a request.
        line += line.isEmpty() ? (word.startsWith(u'.') ? QStringLiteral("\\&") : QString())
                               : QStringLiteral(" ");
        line += word;
    }
    return lines + line;
}

QString bold(const QString &text)
{
    return QStringLiteral("\\fB") + escaped(text) + QStringLiteral("\\fR");
}

QString italic(const QString &text)
{
    return QStringLiteral("\\fI") + escaped(text) + QStringLiteral("\\fR");
}

/// Writes one page: its texts with the placeholders of that page in italics.
class ManWriter {
public:
    explicit ManWriter(const ManualPage &page)
        : m_page(page)
    {
        static const QRegularExpression capitals(QStringLiteral("[A-Z]{4,}"));
        for (const char *const usage : page.usages) {
            for (const auto &match : capitals.globalMatch(QString::fromUtf8(usage)))
                m_placeholders.insert(match.captured());
        }
    }

    QString whole(const ManualRelease &release);

private:
    [[nodiscard]] QString styled(const QString &text) const;
    [[nodiscard]] QString styled(const char *text) const { return styled(translatedManualText(text)); }
    void addTitle(const char *title)
    {
        m_text += QStringLiteral(".SH ") + escaped(translatedManualText(title)) + u'\n';
    }
    void addParagraphs(const std::vector<const char *> &paragraphs);
    void addItem(const QString &label, const QString &text)
    {
        m_text += QStringLiteral(".TP\n") + label + u'\n' + text + u'\n';
    }
    void addUsages();
    void addTerms();
    void addOptions();
    void addExamples();
    void addExitStatuses();
    void addSeeAlso();

    const ManualPage &m_page;
    QSet<QString> m_placeholders;
    QString m_text;
};

QString ManWriter::styled(const QString &text) const
{
    // A command in quotes, an option, or a placeholder.
    static const QRegularExpression special(
        QStringLiteral("'((?:quillbay|man )[^']*)'|(?<![\\w-])(--[a-z][a-z-]*)|(\\b[A-Z]{4,}\\b)"));
    QString result;
    qsizetype end = 0;
    for (const auto &match : special.globalMatch(text)) {
        QString piece = escaped(match.captured());
        if (match.hasCaptured(1))
            piece = bold(match.captured(1));
        else if (match.hasCaptured(2))
            piece = bold(match.captured(2));
        else if (m_placeholders.contains(match.captured(3)))
            piece = italic(match.captured(3));
        result += escaped(text.sliced(end, match.capturedStart() - end)) + piece;
        end = match.capturedEnd();
    }
    return inShortLines(result + escaped(text.sliced(end)));
}

void ManWriter::addParagraphs(const std::vector<const char *> &paragraphs)
{
    bool isFirst = true;
    for (const char *const text : paragraphs) {
        m_text += (isFirst ? QString() : QStringLiteral(".PP\n")) + styled(text) + u'\n';
        isFirst = false;
    }
}

void ManWriter::addUsages()
{
    addTitle(QT_TRANSLATE_NOOP("Manual", "SYNOPSIS"));
    bool isFirst = true;
    for (const char *const usage : m_page.usages) {
        const QString words = *usage ? u' ' + styled(QString::fromUtf8(usage)) : QString();
        m_text += (isFirst ? QString() : QStringLiteral(".br\n"))
            + bold(QString::fromLatin1(m_page.typedName())) + words + u'\n';
        isFirst = false;
    }
}

void ManWriter::addTerms()
{
    if (m_page.terms.empty())
        return;
    addTitle(m_page.command ? QT_TRANSLATE_NOOP("Manual", "NAMES") : QT_TRANSLATE_NOOP("Manual", "COMMANDS"));
    for (const ManualTerm &term : m_page.terms)
        addItem(bold(QString::fromUtf8(term.name)), styled(term.text));
}

void ManWriter::addOptions()
{
    if (m_page.options.empty())
        return;
    addTitle(QT_TRANSLATE_NOOP("Manual", "OPTIONS"));
    for (const ManualOption &option : m_page.options) {
        QString label = bold(QStringLiteral("--") + QLatin1StringView(option.name));
        if (option.letter)
            label = bold(u'-' + QString(QLatin1Char(option.letter))) + QStringLiteral(", ") + label;
        if (option.placeholder)
            label += u' ' + italic(QString::fromUtf8(option.placeholder));
        addItem(label, styled(option.text));
    }
}

void ManWriter::addExamples()
{
    if (m_page.examples.empty())
        return;
    addTitle(QT_TRANSLATE_NOOP("Manual", "EXAMPLES"));
    for (const ManualExample &example : m_page.examples)
        addItem(bold(QString::fromUtf8(example.command)), styled(example.text));
}

void ManWriter::addExitStatuses()
{
    if (m_page.exitStatuses.empty())
        return;
    addTitle(QT_TRANSLATE_NOOP("Manual", "EXIT STATUS"));
    for (const ManualExitStatus &row : m_page.exitStatuses)
        addItem(bold(QString::number(row.status)), styled(row.text));
}

void ManWriter::addSeeAlso()
{
    if (m_page.seeAlso.empty())
        return;
    addTitle(QT_TRANSLATE_NOOP("Manual", "SEE ALSO"));
    QStringList pages;
    for (const char *const page : m_page.seeAlso) {
        const QString name = QString::fromLatin1(page);
        pages.append(bold(name.section(u'(', 0, 0)) + u'(' + name.section(u'(', 1));
    }
    m_text += pages.join(QStringLiteral(",\n")) + u'\n';
}

QString ManWriter::whole(const ManualRelease &release)
{
    const QString name = QString::fromLatin1(m_page.pageName());
    const QString group =
        translatedManualText(m_page.section == 1 ? QT_TRANSLATE_NOOP("Manual", "User Commands")
                                                 : QT_TRANSLATE_NOOP("Manual", "System Programs"));
    m_text = QStringLiteral(".\\\" SPDX-License-Identifier: MIT\n.TH %1 %2 %3 \"Quillbay %4\" \"%5\"\n")
                 .arg(escaped(name.toUpper()), QString::number(m_page.section),
                     QString::fromLatin1(release.date), QString::fromLatin1(release.version), group);
    addTitle(QT_TRANSLATE_NOOP("Manual", "NAME"));
    m_text += escaped(name) + QStringLiteral(" \\- ") + styled(m_page.summary) + u'\n';
    addUsages();
    addTitle(QT_TRANSLATE_NOOP("Manual", "DESCRIPTION"));
    addParagraphs(m_page.description);
    addTerms();
    addOptions();
    if (!m_page.notes.empty()) {
        addTitle(QT_TRANSLATE_NOOP("Manual", "NOTES"));
        addParagraphs(m_page.notes);
    }
    addExamples();
    addExitStatuses();
    addSeeAlso();
    return m_text;
}

} // namespace

QByteArray manText(const ManualPage &page, const ManualRelease &release)
{
    return ManWriter(page).whole(release).toUtf8();
}
