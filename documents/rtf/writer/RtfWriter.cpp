// SPDX-License-Identifier: MIT
#include "documents/rtf/writer/RtfWriter.h"

#include "documents/Lengths.h"
#include "documents/rtf/writer/ExactValues.h"
#include "documents/rtf/writer/FormatWords.h"
#include "documents/rtf/writer/RtfEscapes.h"

#include <algorithm>
#include <new>
#include <vector>

namespace {

/// The length is checked after each piece, which bounds how far the RTF can exceed the maximum: no code unit
/// takes more bytes than an attachment with the longest name.
constexpr qsizetype pieceLength = 65'536; // code units

class RtfDocument {
public:
    RtfDocument(const AttributedString &text, qsizetype start, qsizetype length, const AttachmentNames &names,
        const RtfTarget &target)
        : m_text(text)
        , m_start(std::clamp<qsizetype>(start, 0, text.length()))
        , m_end(m_start + std::clamp<qsizetype>(length, 0, text.length() - m_start))
        , m_names(names)
        , m_target(target)
        , m_styles(text.distinctAttributes().size())
    {
    }

    Result<QByteArray, DocumentError> write();

private:
    /// The RTF for a distinct set of attributes.
    struct Style {
        bool isKnown = false;
        bool isAttachmentKnown = false;
        qsizetype paragraph = 0; ///< index into m_words
        qsizetype character = 0; ///< index into m_words
        QByteArray attachment; ///< the words for each U+FFFC; empty if no file is stored
    };
    static constexpr qsizetype noWords = -1;

    [[nodiscard]] qsizetype firstRun() const { return m_text.runIndexAt(m_start); }
    [[nodiscard]] QStringView textOf(const AttributedString::Run &run) const;
    /// Calls the function with every run that overlaps the range.
    template <typename Call>
    void forEachRun(Call call) const;

    void collectStyle(const AttributedString::Run &run);
    void collectAttachment(Style &style, const Attachment &attachment);
    qsizetype wordsIndex(const QByteArray &words);

    void writeHeader();
    void writeRun(const AttributedString::Run &run);
    void writeWords(const Style &style);
    void writePiece(QStringView piece, const QByteArray &attachment);

    const AttributedString &m_text;
    const qsizetype m_start;
    const qsizetype m_end;
    const AttachmentNames &m_names;
    const RtfTarget &m_target;

    ExactValues m_exactValues;
    FontWords m_fontWords{m_exactValues};
    std::vector<Style> m_styles; ///< by index into distinctAttributes()
    std::vector<QByteArray> m_words;
    QHash<QByteArray, qsizetype> m_wordsIndices;

    QByteArray m_rtf; ///< behind what the target has given
    qsizetype m_lead = 0; ///< length of that
    qsizetype m_paragraph = noWords; ///< at the end of the RTF; an index into m_words
    qsizetype m_character = noWords; ///< at the end of the RTF; an index into m_words
    bool m_isTooLong = false;
};

QStringView RtfDocument::textOf(const AttributedString::Run &run) const
{
    const qsizetype from = std::max(run.start, m_start);
    const qsizetype to = std::min(run.start + run.length, m_end);
    return QStringView(m_text.string()).sliced(from, to - from);
}

template <typename Call>
void RtfDocument::forEachRun(Call call) const
{
    if (m_start == m_end)
        return;
    for (qsizetype i = firstRun(); i < m_text.runCount() && m_text.run(i).start < m_end; ++i)
        call(m_text.run(i));
}

qsizetype RtfDocument::wordsIndex(const QByteArray &words)
{
    const auto found = m_wordsIndices.constFind(words);
    if (found != m_wordsIndices.cend())
        return *found;
    const auto index = static_cast<qsizetype>(m_words.size());
    m_words.push_back(words);
    m_wordsIndices.insert(words, index);
    return index;
}

void RtfDocument::collectAttachment(Style &style, const Attachment &attachment)
{
    style.isAttachmentKnown = true;
    const std::optional<QString> name = m_names ? m_names(attachment) : std::nullopt;
    if (!name)
        return;
    style.attachment = "{{\\NeXTGraphic ";
    appendRtfName(style.attachment, *name);
    style.attachment += " \\width0 \\height0";
    if (*name != attachment.fileName)
        style.attachment += m_exactValues.fileWord(attachment.fileName);
    style.attachment += R"(}\'ac})";
}

void RtfDocument::collectStyle(const AttributedString::Run &run)
{
    Style &style = m_styles[run.attributesIndex];
    const TextAttributes &attributes = m_text.distinctAttributes()[run.attributesIndex];
    if (!style.isKnown) {
        style.isKnown = true;
        style.paragraph = wordsIndex(paragraphWords(attributes.paragraphStyle, m_exactValues));
        style.character = wordsIndex(m_fontWords.wordsFor(attributes.font, attributes.language));
    }
    if (attributes.attachment && !style.isAttachmentKnown && textOf(run).contains(attachmentCharacter))
        collectAttachment(style, *attributes.attachment);
}

void RtfDocument::writeHeader()
{
    const QByteArray fonts = m_fontWords.table();
    const QByteArray exactValues = m_exactValues.table();
    // Enough for ASCII text, so that the buffer never grows.
    constexpr qsizetype roomForRest = 65'536;
    if (m_target)
        m_rtf = m_target();
    m_lead = m_rtf.size();
    m_rtf.reserve(m_lead + m_end - m_start + fonts.size() + exactValues.size() + roomForRest);
    m_rtf += R"({\rtf1\ansi\ansicpg1252\uc0)" + defaultTabWord() + '\n' + fonts + exactValues;
}

void RtfDocument::writeWords(const Style &style)
{
    if (style.paragraph == m_paragraph && style.character == m_character)
        return;
    if (style.paragraph != m_paragraph)
        m_rtf += m_words[static_cast<size_t>(style.paragraph)];
    if (style.character != m_character)
        m_rtf += m_words[static_cast<size_t>(style.character)];
    m_rtf += ' ';
    m_paragraph = style.paragraph;
    m_character = style.character;
}

void RtfDocument::writePiece(QStringView piece, const QByteArray &attachment)
{
    if (attachment.isEmpty()) {
        appendRtfText(m_rtf, piece);
        return;
    }
    for (qsizetype at = 0; at < piece.size();) {
        const qsizetype found = piece.indexOf(attachmentCharacter, at);
        const qsizetype next = found < 0 ? piece.size() : found;
        appendRtfText(m_rtf, piece.sliced(at, next - at));
        if (found >= 0)
            m_rtf += attachment;
        at = next + 1;
    }
}

void RtfDocument::writeRun(const AttributedString::Run &run)
{
    const Style &style = m_styles[run.attributesIndex];
    const QStringView text = textOf(run);
    writeWords(style);
    for (qsizetype at = 0; at < text.size() && !m_isTooLong; at += pieceLength) {
        writePiece(text.sliced(at, std::min(pieceLength, text.size() - at)), style.attachment);
        m_isTooLong = m_rtf.size() - m_lead > maxDocumentLength;
    }
}

Result<QByteArray, DocumentError> RtfDocument::write()
{
    forEachRun([this](const AttributedString::Run &run) { collectStyle(run); });
    writeHeader();
    forEachRun([this](const AttributedString::Run &run) { writeRun(run); });
    m_rtf += '}';
    if (m_isTooLong || m_rtf.size() - m_lead > maxDocumentLength)
        return DocumentError(DocumentError::Cause::TooLong, DocumentKind::Rtf);
    return std::move(m_rtf);
}

} // namespace

Result<QByteArray, DocumentError> writeRtf(const AttributedString &text, qsizetype start, qsizetype length,
    const AttachmentNames &storedNameOf, const RtfTarget &target)
{
    try {
        return RtfDocument(text, start, length, storedNameOf, target).write();
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Rtf);
    }
}
