// SPDX-License-Identifier: MIT
#include "documents/DocumentKind.h"

#include <array>

namespace {

struct KindType {
    DocumentKind kind;
    QStringView type;
};

/// In the spelling of the shared MIME database. The menus of file managers are made from these lines
/// (file_managers/CMakeLists.txt).
constexpr std::array kindTypes{
    KindType{DocumentKind::PlainText, u"text/plain"},
    KindType{DocumentKind::Rtf, u"text/rtf"},
    KindType{DocumentKind::Rtf, u"application/rtf"},
    KindType{DocumentKind::Rtf, u"text/richtext"},
    KindType{DocumentKind::Rtfd, u"application/x-flat-rtfd"},
    KindType{DocumentKind::Html, u"text/html"},
    KindType{DocumentKind::Html, u"application/xhtml+xml"},
    KindType{DocumentKind::WordDocument,
        u"application/vnd.openxmlformats-officedocument.wordprocessingml.document"},
    KindType{DocumentKind::WordDocument,
        u"application/vnd.openxmlformats-officedocument.wordprocessingml.template"},
    KindType{DocumentKind::WordDocument, u"application/vnd.ms-word.document.macroEnabled.12"},
    KindType{DocumentKind::WordDocument, u"application/vnd.ms-word.template.macroEnabled.12"},
    KindType{DocumentKind::Pdf, u"application/pdf"},
    KindType{DocumentKind::OpenDocument, u"application/vnd.oasis.opendocument.text"},
    KindType{DocumentKind::OpenDocument, u"application/vnd.oasis.opendocument.text-template"},
    KindType{DocumentKind::OpenDocument, u"application/vnd.oasis.opendocument.text-master"},
    KindType{DocumentKind::OpenDocument, u"application/vnd.oasis.opendocument.text-flat-xml"},
    KindType{DocumentKind::Epub, u"application/epub+zip"},
};

} // namespace

QStringList mimeTypes(DocumentKind kind)
{
    QStringList types;
    for (const KindType &kindType : kindTypes) {
        if (kindType.kind == kind)
            types.append(kindType.type.toString());
    }
    return types;
}

std::optional<DocumentKind> kindOfMimeType(QAnyStringView type)
{
    for (const KindType &kindType : kindTypes) {
        if (QAnyStringView::compare(kindType.type, type, Qt::CaseInsensitive) == 0)
            return kindType.kind;
    }
    return std::nullopt;
}
