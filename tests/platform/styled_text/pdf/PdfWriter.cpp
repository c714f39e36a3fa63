// SPDX-License-Identifier: MIT
#include "tests/platform/styled_text/pdf/PdfWriter.h"

namespace {

// Objects: 1 the catalog, 2 the pages, 3 the font, 4 the encryption, then two for each page.
constexpr qsizetype firstPageObject = 5;

QByteArray referenceTo(qsizetype object)
{
    return QByteArray::number(object) + " 0 R";
}

QByteArray pageContents(const QByteArray &text)
{
    QByteArray drawing("BT /F1 12 Tf 72 720 Td 14 TL");
    for (const QByteArray &line : text.split('\n'))
        drawing += " (" + line + ") Tj T*";
    drawing += " ET";
    return "<< /Length " + QByteArray::number(drawing.size()) + " >>\nstream\n" + drawing + "\nendstream";
}

QByteArray pageDescription(qsizetype contents)
{
    return "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] /Contents " + referenceTo(contents)
        + " /Resources << /Font << /F1 3 0 R >> >> >>";
}

} // namespace

QByteArray PdfWriter::bytes() const
{
    QByteArray kids;
    for (qsizetype page = 0; page < pages.size(); ++page)
        kids += referenceTo(firstPageObject + 2 * page) + ' ';
    QByteArrayList objects{"<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [" + kids + "] /Count " + QByteArray::number(pages.size()) + " >>",
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
        "<< /Filter /Standard /V 1 /R 2 /P -4 /O <" + QByteArray(64, 'A') + "> /U <" + QByteArray(64, 'B')
            + "> >>"};
    for (const QByteArray &page : pages) {
        objects.append(pageDescription(objects.size() + 2));
        objects.append(pageContents(page));
    }

    QByteArray file("%PDF-1.4\n");
    QByteArray table("0000000000 65535 f \n");
    for (qsizetype i = 0; i < objects.size(); ++i) {
        table += QByteArray::number(file.size()).rightJustified(10, '0') + " 00000 n \n";
        file += QByteArray::number(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const qsizetype tableStart = file.size();
    const QByteArray size = QByteArray::number(objects.size() + 1);
    return file + "xref\n0 " + size + '\n' + table + "trailer\n<< /Size " + size + " /Root 1 0 R"
        + (isEncrypted ? " /Encrypt 4 0 R /ID [<00> <00>]" : "") + " >>\nstartxref\n"
        + QByteArray::number(tableStart) + "\n%%EOF\n";
}
