// SPDX-License-Identifier: MIT
#include "tests/documents/epub/BookWriter.h"

namespace {

QByteArray contentsOf(const BookWriter::Page &page)
{
    if (page.body.startsWith("<?"))
        return page.body;
    return "<?xml version='1.0' encoding='UTF-8'?><!DOCTYPE html>"
           "<html xmlns='http://www.w3.org/1999/xhtml'><head><title>Title of the page</title></head><body>"
        + page.body + "</body></html>";
}

QByteArray packageDocument(const BookWriter &book)
{
    QByteArray items;
    QByteArray spine;
    int number = 0;
    for (const BookWriter::Page &page : book.pages) {
        const QByteArray identifier = "page" + QByteArray::number(++number);
        const QByteArray reference = page.reference.isEmpty() ? page.name : page.reference;
        items += "<item id='" + identifier + "' href='" + reference + "' " + page.inManifest + "/>";
        if (!page.inSpine.isEmpty())
            spine += "<itemref idref='" + identifier + "' " + page.inSpine + "/>";
    }
    return "<?xml version='1.0' encoding='UTF-8'?>" + book.documentType
        + "<package xmlns='http://www.idpf.org/2007/opf' version='3.0'><metadata"
          " xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:title>Title of the book</dc:title></metadata>"
          "<manifest>"
        + items + book.items + "</manifest><spine>" + spine + book.spine + "</spine></package>";
}

} // namespace

ZipWriter BookWriter::writer() const
{
    ZipWriter zip;
    if (!mimeType.isEmpty())
        zip.add({.name = "mimetype", .contents = mimeType});
    zip.add({.name = "META-INF/container.xml",
        .contents =
            "<?xml version='1.0'?><container version='1.0'"
            " xmlns='urn:oasis:names:tc:opendocument:xmlns:container'><rootfiles><rootfile full-path='"
            + folder + "book.opf' media-type='application/oebps-package+xml'/></rootfiles></container>",
        .method = method});
    if (!encryption.isEmpty())
        zip.add({.name = "META-INF/encryption.xml",
            .contents = "<encryption xmlns='urn:oasis:names:tc:opendocument:xmlns:container'"
                        " xmlns:enc='http://www.w3.org/2001/04/xmlenc#'>"
                + encryption + "</encryption>",
            .method = method});
    zip.add({.name = folder + "book.opf", .contents = packageDocument(*this), .method = method});
    for (const Page &page : pages) {
        if (!page.isMissing)
            zip.add({.name = folder + page.name, .contents = contentsOf(page), .method = method});
    }
    return zip;
}
