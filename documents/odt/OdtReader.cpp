// SPDX-License-Identifier: MIT
#include "documents/odt/OdtReader.h"

#include "documents/Lengths.h"
#include "documents/odt/OdtDocument.h"

#include <new>
#include <utility>

namespace {

using Cause = DocumentError::Cause;
using Failure = std::optional<Cause>;

/// "application/vnd.oasis.opendocument.text", or with the ending of a template, a master document or a web
/// page.
bool isTextType(QByteArrayView mimeType)
{
    constexpr QByteArrayView text("application/vnd.oasis.opendocument.text");
    return mimeType == text || mimeType.startsWith("application/vnd.oasis.opendocument.text-");
}

/// Notes the MIME type that the first element of a flat document names.
class RootReader final : public XmlHandler {
public:
    void startElement(const XmlElement &element) override
    {
        if (!m_hasStarted && odfName(element) == "office:document"_odf)
            m_isText = isTextType(odfAttribute(element, "office:mimetype"_odf).value_or(""));
        m_hasStarted = true;
    }
    void endElement(XmlName) override { }

    [[nodiscard]] bool isText() const { return m_isText; }

private:
    bool m_hasStarted = false;
    bool m_isText = false;
};

bool isFlatDocument(QByteArrayView bytes)
{
    constexpr qsizetype startLength = 65'536;
    const QByteArrayView start = bytes.first(std::min(bytes.size(), startLength));
    // Few texts need more than this test. The bytes may be UTF-16.
    if (!start.contains('<') || !start.contains('x'))
        return false;
    XmlNamespaces namespaces(odfNamespaces());
    RootReader root;
    XmlParser parser(namespaces, root);
    if (parser.take(start))
        (void)parser.finish(); // fails where the start is cut off
    return root.isText();
}

/// The part "mimetype", wherever it is in the package; empty if it is missing or too long to be one.
QByteArray mimeTypeOf(const ZipPackage &package)
{
    constexpr qsizetype maxTypeLength = 200;
    QByteArray type;
    const Failure failure = package.read("mimetype", [&](QByteArrayView piece) {
        type.append(piece.first(std::min(piece.size(), maxTypeLength)));
        return type.size() < maxTypeLength;
    });
    return failure || type.size() >= maxTypeLength ? QByteArray() : type.trimmed();
}

/// Notes whether a manifest names a part that is encrypted.
class ManifestReader final : public XmlHandler {
public:
    void startElement(const XmlElement &element) override
    {
        m_isEncrypted = m_isEncrypted || odfName(element) == "manifest:encryption-data"_odf;
    }
    void endElement(XmlName) override { }

    [[nodiscard]] bool isEncrypted() const { return m_isEncrypted; }

private:
    bool m_isEncrypted = false;
};

bool isEncrypted(const ZipPackage &package)
{
    XmlNamespaces namespaces(odfNamespaces());
    ManifestReader manifest;
    // A damaged manifest does not keep a text from being read.
    const Failure failure = readXmlPart(package, "META-INF/manifest.xml", namespaces, manifest);
    return !failure && manifest.isEncrypted();
}

Failure readPart(const ZipPackage &package, const QByteArray &name, OdtDocument &document)
{
    XmlNamespaces namespaces(odfNamespaces());
    document.beginPart(name == "content.xml");
    const Failure failure = readXmlPart(package, name, namespaces, document);
    return failure ? failure : document.error();
}

Result<AttributedString, Cause> readPackage(QByteArrayView bytes)
{
    ReadAllowance allowance;
    const Result<ZipPackage, Cause> opened = ZipPackage::open(bytes, allowance);
    if (!opened)
        return opened.error();
    const ZipPackage &package = opened.value();
    if (isEncrypted(package))
        return Cause::Encrypted;
    if (!isTextType(mimeTypeOf(package)) && package.contains("mimetype"))
        return Cause::WrongKind;
    OdtDocument document([&package](const QByteArray &name, XmlHandler &handler) {
        XmlNamespaces namespaces(odfNamespaces());
        const QByteArray part = name + "/content.xml";
        if (package.contains(part))
            (void)readXmlPart(package, part, namespaces, handler); // a damaged object is not worth the text
    });
    // The text needs the settings and the styles. Templates of styles may have no text at all; LibreOffice
    // installs such ones.
    const bool hasStyles = package.contains("styles.xml");
    for (const char *part : {"settings.xml", "styles.xml", "content.xml"}) {
        const bool isNeeded = part == QByteArrayView("content.xml") && !hasStyles;
        if (!isNeeded && !package.contains(part))
            continue;
        if (const Failure failure = readPart(package, part, document))
            return *failure;
    }
    if (package.contains("content.xml") && !document.hasText())
        return Cause::WrongKind;
    return document.takeText();
}

Result<AttributedString, Cause> readFlatDocument(QByteArrayView bytes)
{
    if (bytes.size() > maxDocumentLength)
        return Cause::TooLong;
    if (!isFlatDocument(bytes))
        return Cause::WrongKind;
    constexpr qsizetype pieceLength = 65'536;
    OdtDocument document([](const QByteArray &, XmlHandler &) {});
    XmlNamespaces namespaces(odfNamespaces());
    XmlParser parser(namespaces, document);
    for (QByteArrayView rest = bytes; !rest.isEmpty();) {
        const QByteArrayView piece = rest.first(std::min(rest.size(), pieceLength));
        if (!parser.take(piece))
            break;
        rest = rest.sliced(piece.size());
    }
    if (const Failure failure = parser.finish())
        return *failure;
    if (const Failure failure = document.error())
        return *failure;
    if (!document.hasText())
        return Cause::WrongKind;
    return document.takeText();
}

} // namespace

Result<AttributedString, DocumentError> readOpenDocument(QByteArrayView bytes)
{
    try {
        Result<AttributedString, Cause> text =
            bytes.startsWith("PK") ? readPackage(bytes) : readFlatDocument(bytes);
        if (text)
            return std::move(text).value();
        return DocumentError(text.error(), DocumentKind::OpenDocument);
    } catch (const std::bad_alloc &) {
        return DocumentError(Cause::NotEnoughMemory, DocumentKind::OpenDocument);
    }
}
