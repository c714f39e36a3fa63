// SPDX-License-Identifier: MIT
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/printing/PrintServer.h"

#include "platform/printing/CupsAnswers.h"

#include <cups/cups.h>

using ::testing::DoubleNear;

// A printer without a printer description on the server, as IPP printers describe themselves.
class CupsAnswersTest : public QuillbayTest {
protected:
    CupsAnswersTest()
        : m_attributes(ippNew())
    {
    }
    ~CupsAnswersTest() override { ippDelete(m_attributes); }

    void addKeywords(const char *name, std::initializer_list<const char *> keywords)
    {
        ippAddStrings(m_attributes, IPP_TAG_PRINTER, IPP_TAG_KEYWORD, name, static_cast<int>(keywords.size()),
            nullptr, keywords.begin());
    }

    // Sizes and margins in hundredths of a millimetre.
    static ipp_t *medium(int width, int length, int top, int left, int bottom, int right)
    {
        ipp_t *size = ippNew();
        ippAddInteger(size, IPP_TAG_ZERO, IPP_TAG_INTEGER, "x-dimension", width);
        ippAddInteger(size, IPP_TAG_ZERO, IPP_TAG_INTEGER, "y-dimension", length);
        return mediumOfSize(size, top, left, bottom, right);
    }
    static ipp_t *mediumOfSize(ipp_t *size, int top, int left, int bottom, int right)
    {
        ipp_t *medium = ippNew();
        ippAddCollection(medium, IPP_TAG_ZERO, "media-size", size);
        ippDelete(size);
        ippAddInteger(medium, IPP_TAG_ZERO, IPP_TAG_INTEGER, "media-top-margin", top);
        ippAddInteger(medium, IPP_TAG_ZERO, IPP_TAG_INTEGER, "media-left-margin", left);
        ippAddInteger(medium, IPP_TAG_ZERO, IPP_TAG_INTEGER, "media-bottom-margin", bottom);
        ippAddInteger(medium, IPP_TAG_ZERO, IPP_TAG_INTEGER, "media-right-margin", right);
        return medium;
    }
    void addDatabase(const std::vector<ipp_t *> &media)
    {
        ipp_attribute_t *database = nullptr;
        for (ipp_t *entry : media) {
            if (!database)
                database = ippAddCollection(m_attributes, IPP_TAG_PRINTER, "media-col-database", entry);
            else
                ippSetCollection(m_attributes, &database, ippGetCount(database), entry);
            ippDelete(entry);
        }
    }

    [[nodiscard]] Printer printer(CupsAnswers answers = {}) const
    {
        answers.attributes = m_attributes;
        return parsePrinter(answers);
    }
    [[nodiscard]] QString defaultName(const CupsAnswers &answers) const
    {
        const std::optional<Paper> paper = printer(answers).defaultPaper;
        return paper && paper->ppdName ? *paper->ppdName : QString();
    }

    ipp_t *m_attributes;
};

TEST_F(CupsAnswersTest, WithoutADescriptionPapersComeFromTheMediaDatabaseInItsOrder)
{
    addKeywords("media-supported", {"iso_a4_210x297mm", "na_letter_8.5x11in", "custom_oddcard_100x150mm"});
    addDatabase({medium(21590, 27940, 100, 200, 300, 400), medium(10000, 15000, 0, 0, 0, 0),
        medium(20990, 29704, 423, 318, 353, 388)});
    const std::vector<Paper> papers = printer().papers;
    ASSERT_EQ(papers.size(), 3U);

    EXPECT_EQ(papers[0].ppdName, QStringLiteral("Letter"));
    EXPECT_EQ(papers[0].identifier, QStringLiteral("na_letter_8.5x11in"));
    EXPECT_FALSE(papers[0].isCustom);
    EXPECT_EQ(papers[0].size, QSizeF(612, 792));
    EXPECT_THAT(papers[0].margins.top, DoubleNear(1 * 72 / 25.4, 1e-9));
    EXPECT_THAT(papers[0].margins.left, DoubleNear(2 * 72 / 25.4, 1e-9));
    EXPECT_THAT(papers[0].margins.bottom, DoubleNear(3 * 72 / 25.4, 1e-9));
    EXPECT_THAT(papers[0].margins.right, DoubleNear(4 * 72 / 25.4, 1e-9));

    EXPECT_FALSE(papers[1].ppdName) << "no printer description ever called it so";
    EXPECT_EQ(papers[1].identifier, QStringLiteral("custom_oddcard_100x150mm"));
    EXPECT_TRUE(papers[1].isCustom);
    EXPECT_THAT(papers[1].size.width(), DoubleNear(100 * 72 / 25.4, 1e-9));
    EXPECT_THAT(papers[1].size.height(), DoubleNear(150 * 72 / 25.4, 1e-9));

    EXPECT_EQ(papers[2].ppdName, QStringLiteral("A4")) << "though it is a tenth of a millimetre off";
    EXPECT_EQ(papers[2].size, QSizeF(595, 842));
}

TEST_F(CupsAnswersTest, PapersThatDifferByMoreThanAMillimetreAreDifferent)
{
    addKeywords("media-supported", {"iso_a4_210x297mm"});
    addDatabase({medium(21000, 29820, 0, 0, 0, 0)});
    const std::vector<Paper> papers = printer().papers;
    ASSERT_EQ(papers.size(), 1U);
    EXPECT_FALSE(papers[0].ppdName);
    EXPECT_FALSE(papers[0].identifier);
}

TEST_F(CupsAnswersTest, RangesAndSizesThatNoSheetHasAreLeftOut)
{
    ipp_t *range = ippNew();
    ippAddRange(range, IPP_TAG_ZERO, "x-dimension", 1000, 30000);
    ippAddRange(range, IPP_TAG_ZERO, "y-dimension", 1000, 30000);
    addDatabase(
        {mediumOfSize(range, 0, 0, 0, 0), medium(0, 29700, 0, 0, 0, 0), medium(-21000, 29700, 0, 0, 0, 0),
            medium(21000, 2'000'000'000, 0, 0, 0, 0), medium(21000, 29700, -100, 2'000'000'000, 0, 0)});
    const std::vector<Paper> papers = printer().papers;
    ASSERT_EQ(papers.size(), 1U);
    EXPECT_EQ(papers[0].margins.top, 0);
    EXPECT_THAT(papers[0].margins.left, DoubleNear(210 * 72 / 25.4, 1e-9)) << "not wider than the paper";
}

TEST_F(CupsAnswersTest, ADescriptionNamesEveryPaperAndTheAttributesIdentifyThem)
{
    addKeywords("media-supported", {"iso_a4_210x297mm", "custom_105.83x176.39mm_105.83x176.39mm"});
    addDatabase({medium(21000, 29700, 0, 0, 0, 0)});
    const std::vector<Paper> papers = printer({.descriptionFile = oddPrinterDescription}).papers;
    ASSERT_EQ(papers.size(), 5U);
    EXPECT_EQ(papers[1].ppdName, QStringLiteral("A4"));
    EXPECT_EQ(papers[1].identifier, QStringLiteral("iso_a4_210x297mm"));
    EXPECT_EQ(papers[1].margins.left, 9);
    EXPECT_FALSE(papers[2].identifier);
    EXPECT_EQ(papers[4].ppdName, QStringLiteral("OddCard"));
    EXPECT_EQ(papers[4].identifier, QStringLiteral("custom_105.83x176.39mm_105.83x176.39mm"));
    EXPECT_TRUE(papers[4].isCustom);
}

TEST_F(CupsAnswersTest, AnswersWithoutMediaMakeAPrinterWithoutPapers)
{
    for (const CupsAnswers &answers : {CupsAnswers(), CupsAnswers{.mediaOption = "A4"}}) {
        EXPECT_TRUE(printer(answers).papers.empty());
        EXPECT_FALSE(printer(answers).defaultPaper);
    }
    EXPECT_TRUE(parsePrinter({}).papers.empty()) << "no attributes at all";
}

TEST_F(CupsAnswersTest, TheUsersPaperComesBeforeThePrintersAndThatBeforeTheAttributes)
{
    addKeywords("media-default", {"na_legal_8.5x14in"});
    CupsAnswers answers{
        .descriptionFile = oddPrinterDescription, .pageSizeOption = "A5", .mediaOption = "Letter"};
    EXPECT_EQ(defaultName(answers), QStringLiteral("A5"));
    answers.pageSizeOption.clear();
    EXPECT_EQ(defaultName(answers), QStringLiteral("Letter"));
    answers.mediaOption.clear();
    EXPECT_EQ(defaultName(answers), QStringLiteral("A4"));
    answers.descriptionFile.replace("*DefaultPageSize: A4", "*DefaultPageSize: Unknown");
    EXPECT_EQ(defaultName(answers), QStringLiteral("Legal"));
}

TEST_F(CupsAnswersTest, AMediaOptionIsUnderstoodInAllFormsOfCups)
{
    addKeywords("media-supported", {"custom_105.83x176.39mm_105.83x176.39mm"});
    for (const char *option :
        {"A5", "a5", "iso_a5_148x210mm", "iso-a5", "Upper,A5,Glossy", "A5.Unknown,om_a5_148x210mm"})
        EXPECT_EQ(defaultName({.descriptionFile = oddPrinterDescription, .mediaOption = option}),
            QStringLiteral("A5"))
            << option;
    EXPECT_EQ(defaultName({.descriptionFile = oddPrinterDescription,
                  .mediaOption = "custom_105.83x176.39mm_105.83x176.39mm"}),
        QStringLiteral("OddCard"));
}

TEST_F(CupsAnswersTest, AnOptionThatNamesNoPaperOfThePrinterLeavesTheChoiceToThePrinter)
{
    for (const char *option : {"", ",,,", "A3", "Custom.200x300", "nonsense", "iso_a3_297x420mm"})
        EXPECT_EQ(defaultName({.descriptionFile = oddPrinterDescription, .mediaOption = option}),
            QStringLiteral("A4"))
            << option;
}

TEST_F(CupsAnswersTest, TheScalingOptionIsThePageScaleInPerCent)
{
    EXPECT_EQ(printer({.scalingOption = "50"}).pageScale, 50);
    EXPECT_EQ(printer({.scalingOption = "162.5"}).pageScale, 162.5);
    for (const char *option : {"", "0", "-50", "nan", "inf", "1e300", "fit", "50x"})
        EXPECT_EQ(printer({.scalingOption = option}).pageScale, 100) << option;
}
