// SPDX-License-Identifier: MIT
#include "tests/documents/pdf/PdfWriter.h"

#include <QCryptographicHash>

#include <array>
#include <numeric>
#include <utility>

namespace {

// Objects: 1 the catalog, 2 the pages, 3 the font, 4 the encryption, then two for each page.
constexpr qsizetype firstPageObject = 5;

// The standard security handler.
constexpr qsizetype passwordLength = 32;
constexpr qsizetype keyLength = 5;
constexpr qsizetype objectKeyLength = keyLength + 5;
const QByteArray permissions("\xFC\xFF\xFF\xFF", 4); // -4: all
const QByteArray identifier("\0", 1);

QByteArray referenceTo(qsizetype object)
{
    return QByteArray::number(object) + " 0 R";
}

QByteArray md5(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}

QByteArray rc4(const QByteArray &key, QByteArray bytes)
{
    std::array<quint8, 256> state{};
    std::iota(state.begin(), state.end(), quint8{0});
    quint8 j = 0;
    for (size_t i = 0; i < state.size(); ++i) {
        j = static_cast<quint8>(
            j + state[i] + static_cast<quint8>(key[static_cast<qsizetype>(i) % key.size()]));
        std::swap(state[i], state[j]);
    }
    quint8 i = 0;
    j = 0;
    for (char &byte : bytes) {
        i = static_cast<quint8>(i + 1);
        j = static_cast<quint8>(j + state[i]);
        std::swap(state[i], state[j]);
        byte = static_cast<char>(static_cast<quint8>(byte) ^ state[static_cast<quint8>(state[i] + state[j])]);
    }
    return bytes;
}

QByteArray padded(const QByteArray &password)
{
    const QByteArray padding("\x28\xBF\x4E\x5E\x4E\x75\x8A\x41\x64\x00\x4E\x56\xFF\xFA\x01\x08"
                             "\x2E\x2E\x00\xB6\xD0\x68\x3E\x80\x2F\x0C\xA9\xFE\x64\x53\x69\x7A",
        passwordLength);
    return (password + padding).first(passwordLength);
}

class Encrypter {
public:
    explicit Encrypter(const QByteArray &password)
        : m_ownerEntry(rc4(md5(padded("of the owner")).first(keyLength), padded(password)))
        , m_key(md5(padded(password) + m_ownerEntry + permissions + identifier).first(keyLength))
    {
    }

    [[nodiscard]] QByteArray dictionary() const
    {
        return "<< /Filter /Standard /V 1 /R 2 /P -4 /O <" + m_ownerEntry.toHex() + "> /U <"
            + rc4(m_key, padded({})).toHex() + "> >>";
    }
    [[nodiscard]] QByteArray encrypted(qsizetype object, const QByteArray &stream) const
    {
        QByteArray key = m_key;
        for (const int shift : {0, 8, 16})
            key.append(static_cast<char>(object >> shift));
        key.append(2, '\0');
        return rc4(md5(key).first(objectKeyLength), stream);
    }

private:
    QByteArray m_ownerEntry;
    QByteArray m_key;
};

QByteArray drawingOf(const QByteArray &text)
{
    QByteArray drawing("BT /F1 12 Tf 72 720 Td 14 TL");
    for (const QByteArray &line : text.split('\n'))
        drawing += " (" + line + ") Tj T*";
    return drawing + " ET";
}

QByteArray pageDescription(qsizetype contents)
{
    return "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 612 792] /Contents " + referenceTo(contents)
        + " /Resources << /Font << /F1 3 0 R >> >> >>";
}

} // namespace

QByteArray PdfWriter::bytes() const
{
    const bool isEncrypted = encryption != Encryption::None;
    const Encrypter encrypter(encryption == Encryption::WithPassword ? "that nobody knows" : "");
    QByteArray kids;
    for (qsizetype page = 0; page < pages.size(); ++page)
        kids += referenceTo(firstPageObject + 2 * page) + ' ';
    QByteArrayList objects{"<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [" + kids + "] /Count "
            + QByteArray::number(claimedPages < 0 ? pages.size() : claimedPages) + " >>",
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>", encrypter.dictionary()};
    for (const QByteArray &page : pages) {
        objects.append(pageDescription(objects.size() + 2));
        QByteArray stream = arePagesDrawn ? page : drawingOf(page);
        if (isCompressed)
            stream = qCompress(stream).sliced(4); // without the length that qCompress() puts in front
        if (isEncrypted)
            stream = encrypter.encrypted(objects.size() + 1, stream);
        objects.append((isCompressed ? "<< /Filter /FlateDecode /Length " : "<< /Length ")
            + QByteArray::number(stream.size()) + " >>\nstream\n" + stream + "\nendstream");
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
