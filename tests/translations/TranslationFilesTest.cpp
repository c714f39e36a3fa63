// SPDX-License-Identifier: MIT
// Whether the translations fit the texts that they stand for.
#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <vector>

namespace {

struct Message {
    QString language;
    QString source;
    QString translation;
};

std::vector<Message> messagesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    std::vector<Message> messages;
    QString language;
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == u"TS")
            language = xml.attributes().value(QLatin1String("language")).left(2).toString();
        else if (xml.name() == u"source")
            source = xml.readElementText();
        else if (xml.name() == u"translation")
            messages.push_back({language, source, xml.readElementText()});
    }
    return messages;
}

/// Of all languages.
std::vector<Message> allMessages()
{
    std::vector<Message> all;
    const QDir folder(QStringLiteral(QUILLBAY_TRANSLATIONS));
    for (const QString &name : folder.entryList({QStringLiteral("*.ts")})) {
        const std::vector<Message> messages = messagesOf(folder.filePath(name));
        all.insert(all.end(), messages.begin(), messages.end());
    }
    EXPECT_GT(all.size(), 400U);
    return all;
}

/// What the pattern finds, sorted.
QStringList found(const char *pattern, const QString &text)
{
    QStringList matches;
    QRegularExpressionMatchIterator match = QRegularExpression(QString::fromUtf8(pattern)).globalMatch(text);
    while (match.hasNext())
        matches.append(match.next().captured());
    matches.sort();
    return matches;
}

std::string nameOf(const Message &message)
{
    return (message.language + QStringLiteral(": ") + message.translation).toStdString();
}

} // namespace

TEST(TranslationFiles, KeepThePlaceholders)
{
    for (const Message &message : allMessages())
        EXPECT_EQ(found("%[0-9n]", message.translation), found("%[0-9n]", message.source)) << nameOf(message);
}

TEST(TranslationFiles, KeepOptionsAndWhatIsTyped)
{
    constexpr const char *typed = "--[a-z-]+|'quillbay[^']*'|quillbay-[a-z-]+|\\.[a-z]{3,4}\\b";
    for (const Message &message : allMessages())
        EXPECT_EQ(found(typed, message.translation), found(typed, message.source)) << nameOf(message);
}

TEST(TranslationFiles, HaveAMnemonicWhereTheSourceHasOne)
{
    for (const Message &message : allMessages())
        EXPECT_EQ(message.translation.count(u'&'), message.source.count(u'&')) << nameOf(message);
}

TEST(TranslationFiles, KeepTheBulletOfLabelsAndEndInNoOtherSpace)
{
    for (const Message &message : allMessages()) {
        EXPECT_EQ(message.translation.startsWith(u'•'), message.source.startsWith(u'•')) << nameOf(message);
        EXPECT_EQ(message.translation.back().isSpace(), message.source.back().isSpace()) << nameOf(message);
    }
}

TEST(TranslationFiles, HaveTheSpacesAndQuotationMarksOfTheLanguage)
{
    for (const Message &message : allMessages()) {
        const bool isFrench = message.language == u"fr";
        const char *const wrong =
            isFrench ? " [;?!:»]|« |\\w[;?!]|\\w'\\w|[“„”]" : "[“][^“„”]*[”]|[\\w ]\\x{202F}|«";
        EXPECT_THAT(found(wrong, message.translation), testing::IsEmpty()) << nameOf(message);
    }
}
