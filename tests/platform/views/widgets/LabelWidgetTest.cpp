// SPDX-License-Identifier: MIT
#include "platform/views/widgets/LabelWidget.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

namespace {

QImage pictureOf(QLabel &&label, const QString &text, const QSize &size, int pointSize = 10)
{
    QFont font = label.font();
    font.setPointSize(pointSize);
    label.setFont(font);
    label.setAlignment(Qt::AlignCenter);
    label.setText(text);
    label.resize(size);
    return label.grab().toImage();
}

bool isBlank(const QImage &image, int row)
{
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, row) != image.pixel(0, 0))
            return false;
    }
    return true;
}

const QString longName = QStringLiteral("The long and winding title of a first novel, third draft.odt");

} // namespace

TEST(LabelWidget, ShowsATextThatFitsLikeALabel)
{
    for (const QString &text : {QStringLiteral("novel.txt"), QStringLiteral("رواية.txt"), QString()})
        EXPECT_EQ(pictureOf(LabelWidget(nullptr), text, {160, 30}), pictureOf(QLabel(), text, {160, 30}));
}

TEST(LabelWidget, LeavesOutTheMiddleOfALongName)
{
    const QSize size(160, 30);
    LabelWidget label(nullptr);
    QFont font = label.font();
    font.setPointSize(10);
    const QString shortened = QFontMetricsF(font, &label).elidedText(longName, Qt::ElideMiddle, size.width());
    EXPECT_TRUE(shortened.startsWith(QStringLiteral("The lo")));
    EXPECT_TRUE(shortened.endsWith(QStringLiteral(".odt")));
    EXPECT_EQ(pictureOf(LabelWidget(nullptr), longName, size), pictureOf(QLabel(), shortened, size));
}

TEST(LabelWidget, KeepsTheWholeTextForScreenReaders)
{
    LabelWidget label(nullptr);
    label.setText(longName);
    label.resize(40, 20);
    label.grab();
    EXPECT_EQ(label.text(), longName);
}

TEST(LabelWidget, UsesASmallerFontInsteadOfCuttingTheLine)
{
    const QSize size(160, 26);
    const QImage cut = pictureOf(QLabel(), QStringLiteral("X"), size, 40);
    EXPECT_FALSE(isBlank(cut, 0) && isBlank(cut, size.height() - 1)) << "the font is too small for this test";
    const QImage fitting = pictureOf(LabelWidget(nullptr), QStringLiteral("X"), size, 40);
    EXPECT_TRUE(isBlank(fitting, 0));
    EXPECT_TRUE(isBlank(fitting, size.height() - 1));
    EXPECT_FALSE(isBlank(fitting, size.height() / 2));
}
