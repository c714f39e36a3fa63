// SPDX-License-Identifier: MIT
#include "desk/documents/TableCopy.h"

#include "tests/harness/QuillbayTest.h"

#include <QStandardItemModel>

TEST(TableCopy, FieldsAreQuotedForEachForm)
{
    QStandardItemModel model(2, 2);
    model.setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Today")});
    model.setItem(0, 0, new QStandardItem(QStringLiteral("a \"b\", <c>\t.txt")));
    model.setItem(0, 1, new QStandardItem(QStringLiteral("+812")));
    model.setItem(1, 0, new QStandardItem(QStringLiteral("=HYPERLINK(1)")));
    const auto copy = copyOfRows(model, {1, 0});
    EXPECT_EQ(copy->text(), QStringLiteral("Name\tToday\n=HYPERLINK(1)\t\na \"b\", <c> .txt\t+812\n"));
    EXPECT_EQ(copy->data(QStringLiteral("text/csv")).toStdString(),
        "\"Name\",\"Today\"\r\n\"'=HYPERLINK(1)\",\"\"\r\n\"a \"\"b\"\", <c>\t.txt\",\"+812\"\r\n");
    EXPECT_TRUE(copy->html().contains(QStringLiteral("<td>a &quot;b&quot;, &lt;c&gt;\t.txt</td>")));
}
