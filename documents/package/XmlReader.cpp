// SPDX-License-Identifier: MIT
#include "documents/package/XmlReader.h"

#include <expat.h>

#include <algorithm>
#include <memory>
#include <new>
#include <vector>

namespace {

constexpr int maxDepth = 2'000;
// Bytes of one tag or comment; up to twice as many may pass. Drawings of old shapes are attributes of
// hundreds of kilobytes.
constexpr qsizetype maxTokenLength = 16'777'216;
constexpr qsizetype minFeedLength = 65'536;

struct FreeParser {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

} // namespace

class XmlParser::Driver {
public:
    Driver(XmlNamespaces &namespaces, XmlHandler &handler, XmlFilter *filter)
        : m_parser(XML_ParserCreate(nullptr))
        , m_namespaces(namespaces)
        , m_handler(handler)
        , m_filter(filter)
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
        static_cast<Driver *>(self)->callSafely([&](Driver &driver) { driver.start(name, attributes); });
    }
    static void XMLCALL onEnd(void *self, const XML_Char *name)
    {
        static_cast<Driver *>(self)->callSafely([&](Driver &driver) { driver.end(name); });
    }
    static void XMLCALL onCharacters(void *self, const XML_Char *text, int length)
    {
        static_cast<Driver *>(self)->callSafely([&](Driver &driver) {
            if (driver.m_skippedDepth == 0)
                driver.m_handler.characters(QByteArrayView(text, length));
        });
    }
    static void XMLCALL onDoctype(
        void *self, const XML_Char *, const XML_Char *, const XML_Char *, int hasSubset)
    {
        if (hasSubset)
            static_cast<Driver *>(self)->stop(DocumentError::Cause::Damaged);
    }

    /// The parser is written in C; no exception may pass through it.
    template <typename Call>
    void callSafely(Call &&call) noexcept
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
    XmlNamespaces &m_namespaces;
    XmlHandler &m_handler;
    XmlFilter *m_filter; // may be null
    QByteArray m_pending;
    qsizetype m_feedLength = minFeedLength;
    qint64 m_fedLength = 0;
    int m_depth = 0;
    int m_skippedDepth = 0; // of the outermost skipped element; 0 if there is none
    std::vector<bool> m_isKept; // by depth, of open elements
    std::optional<DocumentError::Cause> m_error;
};

void XmlParser::Driver::stop(DocumentError::Cause error)
{
    m_error = error;
    XML_StopParser(m_parser.get(), XML_FALSE);
}

void XmlParser::Driver::start(const char *name, const char *const *attributes)
{
    ++m_depth;
    if (m_depth > maxDepth || m_namespaces.hasTooManyNames()) {
        stop(DocumentError::Cause::TooComplex);
        return;
    }
    m_namespaces.enter(m_depth, attributes);
    bool isKept = false;
    if (m_skippedDepth == 0) {
        const XmlFilter::Treatment treatment =
            m_filter ? m_filter->enter(m_depth, name, attributes) : XmlFilter::Treatment::Keep;
        if (treatment == XmlFilter::Treatment::Skip)
            m_skippedDepth = m_depth;
        isKept = treatment == XmlFilter::Treatment::Keep;
    }
    m_isKept.push_back(isKept);
    if (isKept)
        m_handler.startElement(XmlElement(m_namespaces.elementName(name), attributes, m_namespaces));
}

void XmlParser::Driver::end(const char *name)
{
    if (m_isKept.back())
        m_handler.endElement(m_namespaces.elementName(name));
    m_isKept.pop_back();
    if (m_skippedDepth == m_depth)
        m_skippedDepth = 0;
    else if (m_filter && m_skippedDepth == 0)
        m_filter->leave(m_depth);
    m_namespaces.leave(m_depth);
    --m_depth;
}

bool XmlParser::Driver::take(QByteArrayView piece)
{
    m_pending.append(piece);
    return m_pending.size() < m_feedLength || feed(false);
}

bool XmlParser::Driver::feed(bool isLast)
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
    m_fedLength += m_pending.size();
    m_pending.clear();
    // The parser scans an incomplete token again on every call. Doubling the input each time keeps the total
    // proportional to the length of the token.
    const auto left = static_cast<qsizetype>(m_fedLength - XML_GetCurrentByteIndex(m_parser.get()));
    if (left > maxTokenLength)
        m_error = DocumentError::Cause::TooComplex;
    m_feedLength = std::max(minFeedLength, left);
    return !m_error;
}

std::optional<DocumentError::Cause> XmlParser::Driver::finish()
{
    if (!m_error)
        (void)feed(true);
    return m_error;
}

XmlParser::XmlParser(XmlNamespaces &namespaces, XmlHandler &handler, XmlFilter *filter)
    : m_driver(std::make_unique<Driver>(namespaces, handler, filter))
{
}

XmlParser::~XmlParser() = default;

bool XmlParser::take(QByteArrayView piece)
{
    return m_driver->take(piece);
}

std::optional<DocumentError::Cause> XmlParser::finish()
{
    return m_driver->finish();
}

std::optional<QByteArrayView> XmlElement::attribute(XmlName name) const
{
    for (const char *const *pair = m_attributes; *pair; pair += 2)
        if (m_namespaces.attributeName(pair[0]) == name)
            return QByteArrayView(pair[1]);
    return std::nullopt;
}

std::optional<DocumentError::Cause> readXmlPart(const ZipPackage &package, const QByteArray &partName,
    XmlNamespaces &namespaces, XmlHandler &handler, XmlFilter *filter)
{
    XmlParser parser(namespaces, handler, filter);
    const std::optional<DocumentError::Cause> failure =
        package.read(partName, [&parser](QByteArrayView piece) { return parser.take(piece); });
    return failure ? failure : parser.finish();
}
