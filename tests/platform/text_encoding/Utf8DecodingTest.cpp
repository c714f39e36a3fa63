// SPDX-License-Identifier: MIT
#include "platform/text_encoding/Utf8Decoding.h"

#include "tests/harness/EveryInstructionSet.h"
#include "tests/harness/QuillbayTest.h"

#include <random>

namespace {

class Utf8Decoding : public EveryInstructionSet { };

// Bytes that are often well-formed, of every length of sequence and at every distance from a vector's end.
QByteArray randomBytes(std::mt19937 &random)
{
    static const std::vector<QByteArray> pieces{"a", "abcdefghijklmnopqrstuvwxyz", "\u00E9", "\u0434",
        "\u20AC", "\uFFFF", "\U0001F600", "\U0010FFFF", "\u007F", "\u0080", "\u07FF", "\u0800",
        QByteArray(1, '\0')};
    QByteArray bytes;
    for (auto left = random() % 40; left > 0; --left)
        bytes += pieces[random() % pieces.size()];
    if (random() % 3 == 0 && !bytes.isEmpty())
        bytes[static_cast<qsizetype>(random()) % bytes.size()] = static_cast<char>(random());
    return bytes;
}

} // namespace

TEST_P(Utf8Decoding, GivesTheSameTextAsQt)
{
    std::mt19937 random(31);
    int wellFormed = 0;
    for (int round = 0; round < 20'000; ++round) {
        const QByteArray bytes = randomBytes(random);
        SCOPED_TRACE(bytes.toHex().toStdString());
        const std::optional<QString> text = decodeUtf8(bytes);
        ASSERT_EQ(text.has_value(), bytes.isValidUtf8());
        if (!text)
            continue;
        // A leading character of its own keeps Qt from dropping a byte order mark.
        ASSERT_EQ(u'x' + *text, QString::fromUtf8('x' + bytes));
        ++wellFormed;
    }
    EXPECT_GT(wellFormed, 10'000);
}

TEST_P(Utf8Decoding, RefusesEveryBrokenSequence)
{
    for (const char *bytes : {"\x80", "\xC1\xBF", "\xC2", "\xC2 ", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xE2\x82",
             "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF"}) {
        EXPECT_FALSE(decodeUtf8(bytes).has_value()) << QByteArray(bytes).toHex().toStdString();
        EXPECT_FALSE(decodeUtf8(QByteArray(40, 'a') + bytes).has_value());
    }
}

TEST_P(Utf8Decoding, FindsTheEndOfAscii)
{
    for (qsizetype length = 0; length < 70; ++length) {
        const QByteArray ascii(length, '\x7F');
        EXPECT_EQ(asciiLength(ascii), length);
        EXPECT_EQ(asciiLength(ascii + '\x80' + ascii), length);
    }
}

INSTANTIATE_TEST_SUITE_P(AllTargets, Utf8Decoding, EveryInstructionSet::values(), EveryInstructionSet::name);
