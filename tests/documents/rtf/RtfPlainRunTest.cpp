// SPDX-License-Identifier: MIT
// Runs of plain text are read at once; the same document with an unknown word behind every piece is read
// piece by piece.
#include "tests/documents/rtf/RtfDocuments.h"

#include <random>

using namespace RtfDocuments;

namespace {

QByteArray joined(const QByteArrayList &pieces, const QByteArray &between)
{
    QByteArray body = "\\uc0 ";
    for (const QByteArray &piece : pieces)
        body += piece + between;
    return body;
}

void expectSameText(const QByteArrayList &pieces)
{
    const QByteArray atOnce = document(joined(pieces, ""));
    EXPECT_EQ(read(atOnce), read(document(joined(pieces, "\\nosuchword ")))) << atOnce.constData();
}

} // namespace

TEST(RtfPlainRun, WordsThatBeginLikePlainOnesAreOthers)
{
    EXPECT_EQ(textOf("a\\par b\\par\nc\\pard d\\par2 e\\par-1 f\\parx g\\tab\\tab h\\tabx 1\\par{}i\\par"),
        QStringLiteral("a\nb\ncd\ne\nfg\t\th1\ni\n"));
    EXPECT_EQ(textOf("sixteen letters.\\par  two blanks\\tab  and two"),
        QStringLiteral("sixteen letters.\n two blanks\t and two"));
}

TEST(RtfPlainRun, HiddenTextAndFallbacksAreLeftOut)
{
    EXPECT_EQ(textOf("a{\\v long enough for a block\\par\\tab }b\\u233 ? and a long enough rest\\par c"),
        QStringLiteral("ab\u00E9 and a long enough rest\nc"));
    EXPECT_EQ(textOf("{\\*\\unknown long enough for a block\\par and more}a"), QStringLiteral("a"));
}

TEST(RtfPlainRun, LongerThanAPieceOfTheBuilder)
{
    const QByteArray line = "All of the words of a line that is long enough.";
    EXPECT_EQ(
        textOf((line + "\\par\n").repeated(20'000)), QString::fromLatin1((line + '\n').repeated(20'000)));
}

TEST(RtfPlainRun, RandomPiecesAreReadAsOneByOne)
{
    const QByteArrayList kinds{"a", "Long enough for a block of sixteen bytes. ", "\\par\n", "\\par ",
        "\\par\r\n", "\\tab ", "\\tab\n", "\t", "\r\n", QByteArray(1, '\0'), "\\'e9", "\xE9", "\\{", "\\}",
        "\\\\", "\\~", "{\\b bold}", "\\i ", "\\i0 ", "\\u8364 ", "\\line ", "{", "}", "\\v ", "\\v0 ",
        "\\pard ", "\x01\x7F", "-", "2", " "};
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same documents at every run
    for (int i = 0; i < 500; ++i) {
        QByteArrayList pieces;
        int depth = 0;
        for (int length = static_cast<int>(random() % 60); length > 0; --length) {
            const QByteArray &piece =
                kinds[static_cast<qsizetype>(random() % static_cast<quint32>(kinds.size()))];
            if (piece == "}" && depth == 0)
                continue;
            depth += piece == "{" ? 1 : piece == "}" ? -1 : 0;
            pieces.append(piece);
        }
        expectSameText(pieces);
    }
}
