// SPDX-License-Identifier: MIT
#include "documents/DocumentError.h"

#include <QCoreApplication>

namespace {

using Cause = DocumentError::Cause;

Cause causeOfFile(FileError::Cause cause)
{
    switch (cause) {
    case FileError::Cause::TooLarge:
        return Cause::TooLong;
    case FileError::Cause::NotEnoughMemory:
        return Cause::NotEnoughMemory;
    default:
        return Cause::FileUnreadable;
    }
}

QString textOfWrongKind(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::PlainText:
    case DocumentKind::Markdown:
    case DocumentKind::Latex:
        return QCoreApplication::translate("documents", "is not plain text");
    case DocumentKind::Rtf:
        return QCoreApplication::translate("documents", "is not RTF");
    case DocumentKind::Rtfd:
        return QCoreApplication::translate("documents", "is not an RTFD");
    case DocumentKind::Html:
        return QCoreApplication::translate("documents", "is not a web page");
    case DocumentKind::WordDocument:
        return QCoreApplication::translate("documents", "is not a Word document");
    case DocumentKind::Pdf:
        return QCoreApplication::translate("documents", "is not a PDF file");
    case DocumentKind::OpenDocument:
        return QCoreApplication::translate("documents", "is not an OpenDocument text");
    case DocumentKind::Epub:
        break;
    }
    return QCoreApplication::translate("documents", "is not an EPUB");
}

QString textOfDamage(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::WordDocument:
        return QCoreApplication::translate(
            "documents", "is a damaged Word document; open it in a word processor and save it again");
    case DocumentKind::OpenDocument:
        return QCoreApplication::translate(
            "documents", "is a damaged OpenDocument text; open it in a word processor and save it again");
    case DocumentKind::Pdf:
        return QCoreApplication::translate(
            "documents", "is a damaged PDF file; create it again with the program that wrote it");
    case DocumentKind::Rtfd:
        return QCoreApplication::translate("documents", "is a damaged RTFD; save it again");
    case DocumentKind::Epub:
        return QCoreApplication::translate(
            "documents", "is a damaged EPUB; create it again with the program that wrote it");
    default:
        return QCoreApplication::translate("documents", "is damaged; save it again");
    }
}

QString textOfComplexity(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::WordDocument:
    case DocumentKind::OpenDocument:
        return QCoreApplication::translate(
            "documents", "takes too much time or memory to read; save it again with a word processor");
    case DocumentKind::Pdf:
        return QCoreApplication::translate(
            "documents", "takes too much time or memory to read; print it to a new PDF file first");
    default:
        return QCoreApplication::translate(
            "documents", "takes too much time or memory to read; simplify or divide it");
    }
}

QString textOfEncryption(DocumentKind kind)
{
    if (kind == DocumentKind::Epub)
        return QCoreApplication::translate(
            "documents", "is encrypted (DRM); count a copy without copy protection");
    return QCoreApplication::translate("documents", "is encrypted; save it without a password");
}

QString textOfFile(const std::optional<FileError> &file)
{
    return file ? causeText(*file) : QStringLiteral("cannot be read");
}

} // namespace

DocumentError::DocumentError(const FileError &error)
    : cause(causeOfFile(error.cause))
{
    if (cause == Cause::FileUnreadable)
        file = error;
}

QString causeText(const DocumentError &error)
{
    switch (error.cause) {
    case Cause::FileUnreadable:
        return textOfFile(error.file);
    case Cause::WrongKind:
        return textOfWrongKind(error.kind);
    case Cause::NotText:
        return QCoreApplication::translate("documents", "is %1, not a text").arg(error.format);
    case Cause::UnsupportedFormat:
        return QCoreApplication::translate("documents", "is %1")
            .arg(QCoreApplication::translate("documents/reading", error.format.toUtf8().constData()));
    case Cause::OldFormat:
        return QCoreApplication::translate(
            "documents", "is in a Word format older than 2007; save it as .docx or RTF");
    case Cause::FlatWordDocument:
        return QCoreApplication::translate(
            "documents", "is a Word document in one XML file; save it as .docx");
    case Cause::Encrypted:
        return textOfEncryption(error.kind);
    case Cause::Damaged:
        return textOfDamage(error.kind);
    case Cause::TextMissing:
        return QCoreApplication::translate("documents", "is an RTFD without TXT.rtf; save it again");
    case Cause::TextUnreadable:
        return QCoreApplication::translate("documents", "its TXT.rtf cannot be read: %1")
            .arg(textOfFile(error.file));
    case Cause::TextNotRtf:
        return QCoreApplication::translate("documents", "is an RTFD whose TXT.rtf is not RTF; save it again");
    case Cause::UnsupportedPart:
        return QCoreApplication::translate(
            "documents", "has a part in an unsupported format; save it again with a word processor");
    case Cause::NoPages:
        return QCoreApplication::translate(
            "documents", "is a PDF file without pages; print the document again");
    case Cause::NoText:
        return QCoreApplication::translate(
            "documents", "has no text on its pages; run text recognition on it first");
    case Cause::UnmappedText:
        return QCoreApplication::translate("documents",
            "has unreadable text, as its fonts do not map glyphs to characters; "
            "run text recognition on it first");
    case Cause::TooLong:
        return causeText(FileError{FileError::Cause::TooLarge});
    case Cause::TooLarge:
        return QCoreApplication::translate("documents", "is too large when unpacked; divide it");
    case Cause::TooDeep:
        return QCoreApplication::translate(
            "documents", "has more than 1000 elements inside each other; simplify it");
    case Cause::TooComplex:
        return textOfComplexity(error.kind);
    case Cause::PdfNotSupported:
        return QCoreApplication::translate(
            "documents", "is a PDF file, which is not supported here; count it with 'quillbay count'");
    case Cause::NoReader:
        return QCoreApplication::translate("documents",
            "needs the program quillbay-document-reader, which is missing or does not "
            "start; reinstall Quillbay");
    case Cause::NoSandbox:
        return QCoreApplication::translate("documents",
            "cannot be read safely, as the system refuses the filter of system calls; "
            "allow seccomp in the kernel or container");
    case Cause::Cancelled:
        return QCoreApplication::translate("documents", "was not read, as nobody needs it any more");
    case Cause::NotEnoughMemory:
        break;
    }
    return causeText(FileError{FileError::Cause::NotEnoughMemory});
}
