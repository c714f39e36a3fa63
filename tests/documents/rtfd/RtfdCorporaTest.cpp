// SPDX-License-Identifier: MIT
// RTFDs that other programs wrote.
#include "documents/rtfd/RtfdReader.h"
#include "documents/rtfd/RtfdWriter.h"

#include "tests/documents/rtf/writer/TextDifference.h"
#include "tests/harness/QuillbayTest.h"

#include <QFile>
#include <QtEndian>

namespace {

class RtfdCorpora : public QuillbayTest {
protected:
    void SetUp() override
    {
        if (corporaFolder().isEmpty())
            GTEST_SKIP() << "QUILLBAY_CORPORA names no folder";
    }

    static QString path(const char *name) { return corporaFolder() + u'/' + QString::fromLatin1(name); }
    static AttributedString flat(const char *name) { return readFlatRtfd(readFile(path(name))).value(); }
    static AttributedString package()
    {
        return readFlatRtfd(flatRtfdOfPackage(QFile::encodeName(path("rtfd-packages/README.rtfd"))).value())
            .value();
    }

    static void expectToStayEqual(const AttributedString &text)
    {
        EXPECT_EQ(
            differenceBetween(text, readFlatRtfd(RTFDFromRange(text, 0, text.length()).value()).value()),
            QString());
    }
};

} // namespace

TEST_F(RtfdCorpora, FlatFilesGiveTheirText)
{
    const AttributedString first = flat("rtfd-flat/kmjs1.flat-rtfd");
    EXPECT_EQ(first.string(), QStringLiteral("ExampleRTFText1\n"));
    ASSERT_TRUE(first.attributesAt(0).font);
    EXPECT_EQ(first.attributesAt(0).font->pointSize, 18);
    EXPECT_EQ(first.attributesAt(0).font->weight, 700);
    const AttributedString second = flat("rtfd-flat/kmjs2.flat-rtfd");
    EXPECT_EQ(second.string(), QStringLiteral("ExampleRTFText2"));
    ASSERT_TRUE(second.attributesAt(0).font);
    EXPECT_EQ(second.attributesAt(0).font->pointSize, 40);
    expectToStayEqual(first);
    expectToStayEqual(second);
}

TEST_F(RtfdCorpora, APackageHasItsPictureInTheText)
{
    ASSERT_TRUE(isRtfdPackage(QFile::encodeName(path("rtfd-packages/README.rtfd"))));
    const AttributedString text = package();
    EXPECT_EQ(text.string().count(attachmentCharacter), 1);
    EXPECT_TRUE(text.string().contains(QStringLiteral("PSTreeGraph - a tree graph view control")));
    const qsizetype at = text.string().indexOf(attachmentCharacter);
    ASSERT_GE(at, 0);
    const std::shared_ptr<const Attachment> attachment = text.attributesAt(at).attachment;
    ASSERT_TRUE(attachment);
    EXPECT_EQ(attachment->fileName, QStringLiteral("horizontal.png"));
    // The header of a PNG has the width at byte 16, the height behind it.
    ASSERT_GT(attachment->contents.size(), 24);
    EXPECT_EQ(qFromBigEndian<quint32>(attachment->contents.constData() + 16), 809U);
    EXPECT_EQ(qFromBigEndian<quint32>(attachment->contents.constData() + 20), 324U);
    expectToStayEqual(text);
}
