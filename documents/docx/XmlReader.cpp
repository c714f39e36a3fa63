// SPDX-License-Identifier: MIT
#include "documents/docx/XmlReader.h"

#include <expat.h>

#include <algorithm>
#include <cmath>
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

/// Feeds a parser and passes its results to the handler. The only state of the parser that a document
/// controls are open tags and names; both are bounded.
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
        static_cast<ParserDriver *>(self)->callSafely(
            [&](ParserDriver &driver) { driver.start(name, attributes); });
    }
    static void XMLCALL onEnd(void *self, const XML_Char *name)
    {
        static_cast<ParserDriver *>(self)->callSafely([&](ParserDriver &driver) { driver.end(name); });
    }
    static void XMLCALL onCharacters(void *self, const XML_Char *text, int length)
    {
        static_cast<ParserDriver *>(self)->callSafely([&](ParserDriver &driver) {
            if (driver.m_skippedDepth == 0)
                driver.m_handler.characters(QByteArrayView(text, length));
        });
    }
    static void XMLCALL onDoctype(void *self, const XML_Char *, const XML_Char *, const XML_Char *, int)
    {
        static_cast<ParserDriver *>(self)->stop(DocumentError::Cause::Damaged);
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
    XmlNamespaces m_namespaces;
    MarkupCompatibility m_compatibility;
    XmlHandler &m_handler;
    QByteArray m_pending;
    qsizetype m_feedLength = minFeedLength;
    qint64 m_fedLength = 0;
    int m_depth = 0;
    int m_skippedDepth = 0; // of the outermost skipped element; 0 if there is none
    std::vector<bool> m_isKept; // by depth, of open elements
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
    if (m_depth > maxDepth || m_namespaces.hasTooManyNames()) {
        stop(DocumentError::Cause::TooComplex);
        return;
    }
    m_namespaces.enter(m_depth, attributes);
    bool isKept = false;
    if (m_skippedDepth == 0) {
        const MarkupCompatibility::Treatment treatment = m_compatibility.enter(m_depth, name, attributes);
        if (treatment == MarkupCompatibility::Treatment::Skip)
            m_skippedDepth = m_depth;
        isKept = treatment == MarkupCompatibility::Treatment::Keep;
    }
    m_isKept.push_back(isKept);
    if (isKept)
        m_handler.startElement(XmlElement(m_namespaces.elementName(name), attributes, m_namespaces));
}

void ParserDriver::end(const char *name)
{
    if (m_isKept.back())
        m_handler.endElement(m_namespaces.elementName(name));
    m_isKept.pop_back();
    if (m_skippedDepth == 0)
        m_compatibility.leave(m_depth);
    else if (m_skippedDepth == m_depth)
        m_skippedDepth = 0;
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

std::optional<DocumentError::Cause> ParserDriver::finish()
{
    if (!m_error)
        (void)feed(true);
    return m_error;
}

constexpr double maxLength = 2'834; // points; a metre
constexpr qsizetype maxNumberLength = 40;

struct Unit {
    const char *name;
    double points;
};

constexpr Unit units[]{
    {"pt", 1},
    {"in", 72},
    {"cm", 72 / 2.54},
    {"mm", 72 / 25.4},
    {"pc", 12},
    {"pi", 12},
};

std::optional<double> numberOf(QByteArrayView text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
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

std::optional<double> pointsOf(std::optional<QByteArrayView> value, double unitsPerPoint)
{
    if (!value || value->size() > maxNumberLength)
        return std::nullopt;
    const QByteArrayView text = value->trimmed();
    std::optional<double> points = numberOf(text);
    if (points)
        *points /= unitsPerPoint;
    for (const Unit &unit : units) {
        if (!points && text.endsWith(unit.name)) {
            points = numberOf(text.chopped(2));
            if (points)
                *points *= unit.points;
        }
    }
    if (!points)
        return std::nullopt;
    return std::clamp(*points, -maxLength, maxLength);
}

std::optional<int> integerOf(std::optional<QByteArrayView> value)
{
    if (!value || value->size() > maxNumberLength)
        return std::nullopt;
    bool isNumber = false;
    const int number = value->trimmed().toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

std::optional<int> hexadecimalOf(std::optional<QByteArrayView> value)
{
    if (!value || value->size() > maxNumberLength)
        return std::nullopt;
    bool isNumber = false;
    const int number = value->trimmed().toInt(&isNumber, 16);
    return isNumber ? std::optional(number) : std::nullopt;
}

bool booleanOf(std::optional<QByteArrayView> value)
{
    return !value || !(*value == "0" || *value == "false" || *value == "off");
}
