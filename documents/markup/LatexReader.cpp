// SPDX-License-Identifier: MIT
#include "documents/markup/LatexReader.h"

#include "documents/PlainTextReader.h"
#include "documents/markup/LatexCommands.h"

#include <algorithm>
#include <new>
#include <vector>

namespace {

bool isLetter(QChar unit)
{
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') || unit == u'@';
}

QStringView withoutStar(QStringView name)
{
    return name.endsWith(u'*') ? name.chopped(1) : name;
}

/// The part between \begin{document} and \end{document}.
QStringView bodyOf(QStringView source)
{
    constexpr QStringView opening(u"\\begin{document}");
    const qsizetype start = source.indexOf(opening);
    if (start >= 0)
        source = source.sliced(start + opening.size());
    const qsizetype end = source.indexOf(u"\\end{document}");
    return end < 0 ? source : source.first(end);
}

/// One pass through a source.
class LatexProse {
public:
    explicit LatexProse(QStringView source)
        : m_source(source)
        , m_effort(source.size() * 4 + minEffort)
    {
    }

    QString run()
    {
        while (m_at < m_source.size())
            readNext();
        endParagraph();
        while (m_openNotes > 0)
            closeNote();
        return m_body + m_notes;
    }

private:
    enum class Group : quint8 { Plain, Block, Note };

    /// Code units that searches without a result may look at, beside those in proportion to the text.
    static constexpr qsizetype minEffort = 1'000'000;

    [[nodiscard]] bool isAt(char16_t unit) const { return m_at < m_source.size() && m_source[m_at] == unit; }
    [[nodiscard]] QString &output() { return m_openNotes > 0 ? m_notes : m_body; }

    void readNext()
    {
        const char16_t unit = m_source[m_at].unicode();
        if (QChar::isSpace(unit) && unit != u'\u00A0') {
            readWhiteSpace(false);
            return;
        }
        ++m_at;
        switch (unit) {
        case u'\\':
            readCommand();
            break;
        case u'%':
            readComment();
            break;
        case u'{':
            m_groups.push_back(Group::Plain);
            break;
        case u'}':
            closeGroup();
            break;
        case u'$':
            readFormula();
            break;
        case u'~':
            output() += u'\u00A0';
            break;
        case u'&':
            m_openTables > 0 ? endParagraph() : add(u"&");
            break;
        case u'`':
            add(take(u'`') ? u"\u201C" : u"\u2018");
            break;
        case u'\'':
            add(take(u'\'') ? u"\u201D" : u"'");
            break;
        case u'-':
            if (!take(u'-'))
                add(u"-");
            else
                add(take(u'-') ? u"\u2014" : u"\u2013");
            break;
        default:
            add(m_source.sliced(m_at - 1, 1));
        }
    }

    bool take(char16_t unit)
    {
        const bool isThere = isAt(unit);
        m_at += isThere ? 1 : 0;
        return isThere;
    }

    void add(QStringView text) { output() += text; }

    void addBlank()
    {
        const QString &text = output();
        if (!text.isEmpty() && !text.back().isSpace())
            add(u" ");
    }

    void endParagraph()
    {
        QString &text = output();
        while (!text.isEmpty() && text.back().isSpace() && text.back() != u'\n')
            text.chop(1);
        if (!text.isEmpty() && text.back() != u'\n')
            text += u'\n';
    }

    // isLineStarted: a comment has taken the line end before.
    void readWhiteSpace(bool isLineStarted)
    {
        int lineEnds = isLineStarted ? 1 : 0;
        for (; m_at < m_source.size() && m_source[m_at].isSpace() && !isAt(u'\u00A0'); ++m_at)
            lineEnds += isAt(u'\n') ? 1 : 0;
        if (lineEnds > 1)
            endParagraph();
        else if (!isLineStarted)
            addBlank();
    }

    void readComment()
    {
        const qsizetype end = m_source.indexOf(u'\n', m_at);
        m_at = end < 0 ? m_source.size() : end + 1;
        readWhiteSpace(true);
    }

    void closeGroup()
    {
        if (m_groups.empty())
            return;
        const Group group = m_groups.back();
        m_groups.pop_back();
        if (group == Group::Block)
            endParagraph();
        if (group == Group::Note)
            closeNote();
    }

    void closeNote()
    {
        endParagraph();
        --m_openNotes;
    }

    /// Where a mark ends that is not behind a backslash; -1 if there is none, or none before an empty line.
    qsizetype endOf(QStringView mark, bool isWithinParagraph)
    {
        bool isLineEmpty = false;
        qsizetype at = m_at;
        for (; at < m_source.size() && m_effort > 0; ++at) {
            const QChar unit = m_source[at];
            if (unit == u'\n') {
                if (isWithinParagraph && isLineEmpty)
                    break;
                isLineEmpty = true;
            } else if (!unit.isSpace()) {
                isLineEmpty = false;
            }
            if (m_source.sliced(at).startsWith(mark))
                return at + mark.size();
            at += unit == u'\\' ? 1 : 0;
        }
        m_effort -= std::min(at, m_source.size()) - m_at;
        return -1;
    }

    void readFormula()
    {
        const bool isDisplayed = take(u'$');
        const qsizetype end = endOf(isDisplayed ? u"$$" : u"$", true);
        if (end >= 0)
            m_at = end;
        else
            add(isDisplayed ? u"$$" : u"$");
    }

    void leaveOutUpTo(QStringView mark)
    {
        const qsizetype end = endOf(mark, false);
        m_at = end < 0 ? m_at : end;
    }

    QStringView readName()
    {
        const qsizetype start = m_at;
        while (m_at < m_source.size() && isLetter(m_source[m_at]))
            ++m_at;
        if (m_at == start && m_at < m_source.size())
            ++m_at; // a name of one other character
        return m_source.sliced(start, m_at - start);
    }

    void readCommand()
    {
        const QStringView name = readName();
        const bool isWord = !name.isEmpty() && isLetter(name[0]);
        if (name == u"begin" || name == u"end") {
            readEnvironment(name == u"begin");
        } else if (name == u"[" || name == u"(") {
            leaveOutUpTo(name == u"[" ? u"\\]" : u"\\)");
        } else if (name == u"iffalse") {
            leaveOutUpTo(u"\\fi");
        } else if (name == u"def") {
            skipDefinition();
        } else if (const std::optional<char16_t> mark = latexAccent(name)) {
            readAccented(*mark, isWord);
        } else if (const std::optional<QStringView> symbol = latexSymbol(name)) {
            *symbol == u" " ? addBlank() : add(*symbol);
            skipBlanksBehind(isWord);
        } else {
            take(u'*');
            const qsizetype behindName = m_at;
            carryOut(latexCommand(name), name == u"item");
            skipBlanksBehind(isWord && m_at == behindName);
        }
    }

    void carryOut(const LatexCommand &command, bool keepsOption)
    {
        if (command.effect == LatexEffect::Verbatim) {
            readVerbatim();
            return;
        }
        if (command.effect == LatexEffect::Block || command.effect == LatexEffect::Break)
            endParagraph();
        if (!keepsOption)
            skipOptions();
        for (int i = 0; i < command.skippedArguments; ++i)
            skipArgument();
        if (command.effect == LatexEffect::LineBreak)
            m_openTables > 0 ? endParagraph() : add(u"\u2028");
        if (command.effect == LatexEffect::Block || command.effect == LatexEffect::Note)
            openGroup(command.effect == LatexEffect::Note ? Group::Note : Group::Block);
    }

    void openGroup(Group group)
    {
        if (!take(u'{'))
            return;
        m_groups.push_back(group);
        m_openNotes += group == Group::Note ? 1 : 0;
    }

    void readVerbatim()
    {
        skipOptions();
        if (m_at >= m_source.size() || isAt(u'{'))
            return;
        constexpr qsizetype maxLength = 1000;
        const QStringView rest = m_source.sliced(m_at + 1);
        const QStringView line = rest.first(std::min(rest.size(), maxLength));
        const qsizetype length = line.indexOf(m_source[m_at]);
        if (length < 0 || line.first(length).contains(u'\n'))
            return;
        add(line.first(length));
        m_at += length + 2;
    }

    void readAccented(char16_t mark, bool isWord)
    {
        skipBlanksBehind(isWord);
        const bool isInBraces = take(u'{');
        if (m_at >= m_source.size() || isAt(u'}'))
            return; // an accent alone
        take(u'\\'); // of a letter without its dot
        QString letter(m_source[m_at++]);
        letter += QChar(mark);
        add(letter.normalized(QString::NormalizationForm_C));
        if (isInBraces && !take(u'}'))
            m_groups.push_back(Group::Plain);
    }

    void skipBlanksBehind(bool isWord)
    {
        if (!isWord)
            return;
        while (isAt(u' ') || isAt(u'\t'))
            ++m_at;
    }

    void skipOptions()
    {
        while (isAt(u'[')) {
            const qsizetype end = endOf(u"]", true);
            if (end < 0)
                return;
            m_at = end;
        }
    }

    /// One in braces, or a command.
    void skipArgument()
    {
        skipBlanksBehind(true);
        skipOptions();
        if (take(u'\\'))
            readName();
        else if (isAt(u'{'))
            skipBraces();
    }

    void skipDefinition()
    {
        take(u'\\');
        readName();
        while (isAt(u'#') || (m_at < m_source.size() && m_source[m_at].isDigit()))
            ++m_at;
        if (isAt(u'{'))
            skipBraces();
    }

    // Braces that are never closed are no argument.
    void skipBraces()
    {
        qsizetype depth = 0;
        qsizetype at = m_at;
        for (; at < m_source.size() && m_effort > 0; ++at) {
            const QChar unit = m_source[at];
            if (unit == u'{')
                ++depth;
            else if (unit == u'}')
                --depth;
            at += unit == u'\\' ? 1 : 0;
            if (depth == 0) {
                m_at = at + 1;
                return;
            }
        }
        m_effort -= std::min(at, m_source.size()) - m_at;
    }

    void readEnvironment(bool begins)
    {
        constexpr qsizetype maxNameLength = 64;
        if (!take(u'{'))
            return;
        const qsizetype length =
            m_source.sliced(m_at).first(std::min(m_source.size() - m_at, maxNameLength)).indexOf(u'}');
        if (length < 0)
            return;
        const QStringView name = m_source.sliced(m_at, length);
        m_at += length + 1;
        const LatexEnvironment environment = latexEnvironment(withoutStar(name));
        endParagraph();
        if (environment.isTable)
            m_openTables = begins ? m_openTables + 1 : std::max<qsizetype>(0, m_openTables - 1);
        if (!begins)
            return;
        if (!environment.isText) {
            leaveOutUpTo(QStringLiteral("\\end{%1}").arg(name));
            return;
        }
        skipOptions();
        for (int i = 0; i < environment.skippedArguments; ++i)
            skipArgument();
    }

    QStringView m_source;
    qsizetype m_at = 0;
    qsizetype m_effort; ///< left for searches without a result, which would take quadratic time in all
    QString m_body;
    QString m_notes;
    std::vector<Group> m_groups;
    qsizetype m_openNotes = 0;
    qsizetype m_openTables = 0;
};

} // namespace

QString proseOfLatex(QStringView source)
{
    return LatexProse(bodyOf(source)).run();
}

Result<AttributedString, DocumentError> readLatex(QByteArrayView bytes, const QByteArray &charset)
{
    const Result<PlainText, DocumentError> plain = readPlainText(bytes, charset);
    if (!plain)
        return plain.error();
    try {
        QString text = plain.value().text;
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
        return AttributedString(proseOfLatex(text));
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::TooComplex, DocumentKind::Latex);
    }
}
