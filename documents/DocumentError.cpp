// SPDX-License-Identifier: MIT
#include "documents/DocumentError.h"

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

QString kindName(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::PlainText:
        return QStringLiteral("plain text");
    case DocumentKind::Rtf:
        return QStringLiteral("RTF");
    case DocumentKind::Rtfd:
        return QStringLiteral("an RTFD");
    case DocumentKind::Html:
        return QStringLiteral("a web page");
    case DocumentKind::WordDocument:
        return QStringLiteral("a Word document");
    case DocumentKind::Pdf:
        return QStringLiteral("a PDF file");
    case DocumentKind::OpenDocument:
        return QStringLiteral("an OpenDocument text");
    case DocumentKind::Epub:
        break;
    }
    return QStringLiteral("an EPUB");
}

QString textOfDamage(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::WordDocument:
        return QStringLiteral("is a damaged Word document; open it in a word processor and save it again");
    case DocumentKind::OpenDocument:
        return QStringLiteral(
            "is a damaged OpenDocument text; open it in a word processor and save it again");
    case DocumentKind::Pdf:
        return QStringLiteral("is a damaged PDF file; create it again with the program that wrote it");
    case DocumentKind::Rtfd:
        return QStringLiteral("is a damaged RTFD; save it again");
    case DocumentKind::Epub:
        return QStringLiteral("is a damaged EPUB; create it again with the program that wrote it");
    default:
        return QStringLiteral("is damaged; save it again");
    }
}

QString textOfComplexity(DocumentKind kind)
{
    switch (kind) {
    case DocumentKind::WordDocument:
    case DocumentKind::OpenDocument:
        return QStringLiteral("takes too much time or memory to read; save it again with a word processor");
    case DocumentKind::Pdf:
        return QStringLiteral("takes too much time or memory to read; print it to a new PDF file first");
    default:
        return QStringLiteral("takes too much time or memory to read; simplify or divide it");
    }
}

QString textOfEncryption(DocumentKind kind)
{
    if (kind == DocumentKind::Epub)
        return QStringLiteral("is encrypted (DRM); count a copy without copy protection");
    return QStringLiteral("is encrypted; save it without a password");
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
        return QStringLiteral("is not ") + kindName(error.kind);
    case Cause::NotText:
        return QStringLiteral("is %1, not a text").arg(error.format);
    case Cause::UnsupportedFormat:
        return QStringLiteral("is ") + error.format;
    case Cause::OldFormat:
        return QStringLiteral("is in a Word format older than 2007; save it as .docx or RTF");
    case Cause::FlatWordDocument:
        return QStringLiteral("is a Word document in one XML file; save it as .docx");
    case Cause::Encrypted:
        return textOfEncryption(error.kind);
    case Cause::Damaged:
        return textOfDamage(error.kind);
    case Cause::TextMissing:
        return QStringLiteral("is an RTFD without TXT.rtf; save it again");
    case Cause::TextUnreadable:
        return QStringLiteral("its TXT.rtf cannot be read: ") + textOfFile(error.file);
    case Cause::TextNotRtf:
        return QStringLiteral("is an RTFD whose TXT.rtf is not RTF; save it again");
    case Cause::UnsupportedPart:
        return QStringLiteral("has a part in an unsupported format; save it again with a word processor");
    case Cause::NoPages:
        return QStringLiteral("is a PDF file without pages; print the document again");
    case Cause::NoText:
        return QStringLiteral("has no text on its pages; run text recognition on it first");
    case Cause::UnmappedText:
        return QStringLiteral("has unreadable text, as its fonts do not map glyphs to characters; "
                              "run text recognition on it first");
    case Cause::TooLong:
        return causeText(FileError{FileError::Cause::TooLarge});
    case Cause::TooLarge:
        return QStringLiteral("is too large when unpacked; divide it");
    case Cause::TooDeep:
        return QStringLiteral("has more than 1000 elements inside each other; simplify it");
    case Cause::TooComplex:
        return textOfComplexity(error.kind);
    case Cause::PdfNotSupported:
        return QStringLiteral("is a PDF file, which is not supported here; count it with 'quillbay count'");
    case Cause::NoReader:
        return QStringLiteral("needs the program quillbay-document-reader, which is missing or does not "
                              "start; reinstall Quillbay");
    case Cause::NoSandbox:
        return QStringLiteral("cannot be read safely, as the system refuses the filter of system calls; "
                              "allow seccomp in the kernel or container");
    case Cause::Cancelled:
        return QStringLiteral("was not read, as nobody needs it any more");
    case Cause::NotEnoughMemory:
        break;
    }
    return causeText(FileError{FileError::Cause::NotEnoughMemory});
}
