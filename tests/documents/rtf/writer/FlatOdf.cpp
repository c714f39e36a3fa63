// SPDX-License-Identifier: MIT
#include "tests/documents/rtf/writer/FlatOdf.h"

#include <QXmlStreamReader>

#include <gtest/gtest.h>

FlatOdf::FlatOdf(const QByteArray &document)
{
    QXmlStreamReader xml(document);
    xml.setNamespaceProcessing(false);
    const auto attribute = [&](const char *name) {
        return xml.attributes().value(QLatin1String(name)).toString();
    };
    QString style;
    QString paragraphStyle;
    QString spanStyle;
    bool isText = false;
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        const QStringView name = xml.qualifiedName();
        if (token == QXmlStreamReader::StartElement && name == u"style:style") {
            style = attribute("style:name");
        } else if (token == QXmlStreamReader::StartElement && name.endsWith(u"-properties")) {
            for (const QXmlStreamAttribute &property : xml.attributes())
                m_styles[style].insert(
                    property.qualifiedName().toString().section(u':', -1), property.value().toString());
        } else if (token == QXmlStreamReader::StartElement && name == u"text:p") {
            isText = true;
            paragraphStyle = attribute("text:style-name");
        } else if (token == QXmlStreamReader::EndElement && name == u"text:p") {
            isText = false;
        } else if (name == u"text:span") {
            spanStyle = token == QXmlStreamReader::StartElement ? attribute("text:style-name") : QString();
        } else if (token == QXmlStreamReader::Characters && isText) {
            m_pieces.push_back({xml.text().toString(), spanStyle, paragraphStyle});
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
}

const FlatOdf::Piece *FlatOdf::pieceWith(const QString &text) const
{
    for (const Piece &piece : m_pieces)
        if (piece.text.contains(text))
            return &piece;
    ADD_FAILURE() << "no text " << text.toStdString();
    return nullptr;
}

QString FlatOdf::ofSpan(const QString &piece, const char *property) const
{
    const Piece *const found = pieceWith(piece);
    return found ? m_styles.value(found->spanStyle).value(QLatin1String(property)) : QString();
}

QString FlatOdf::ofParagraph(const QString &piece, const char *property) const
{
    const Piece *const found = pieceWith(piece);
    return found ? m_styles.value(found->paragraphStyle).value(QLatin1String(property)) : QString();
}

double FlatOdf::points(const QString &piece, const char *property) const
{
    const QString length = ofParagraph(piece, property);
    bool isNumber = false;
    const double number =
        QStringView(length).chopped(std::min<qsizetype>(2, length.size())).toDouble(&isNumber);
    EXPECT_TRUE(isNumber) << property << " of " << piece.toStdString() << " is " << length.toStdString();
    if (length.endsWith(QLatin1String("in")))
        return number * 72;
    if (length.endsWith(QLatin1String("cm")))
        return number * 72 / 2.54;
    EXPECT_TRUE(length.endsWith(QLatin1String("pt"))) << length.toStdString();
    return number;
}
