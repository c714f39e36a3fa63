// SPDX-License-Identifier: MIT
// Compares our lines with those of an independent layout, QTextLayout, in the same font. QTextLayout runs at
// a hundred times the size, so that its rounding to fractions of a pixel does not matter.
#include "platform/text_layout/LayoutEngine.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/text_layout/AgreementTexts.h"
#include "tests/platform/text_layout/FontWorld.h"

#include <QFontDatabase>
#include <QTextLayout>

namespace {

constexpr double pointSize = 12;
constexpr double enlargement = 100;

using Ends = std::vector<qsizetype>;

Ends ourLineEnds(const AgreementText &sample, double width)
{
    TextAttributes attributes;
    attributes.font = FontAttributes{.family = sample.family, .pointSize = pointSize};
    const AttributedString text(sample.text, attributes);
    Ends ends;
    LayoutEngine().layOutParagraph(text, paragraphAt(text.string(), 0), width,
        [&](const LineFragment &line) { ends.push_back(line.start + line.length); });
    return ends;
}

Ends qtLineEnds(const AgreementText &sample, double width)
{
    QFont font(sample.family);
    font.setPixelSize(static_cast<int>(pointSize * enlargement));
    font.setHintingPreference(QFont::PreferNoHinting);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    option.setTabStopDistance(28 * enlargement);
    QTextLayout layout(sample.text, font);
    layout.setTextOption(option);
    layout.beginLayout();
    Ends ends;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width * enlargement);
        ends.push_back(line.textStart() + line.textLength());
    }
    layout.endLayout();
    return ends;
}

std::string describeLines(const QString &text, const Ends &ends)
{
    std::string lines;
    qsizetype start = 0;
    for (const qsizetype end : ends) {
        lines += "  |" + text.mid(start, end - start).toStdString() + "|\n";
        start = end;
    }
    return lines;
}

// Gives both layouts only the font of a sample.
class OnlyFontOf {
public:
    explicit OnlyFontOf(const AgreementText &sample)
        : m_identifier(QFontDatabase::addApplicationFont(installedFont(sample.fontFile)))
    {
        EXPECT_GE(m_identifier, 0);
        useOnlyFonts({sample.fontFile});
    }
    OnlyFontOf(const OnlyFontOf &) = delete;
    OnlyFontOf &operator=(const OnlyFontOf &) = delete;
    ~OnlyFontOf() { QFontDatabase::removeApplicationFont(m_identifier); }

private:
    int m_identifier;
};

class Agreement : public QuillbayTest, public ::testing::WithParamInterface<AgreementText> { };

TEST_P(Agreement, EndsLinesWhereQtDoes)
{
    const AgreementText &sample = GetParam();
    const OnlyFontOf font(sample);
    for (const double width : {97.0, 160.0, 233.0, 351.0, 468.0}) {
        const Ends ours = ourLineEnds(sample, width);
        const Ends qts = qtLineEnds(sample, width);
        EXPECT_EQ(ours, qts) << "at " << width << " points we have\n"
                             << describeLines(sample.text, ours) << "and Qt has\n"
                             << describeLines(sample.text, qts);
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, Agreement, ::testing::ValuesIn(agreementTexts()), [](const auto &tested) {
    std::string name = tested.param.name;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
});

// A comparison at every 3.7 points from 11 to 600 finds two kinds of difference, each with an example here.
// If an example no longer differs, its explanation is wrong.
struct ExplainedDifference {
    const char *text;
    double width;
    const char *reason;
};

constexpr ExplainedDifference explainedDifferences[]{
    {"German", 92.7,
        "Qt wants room for the ink of the last letter too, here the f that leans over its advance"},
    {"hyphens", 74.2, "Qt wants room for the ink of the last letter too, here the slash"},
    {"Arabic", 89.0, "Qt wants room for the ink of the last letter too"},
    {"Thai", 40.9, "Qt asks libthai's dictionary, we ask ICU's, and they know different words"},
};

TEST(AgreementExceptions, DifferForTheReasonsListed)
{
    for (const ExplainedDifference &difference : explainedDifferences) {
        const std::vector<AgreementText> &texts = agreementTexts();
        const auto sample = std::find_if(texts.begin(), texts.end(), [&](const AgreementText &text) {
            return QByteArrayView(text.name) == QByteArrayView(difference.text);
        });
        ASSERT_NE(sample, texts.end());
        const OnlyFontOf font(*sample);
        EXPECT_NE(ourLineEnds(*sample, difference.width), qtLineEnds(*sample, difference.width))
            << difference.reason;
    }
}

} // namespace
