// SPDX-License-Identifier: MIT
#include "documents/package/ZipPackage.h"

#include "tests/documents/package/ZipWriter.h"

#include <gtest/gtest.h>

namespace {

const QByteArray mimeType("application/epub+zip");

QByteArray archiveOf(std::initializer_list<ZipWriter::Entry> entries)
{
    ZipWriter writer;
    for (const ZipWriter::Entry &entry : entries)
        writer.add(entry);
    return writer.archive();
}

} // namespace

TEST(ZipPackage, ReadsItsPartsByNamesInAnyCase)
{
    const QByteArray bytes = archiveOf({{.name = "Content.xml", .contents = "<a/>"},
        {.name = "more/part.xml", .contents = "<b/>", .method = ZipWriter::Method::Deflated}});
    ReadAllowance allowance;
    const Result<ZipPackage, DocumentError::Cause> package = ZipPackage::open(bytes, allowance);
    ASSERT_TRUE(package);
    EXPECT_EQ(package.value().contents("content.xml").value(), "<a/>");
    EXPECT_EQ(package.value().contents("/more\\part.xml").value(), "<b/>");
    EXPECT_EQ(package.value().contents("missing.xml").error(), DocumentError::Cause::Damaged);
}

TEST(ZipPackage, SharesItsAllowanceAmongAllReads)
{
    const QByteArray bytes = archiveOf({{.name = "part", .contents = QByteArray(1'000, 'a')}});
    ReadAllowance allowance{.bytes = 1'500};
    const Result<ZipPackage, DocumentError::Cause> package = ZipPackage::open(bytes, allowance);
    ASSERT_TRUE(package);
    EXPECT_TRUE(package.value().contents("part"));
    EXPECT_EQ(package.value().contents("part").error(), DocumentError::Cause::TooLarge);
}

TEST(ZipPackage, OfOtherBytesIsOfTheWrongKind)
{
    ReadAllowance allowance;
    EXPECT_EQ(ZipPackage::open("Some words.", allowance).error(), DocumentError::Cause::WrongKind);
}
