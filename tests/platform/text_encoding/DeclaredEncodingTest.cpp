// SPDX-License-Identifier: MIT
#include "documents/PlainTextReader.h"

#include "tests/documents/SampleTexts.h"
#include "tests/harness/QuillbayTest.h"

using namespace SampleTexts;

namespace {

// Too short to detect the encoding from the bytes.
const QString greeting = QStringLiteral("да");

QString decodedText(const QByteArray &bytes)
{
    return readPlainText(bytes).value().text;
}

} // namespace

TEST(DeclaredEncoding, IsThatOfAnXmlDeclaration)
{
    for (const char *encoding : {"KOI8-R", "windows-1251", "IBM866", "ISO-8859-5"}) {
        const QString text =
            QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?>\n<feed><title>%2</title></feed>\n")
                .arg(QString::fromLatin1(encoding), greeting);
        EXPECT_EQ(decodedText(encodeText(text, encoding)), text);
    }
}

TEST(DeclaredEncoding, IsThatOfAMetaElement)
{
    for (const char *start : {"<!DOCTYPE html>\n", "<?php echo 1; ?>\n", "<!-- template -->", "\n <head>"}) {
        const QString text = QString::fromLatin1(start)
            + QStringLiteral("<meta http-equiv=content-type content='text/html; charset=koi8-r'>") + greeting;
        EXPECT_EQ(decodedText(encodeText(text, "KOI8-R")), text);
    }
}

TEST(DeclaredEncoding, IsIgnoredInATextThatOnlyQuotesOne)
{
    const QString text =
        QStringLiteral("Ein <meta charset=koi8-r> gehört über jede ältere russische Seite, schön früh.\n");
    EXPECT_EQ(decodedText(encodeText(text, "windows-1252")), text);
}

TEST(DeclaredEncoding, DoesNotOverrideUtf8)
{
    const QString text =
        QStringLiteral("<?xml version='1.0' encoding='iso-8859-1'?><a>") + russian + QStringLiteral("</a>");
    EXPECT_EQ(decodedText(text.toUtf8()), text);
}

TEST(DeclaredEncoding, IsIgnoredWhereItDeclaresUtf8Falsely)
{
    const QString text =
        QStringLiteral("<?xml version='1.0' encoding='utf-8'?><a>") + russian + QStringLiteral("</a>");
    EXPECT_EQ(decodedText(encodeText(text, "windows-1251")), text);
}

TEST(DeclaredEncoding, IsOverriddenByTheCharsetOfTheTransfer)
{
    const QString text = QStringLiteral("<?xml version='1.0' encoding='windows-1251'?><a>") + greeting;
    EXPECT_EQ(readPlainText(encodeText(text, "KOI8-R"), "koi8-r").value().text, text);
}
