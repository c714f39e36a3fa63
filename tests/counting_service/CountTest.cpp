// SPDX-License-Identifier: MIT
// The counts of the counting service, of every kind of document.
#include "documents/reading/DocumentReader.h"
#include "documents/rtfd/RtfdReader.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/counting_service/CountingServiceTest.h"
#include "tests/documents/SampleTexts.h"
#include "tests/documents/docx/PackageWriter.h"
#include "text_statistics/WordCounterModel.h"

#include <QDBusUnixFileDescriptor>
#include <QRegularExpression>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class CountTest : public CountingServiceTest {
protected:
    /// The counts of the model in this process, with the preferences and fonts of the test.
    static QBYWordCounterStats countInProcess(const QByteArray &payload, const QString &locale)
    {
        const Result<AttributedString, DocumentError> text = readFlatRtfd(payload);
        if (!text) {
            ADD_FAILURE() << causeText(text.error()).toStdString();
            return {};
        }
        return countInProcess(text.value(), locale);
    }

    static QBYWordCounterStats countInProcess(const AttributedString &text, const QString &locale)
    {
        WordCounterModel model([&] {
            CountingRules rules = currentCountingRules();
            rules.text.localeIdentifier = [&] { return locale; };
            return rules;
        });
        model.setAttributedStringToCount(text);
        return model.statsRepresentation();
    }

    static QVariantMap locale(const char *name)
    {
        return {{QStringLiteral("locale"), QString::fromLatin1(name)}};
    }

    static inline const QBYWordCounterStats zeros{};
};

QString novel()
{
    using namespace SampleTexts;
    QString text;
    for (const QString &language : {english, french, german, greek, russian, hebrew, arabic, hindi, japanese,
             simplifiedChinese, korean, turkish})
        text += u'\t' + language.repeated(12) + QStringLiteral("\n\n");
    return text;
}

AttributedString styledText()
{
    AttributedStringBuilder builder;
    TextAttributes attributes;
    attributes.font = FontAttributes{.family = QStringLiteral("Noto Serif"), .pointSize = 23};
    builder.append(SampleTexts::german.repeated(20), attributes);
    attributes.font = FontAttributes{.family = QStringLiteral("DejaVu Sans Mono"), .pointSize = 7.5};
    builder.append(SampleTexts::english.repeated(20), attributes);
    return builder.build();
}

} // namespace

TEST_F(CountTest, CountsAsTheModelDoesInEveryLanguage)
{
    using namespace SampleTexts;
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    for (const QString &text : {english, french, german, spanish, polish, greek, russian, hebrew, arabic,
             hindi, japanese, traditionalChinese, korean, novel()}) {
        const QByteArray payload = flatRtfd(text);
        const QBYWordCounterStats stats = count(message(payload));
        EXPECT_EQ(stats, countInProcess(payload, QStringLiteral("en_US"))) << text.toStdString();
        EXPECT_GT(stats.numberOfLines, 0U);
        EXPECT_GT(stats.numberOfWords, 0U);
    }
}

TEST_F(CountTest, LaysStyledTextOutInItsOwnFonts)
{
    const QByteArray payload = flatRtfd(styledText());
    const QBYWordCounterStats stats = count(message(payload));
    EXPECT_EQ(stats, countInProcess(payload, QStringLiteral("en_US")));
    EXPECT_NE(stats.numberOfLines, count(message(flatRtfd(styledText().string()))).numberOfLines);
}

TEST_F(CountTest, CountsUnderTheLocaleOfTheRequest)
{
    // Only English skips words of one letter.
    const QByteArray payload = flatRtfd(QStringLiteral("y e z a b. c d e f g h."));
    const quint64 inEnglish = count(message(payload, locale("en_US"))).numberOfWords;
    const quint64 elsewhere = count(message(payload, locale("de_DE"))).numberOfWords;
    EXPECT_LT(inEnglish, elsewhere);
    for (const char *name : {"en_US.UTF-8", "en-us"})
        EXPECT_EQ(count(message(payload, locale(name))).numberOfWords, inEnglish) << name;
    for (const char *name :
        {"de_DE.UTF-8", "en_GB", "fr_FR@euro", "C", "en_US_POSIX", "no locale has such a name"})
        EXPECT_EQ(count(message(payload, locale(name))).numberOfWords, elsewhere) << name;
    EXPECT_EQ(count(message(payload, locale("de_DE"))), countInProcess(payload, QStringLiteral("de_DE")));
}

TEST_F(CountTest, CountsUnderItsOwnLocaleIfTheRequestNamesNone)
{
    const QByteArray payload = flatRtfd(QStringLiteral("y e z a b."));
    const quint64 inEnglish = count(message(payload, locale("en_US"))).numberOfWords;
    EXPECT_EQ(count(message(payload)).numberOfWords, inEnglish);
    EXPECT_EQ(count(message(payload, locale(""))).numberOfWords, inEnglish);
    EXPECT_EQ(count(message(payload, {{QStringLiteral("locale"), 3}})).numberOfWords, inEnglish);
    EXPECT_EQ(count(message(payload, {{QStringLiteral("colour"), QStringLiteral("de_DE")}})).numberOfWords,
        inEnglish);
}

TEST_F(CountTest, FollowsThePreferencesFromOneRequestToTheNext)
{
    using Preferences = QBYUserDefaultsController;
    const QByteArray payload =
        flatRtfd(SampleTexts::german.repeated(40) + QStringLiteral("\nOne. Two.\nNo end"));
    const QBYWordCounterStats before = count(message(payload));
    Preferences::setLeftMarginForPaperSizeLineMeasuring(3);
    EXPECT_GT(count(message(payload)).numberOfLines, before.numberOfLines);
    Preferences::setMinNumberOfSentencesForParagraphCount(2);
    EXPECT_LT(count(message(payload)).numberOfParagraphs, before.numberOfParagraphs);
    Preferences::setShouldEnforceTrailingPeriodForSentencesCount(
        !Preferences::shouldEnforceTrailingPeriodForSentencesCount());
    EXPECT_NE(count(message(payload)).numberOfSentences, before.numberOfSentences);
    EXPECT_EQ(count(message(payload)), countInProcess(payload, QStringLiteral("en_US")));
}

TEST_F(CountTest, AnEmptyTextHasZeros)
{
    const QByteArray payload = flatRtfd(QString());
    EXPECT_FALSE(payload.isEmpty());
    EXPECT_EQ(count(message(payload)), zeros);
}

TEST_F(CountTest, ADamagedDocumentHasZeros)
{
    const QByteArray whole = flatRtfd(SampleTexts::english);
    EXPECT_EQ(count(message(QByteArray())), zeros);
    EXPECT_EQ(count(message("not a document")), zeros);
    EXPECT_EQ(count(message(whole.first(whole.size() / 2))), zeros);
    EXPECT_NE(count(message(whole)), zeros);
}

TEST_F(CountTest, AnAbsentDocumentHasZeros)
{
    const SealedMemory::MemoryResult memory = SealedMemory::copyOf(flatRtfd(SampleTexts::english));
    const auto size = static_cast<quint64>(memory.value().size());
    EXPECT_EQ(count(message(rtfdRequest, memory.value().descriptor(), size, true)), zeros);
    EXPECT_NE(count(message(rtfdRequest, memory.value().descriptor(), size, false)), zeros);
}

TEST_F(CountTest, AWordDocumentIsCountedByItsText)
{
    const QByteArray document =
        WordPackage{
            .body = "<w:p><w:r><w:t>Two words.</w:t></w:r></w:p><w:p><w:r><w:t>Three.</w:t></w:r></w:p>"}
            .bytes();
    const SealedMemory::MemoryResult memory = SealedMemory::copyOf(document);
    const auto size = static_cast<quint64>(document.size());
    const QBYWordCounterStats stats = count(message(docxRequest, memory.value().descriptor(), size));
    EXPECT_EQ(stats.numberOfWords, 3U);
    EXPECT_EQ(stats.numberOfLines, 2U);
    EXPECT_EQ(stats.numberOfHardLineBreaks, 2U);
}

TEST_F(CountTest, TheCountsOfAWordDocumentAreInReplyOrderAndNotTheStoredOnes)
{
    const QByteArray sentence = "<w:r><w:t xml:space='preserve'>Eels swim far. </w:t></w:r>";
    const WordPackage document{.body = "<w:p><w:r><w:tab/></w:r>" + sentence.repeated(30)
            + "</w:p><w:p/><w:p>" + sentence + "</w:p><w:p/><w:p>" + sentence + "</w:p>",
        .figures = "<Words>7</Words><Characters>7</Characters><Lines>7</Lines><Paragraphs>7</Paragraphs>"};
    const QByteArray bytes = document.bytes();
    const SealedMemory::MemoryResult memory = SealedMemory::copyOf(bytes);
    const auto size = static_cast<quint64>(bytes.size());
    const QBYWordCounterStats stats = count(message(docxRequest, memory.value().descriptor(), size));
    EXPECT_EQ(stats,
        countInProcess(readDocument(DocumentKind::WordDocument, bytes).value(), QStringLiteral("en_US")));
    EXPECT_EQ(stats.numberOfWords, 96U);
    EXPECT_EQ(stats.numberOfCharacters, 384U);
    EXPECT_EQ(stats.numberOfCharactersIncludingWhitespace, 486U);
    EXPECT_EQ(stats.numberOfSentences, 32U);
    EXPECT_GT(stats.numberOfLines, 5U);
    EXPECT_EQ(stats.numberOfHardLineBreaks, 5U);
    EXPECT_EQ(stats.numberOfParagraphs, 3U);
    EXPECT_EQ(stats.numberOfIndentedParagraphs, 1U);
}

TEST_F(CountTest, ADocumentMayBeOfAnyTypeThatTheRequestNames)
{
    struct Sample {
        const char *type;
        const char *charset;
        QByteArray bytes;
        quint64 words;
    };
    const Sample samples[]{{"text/plain", "", "two words", 2},
        {"TEXT/Plain", "utf-16le", {"n\0o\0 \0x\0", 8}, 2},
        {"text/plain", "no-such-charset", "three more words", 3}, {"text/plain", "", "<div>tags</div>", 3},
        {"text/html", "", "<b>no</b> <i>tags</i>", 2}, {"text/rtf", "", "{\\rtf1 one}", 1}};
    for (const Sample &sample : samples) {
        const SealedMemory::MemoryResult memory = SealedMemory::copyOf(sample.bytes);
        const QVariantMap options{{QStringLiteral("type"), QString::fromLatin1(sample.type)},
            {QStringLiteral("charset"), QString::fromLatin1(sample.charset)}};
        for (const QString &request : {rtfdRequest, docxRequest}) {
            const QBYWordCounterStats stats = count(message(request, memory.value().descriptor(),
                static_cast<quint64>(sample.bytes.size()), false, options));
            EXPECT_EQ(stats.numberOfWords, sample.words) << sample.bytes.constData();
        }
    }
}

TEST_F(CountTest, ARequestMayAskForTheCauseOfAFailure)
{
    const auto causeOf = [&](const QByteArray &bytes, QVariantMap options, bool absent = false) {
        const SealedMemory::MemoryResult memory = SealedMemory::copyOf(bytes);
        QDBusPendingCall call = send(message(
            docxRequest, memory.value().descriptor(), static_cast<quint64>(bytes.size()), absent, options));
        call.waitForFinished();
        options.remove(QStringLiteral("wants-cause"));
        EXPECT_EQ(count(message(docxRequest, memory.value().descriptor(), static_cast<quint64>(bytes.size()),
                      absent, options)),
            zeros);
        EXPECT_EQ(call.reply().errorName(),
            QStringLiteral("com.quillbay.WordCounterServiceProtocol.Error.NotCounted"));
        return call.reply().errorMessage().toStdString();
    };
    const QVariantMap wantsCause{{QStringLiteral("wants-cause"), true}};
    EXPECT_THAT(causeOf("PK and the rest", wantsCause), testing::StartsWith("is a damaged Word document; "));
    EXPECT_EQ(causeOf("", wantsCause, true), "the request has no document");
    QVariantMap unknownType = wantsCause;
    unknownType.insert(QStringLiteral("type"), QStringLiteral("image/png"));
    EXPECT_EQ(causeOf("PNG", unknownType), "is of a type that the counting service does not read");
    EXPECT_NE(count(message(flatRtfd(SampleTexts::english), wantsCause)), zeros);
}

TEST_F(CountTest, ADamagedWordDocumentHasZerosAndIsReadAgainNextTime)
{
    const SealedMemory::MemoryResult memory = SealedMemory::copyOf("PK and the rest");
    EXPECT_EQ(count(message(docxRequest, memory.value().descriptor(), 15)), zeros);
    EXPECT_NE(count(message(flatRtfd(SampleTexts::english))), zeros);
}

TEST_F(CountTest, ADocumentThatIsNotSealedOrOfAnotherLengthHasZeros)
{
    const QByteArray bytes = flatRtfd(SampleTexts::english);
    const auto size = static_cast<quint64>(bytes.size());
    const int open = ::memfd_create("open", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    ASSERT_EQ(::write(open, bytes.constData(), static_cast<size_t>(bytes.size())), bytes.size());
    EXPECT_EQ(count(message(rtfdRequest, open, size)), zeros);
    ASSERT_EQ(::fcntl(open, F_ADD_SEALS, F_SEAL_WRITE), 0);
    EXPECT_EQ(count(message(rtfdRequest, open, size)), zeros);
    ASSERT_EQ(::fcntl(open, F_ADD_SEALS, F_SEAL_SHRINK), 0);
    EXPECT_EQ(count(message(rtfdRequest, open, size - 1)), zeros);
    EXPECT_EQ(count(message(rtfdRequest, open, size + 1)), zeros);
    EXPECT_EQ(count(message(rtfdRequest, open, ~0ULL)), zeros);
    EXPECT_NE(count(message(rtfdRequest, open, size)), zeros);
    ::close(open);
    const int file = ::open(writeFile(QStringLiteral("a"), bytes).toUtf8().constData(), O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(count(message(rtfdRequest, file, size)), zeros);
    ::close(file);
}

TEST_F(CountTest, AGigabyteThatIsNoDocumentIsReceivedAndNotReadThrough)
{
    constexpr quint64 gigabyte = 1ULL << 30;
    const SealedMemory::MemoryResult memory = SealedMemory::fillAndSeal(
        [](int descriptor) { return ::ftruncate(descriptor, gigabyte) == 0 ? 0 : errno; });
    ASSERT_TRUE(memory.hasValue());
    EXPECT_EQ(count(message(rtfdRequest, memory.value().descriptor(), gigabyte)), zeros);
    EXPECT_EQ(count(message(docxRequest, memory.value().descriptor(), gigabyte)), zeros);
    // What is read of a memory file without contents gets memory.
    struct stat status = {};
    EXPECT_EQ(::fstat(memory.value().descriptor(), &status), 0);
    EXPECT_LT(status.st_blocks * 512, 1 << 20);
    EXPECT_NE(count(message(flatRtfd(SampleTexts::english))), zeros);
}

TEST_F(CountTest, ManyRequestsAtOnceGetTheirOwnCounts)
{
    std::vector<QDBusMessage> messages;
    constexpr int requests = 300;
    for (int i = 0; i < requests; ++i)
        messages.push_back(message(flatRtfd(QStringLiteral("word ").repeated(i))));
    const auto counts = countAll(messages);
    for (int i = 0; i < requests; ++i)
        EXPECT_EQ(counts[static_cast<size_t>(i)].value_or(zeros).numberOfWords, static_cast<quint64>(i));
}

// The introspection of the live object against the file that describes the interface.
TEST_F(CountTest, TheObjectHasTheDescribedInterface)
{
    const auto argumentsIn = [](const QString &xml) {
        QStringList lines;
        const QString ours = xml.mid(xml.indexOf(QStringLiteral("com.quillbay.WordCounterServiceProtocol")));
        const QRegularExpression tag(QStringLiteral("<(method|arg) ([^>]*)>"));
        auto matches = tag.globalMatch(ours.left(ours.indexOf(QStringLiteral("</interface>"))));
        while (matches.hasNext()) {
            QStringList words = matches.next().captured(2).remove(u'/').simplified().split(u' ');
            words.sort();
            lines.append(words.join(u' '));
        }
        return lines;
    };
    const QDBusMessage introspect = QDBusMessage::createMethodCall(
        QStringLiteral("Brisklane.QBYServiceProviderXPC"), QStringLiteral("/Brisklane/QBYServiceProviderXPC"),
        QStringLiteral("org.freedesktop.DBus.Introspectable"), QStringLiteral("Introspect"));
    const QStringList live = argumentsIn(m_bus.call(introspect).arguments().value(0).toString());
    const QStringList described = argumentsIn(
        QString::fromUtf8(readFile(QStringLiteral(QUILLBAY_DOCS "/Brisklane.QBYServiceProviderXPC.xml"))));
    EXPECT_EQ(live.join(u'\n').toStdString(), described.join(u'\n').toStdString());
    EXPECT_EQ(described.size(), 26);
}
