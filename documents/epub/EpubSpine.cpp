// SPDX-License-Identifier: MIT
#include "documents/epub/EpubSpine.h"

#include "documents/package/PartNames.h"
#include "documents/package/XmlReader.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <optional>

namespace {

using Cause = DocumentError::Cause;

// The formats have changed their namespaces over time, but none of the names within them. Therefore elements
// are told by their names.

/// Reads META-INF/container.xml.
class ContainerReader final : public XmlHandler {
public:
    void startElement(const XmlElement &element) override
    {
        const auto path = element.attribute(plainName("full-path"_tag));
        const auto type = element.attribute(plainName("media-type"_tag));
        const bool isBook = !type || type->trimmed() == "application/oebps-package+xml";
        if (element.tag() == "rootfile"_tag && path && isBook && m_packageDocument.isEmpty())
            m_packageDocument = path->toByteArray();
    }
    void endElement(XmlName) override { }

    /// The path of the first one; empty if there is none.
    [[nodiscard]] const QByteArray &packageDocument() const { return m_packageDocument; }

private:
    QByteArray m_packageDocument;
};

/// Reads META-INF/encryption.xml (XML Encryption).
class EncryptionReader final : public XmlHandler {
public:
    void startElement(const XmlElement &element) override
    {
        if (element.tag() == "EncryptedData"_tag)
            m_algorithm.reset();
        if (element.tag() == "EncryptionMethod"_tag && !m_algorithm)
            m_algorithm =
                element.attribute(plainName("Algorithm"_tag)).value_or(QByteArrayView()).toByteArray();
        const auto part = element.attribute(plainName("URI"_tag));
        if (element.tag() == "CipherReference"_tag && part
            && !isObfuscation(m_algorithm.value_or(QByteArray())))
            m_parts.insert(resolvePartName({}, *part).toLower());
    }
    void endElement(XmlName) override { }

    [[nodiscard]] bool isEncrypted(const QByteArray &part) const { return m_parts.contains(part.toLower()); }

private:
    /// Of fonts: anyone may read them, but not copy them into other books.
    static bool isObfuscation(const QByteArray &algorithm)
    {
        return algorithm == "http://www.idpf.org/2008/embedding"
            || algorithm == "http://ns.adobe.com/pdf/enc#RC";
    }

    std::optional<QByteArray> m_algorithm;
    QSet<QByteArray> m_parts; // names in lower case: those of packages ignore it
};

/// Reads the package document: what is in the book, and the reading order.
class PackageDocumentReader final : public XmlHandler {
public:
    struct Item {
        QByteArray reference;
        QByteArray type;
        QByteArray fallback; ///< the identifier of another item
    };

    void startElement(const XmlElement &element) override
    {
        const auto value = [&element](XmlTag tag) {
            return element.attribute(plainName(tag)).value_or(QByteArrayView()).trimmed().toByteArray();
        };
        if (element.tag() == "item"_tag)
            m_items.insert(
                value("id"_tag), {value("href"_tag), value("media-type"_tag), value("fallback"_tag)});
        else if (element.tag() == "itemref"_tag && value("linear"_tag) != "no")
            m_order.push_back(value("idref"_tag));
    }
    void endElement(XmlName) override { }

    [[nodiscard]] bool hasReadingOrder() const { return !m_order.empty(); }

    /// The references of the pages in their order.
    [[nodiscard]] std::vector<QByteArray> pages() const
    {
        std::vector<QByteArray> references;
        for (const QByteArray &identifier : m_order) {
            if (const Item *page = pageOf(identifier))
                references.push_back(page->reference);
        }
        return references;
    }

private:
    static bool isPage(const QByteArray &type)
    {
        static const QSet<QByteArray> types{"application/xhtml+xml", "text/html", "text/x-oeb1-document",
            "application/x-dtbook+xml", "image/svg+xml"};
        return types.contains(type.toLower());
    }

    /// The item or its first fallback that is a page; null if there is none.
    [[nodiscard]] const Item *pageOf(QByteArray identifier) const
    {
        constexpr int maxFallbacks = 10;
        for (int i = 0; i <= maxFallbacks; ++i) {
            const auto found = m_items.constFind(identifier);
            if (found == m_items.cend())
                return nullptr;
            if (isPage(found->type))
                return &*found;
            identifier = found->fallback;
        }
        return nullptr;
    }

    QHash<QByteArray, Item> m_items; // by identifier
    std::vector<QByteArray> m_order; // identifiers
};

std::optional<Cause> readXml(const ZipPackage &package, const QByteArray &part, XmlHandler &handler)
{
    XmlNamespaces namespaces({});
    return readXmlPart(package, part, namespaces, handler);
}

} // namespace

// Some programs do not escape the references that they write.
QByteArray partAt(const ZipPackage &package, const QByteArray &source, const QByteArray &reference)
{
    QByteArray name = resolvePartName(source, reference);
    if (package.contains(name))
        return name;
    return resolvePartName(source, reference.toPercentEncoding("/"));
}

Result<std::vector<QByteArray>, Cause> pagesOfEpub(const ZipPackage &package)
{
    ContainerReader container;
    std::optional<Cause> failure = readXml(package, epubContainerPart, container);
    if (failure)
        return *failure;
    const QByteArray packageDocument = partAt(package, {}, container.packageDocument());

    EncryptionReader encryption;
    const QByteArray encryptionPart("META-INF/encryption.xml");
    if (package.contains(encryptionPart))
        failure = readXml(package, encryptionPart, encryption);
    if (failure)
        return *failure;
    if (encryption.isEncrypted(packageDocument))
        return Cause::Encrypted;

    PackageDocumentReader book;
    failure = readXml(package, packageDocument, book);
    if (failure)
        return *failure;
    if (!book.hasReadingOrder())
        return Cause::Damaged;
    std::vector<QByteArray> pages;
    QSet<QByteArray> known;
    for (const QByteArray &reference : book.pages()) {
        const QByteArray part = partAt(package, packageDocument, reference);
        if (encryption.isEncrypted(part))
            return Cause::Encrypted;
        if (!package.contains(part))
            return Cause::Damaged;
        if (!known.contains(part.toLower()))
            pages.push_back(part);
        known.insert(part.toLower());
    }
    return pages;
}
