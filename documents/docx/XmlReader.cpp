// SPDX-License-Identifier: MIT
#include "documents/docx/XmlReader.h"

#include "documents/docx/MarkupCompatibility.h"
#include "documents/docx/XmlNamespaces.h"

#include <expat.h>

#include <algorithm>
#include <memory>
#include <new>
#include <vector>

namespace {

constexpr int greatestDepth = 2'000;
// Bytes of one tag or comment; some twice as long are let through. The drawings of old shapes are attributes
// of hundreds of kilobytes.
constexpr qsizetype longestToken = 16'777'216;
constexpr qsizetype shortestFeed = 65'536;

struct FreeParser {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

/// Feeds a parser and passes on what it finds. The parser keeps no state of a document's author but open tags
/// and names; both are bounded.
class ParserDriver {
public:
    explicit ParserDriver(XmlHandler &handler)
        : m_parser(XML_ParserCreate(nullptr))
        , m_compatibility(m_namespaces)
        , m_handler(handler)
    {
        if (!m_parser)
            throw std::bad_alloc();
        XML_SetUserData(m_parser.get(), this);
        XML_SetElementHandler(m_parser.get(), &onStart, &onEnd);
        XML_SetCharacterDataHandler(m_parser.get(), &onCharacters);
        XML_SetStartDoctypeDeclHandler(m_parser.get(), &onDoctype);
    }

    [[nodiscard]] bool take(QByteArrayView piece);
    [[nodiscard]] std::optional<DocumentError::Cause> finish();

private:
    static void XMLCALL onStart(void *self, const XML_Char *name, const XML_Char **attributes)
    {
        static_cast<ParserDriver *>(self)->guarded(
            [&](ParserDriver &driver) { driver.start(name, attributes); });
    }
    static void XMLCALL onEnd(void *self, const XML_Char *name)
    {
        static_cast<ParserDriver *>(self)->guarded([&](ParserDriver &driver) { driver.end(name); });
    }
    static void XMLCALL onCharacters(void *self, const XML_Char *text, int length)
    {
        static_cast<ParserDriver *>(self)->guarded([&](ParserDriver &driver) {
            if (driver.m_leftOutDepth == 0)
                driver.m_handler.characters(QByteArrayView(text, length));
        });
    }
    static void XMLCALL onDoctype(void *self, const XML_Char *, const XML_Char *, const XML_Char *, int)
    {
        static_cast<ParserDriver *>(self)->stop(DocumentError::Cause::Damaged);
    }

    /// The parser is C and knows no exceptions.
    template <typename Call>
    void guarded(Call &&call) noexcept
    {
        if (m_error)
            return;
        try {
            call(*this);
        } catch (const std::bad_alloc &) {
            stop(DocumentError::Cause::NotEnoughMemory);
        }
    }

    void start(const char *name, const char *const *attributes);
    void end(const char *name);
    void stop(DocumentError::Cause error);
    [[nodiscard]] bool feed(bool isLast);

    std::unique_ptr<XML_ParserStruct, FreeParser> m_parser;
    XmlNamespaces m_namespaces;
    MarkupCompatibility m_compatibility;
    XmlHandler &m_handler;
    QByteArray m_pending;
    qsizetype m_feedLength = shortestFeed;
    qint64 m_fed = 0;
    int m_depth = 0;
    int m_leftOutDepth = 0; // of the outermost element that is left out; 0: none
    std::vector<bool> m_isSeen; // by depth, of open elements
    std::optional<DocumentError::Cause> m_error;
};

void ParserDriver::stop(DocumentError::Cause error)
{
    m_error = error;
    XML_StopParser(m_parser.get(), XML_FALSE);
}

void ParserDriver::start(const char *name, const char *const *attributes)
{
    ++m_depth;
    if (m_depth > greatestDepth || m_namespaces.hasTooManyNames()) {
        stop(DocumentError::Cause::TooComplex);
        return;
    }
    m_namespaces.enter(m_depth, attributes);
    bool isSeen = false;
    if (m_leftOutDepth == 0) {
        const MarkupCompatibility::Fate fate = m_compatibility.enter(m_depth, name, attributes);
        if (fate == MarkupCompatibility::Fate::LeftOut)
            m_leftOutDepth = m_depth;
        isSeen = fate == MarkupCompatibility::Fate::Seen;
    }
    m_isSeen.push_back(isSeen);
    if (isSeen)
        m_handler.startElement(XmlElement(m_namespaces.elementName(name), attributes, m_namespaces));
}

void ParserDriver::end(const char *name)
{
    if (m_isSeen.back())
        m_handler.endElement(m_namespaces.elementName(name));
    m_isSeen.pop_back();
    if (m_leftOutDepth == 0)
        m_compatibility.leave(m_depth);
    else if (m_leftOutDepth == m_depth)
        m_leftOutDepth = 0;
    m_namespaces.leave(m_depth);
    --m_depth;
}

bool ParserDriver::take(QByteArrayView piece)
{
    m_pending.append(piece);
    return m_pending.size() < m_feedLength || feed(false);
}

bool ParserDriver::feed(bool isLast)
{
    const XML_Status status = XML_Parse(m_parser.get(), m_pending.constData(),
        static_cast<int>(m_pending.size()), isLast ? XML_TRUE : XML_FALSE);
    if (status != XML_STATUS_OK) {
        if (!m_error)
            m_error = XML_GetErrorCode(m_parser.get()) == XML_ERROR_NO_MEMORY
                ? DocumentError::Cause::NotEnoughMemory
                : DocumentError::Cause::Damaged;
        return false;
    }
    m_fed += m_pending.size();
    m_pending.clear();
    // What is left of a token that has not ended is looked through again with every feed; feeding as much
    // again keeps the sum proportional to its length.
    const auto left = static_cast<qsizetype>(m_fed - XML_GetCurrentByteIndex(m_parser.get()));
    if (left > longestToken)
        m_error = DocumentError::Cause::TooComplex;
    m_feedLength = std::max(shortestFeed, left);
    return !m_error;
}

std::optional<DocumentError::Cause> ParserDriver::finish()
{
    if (!m_error)
        (void)feed(true);
    return m_error;
}

} // namespace

std::optional<QByteArrayView> XmlElement::attribute(XmlName name) const
{
    for (const char *const *pair = m_attributes; *pair; pair += 2)
        if (m_namespaces.attributeName(pair[0]) == name)
            return QByteArrayView(pair[1]);
    return std::nullopt;
}

std::optional<DocumentError::Cause> readXmlPart(
    const ZipPackage &package, const QByteArray &partName, XmlHandler &handler)
{
    ParserDriver driver(handler);
    const std::optional<DocumentError::Cause> failure =
        package.read(partName, [&driver](QByteArrayView piece) { return driver.take(piece); });
    if (failure)
        return failure;
    return driver.finish();
}
