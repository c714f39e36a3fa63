// SPDX-License-Identifier: MIT
#include "documents/package/XmlReader.h"

#include <gtest/gtest.h>

namespace {

constexpr XmlSpace known{firstFormatSpace};

/// Writes down what it receives.
class Transcript final : public XmlHandler {
public:
    void startElement(const XmlElement &element) override
    {
        text += element.name().space == known ? "<k" : "<";
        element.forEachAttribute([this](XmlName name, QByteArrayView value) {
            if (name.tag == "name"_tag)
                text += ' ' + value.toByteArray();
        });
        text += '>';
    }
    void endElement(XmlName) override { text += "</>"; }
    void characters(QByteArrayView characters) override { text += characters; }

    QByteArray text;
};

struct Outcome {
    QByteArray text;
    std::optional<DocumentError::Cause> failure;
};

Outcome parse(const QByteArray &xml)
{
    XmlNamespaces namespaces({{"urn:known", known}});
    Transcript transcript;
    XmlParser parser(namespaces, transcript);
    for (const char byte : xml) {
        if (!parser.take(QByteArrayView(&byte, 1)))
            break;
    }
    const std::optional<DocumentError::Cause> failure = parser.finish();
    return {transcript.text, failure};
}

} // namespace

TEST(XmlParser, PassesElementsAttributesAndCharactersInOrder)
{
    const Outcome outcome = parse("<a xmlns:x='urn:known'>one<x:b x:name='n'>two</x:b>&amp;</a>");
    EXPECT_EQ(outcome.text, "<>one<k n>two</>&</>");
    EXPECT_EQ(outcome.failure, std::nullopt);
}

TEST(XmlParser, AcceptsADocumentTypeThatDeclaresNothing)
{
    const Outcome outcome = parse("<!DOCTYPE a PUBLIC '-//X//DTD X//EN' 'x.dtd'><a>text</a>");
    EXPECT_EQ(outcome.text, "<>text</>");
    EXPECT_EQ(outcome.failure, std::nullopt);
}

TEST(XmlParser, RefusesDeclarationsOfEntitiesAndAttributes)
{
    EXPECT_EQ(parse("<!DOCTYPE a [<!ENTITY e 'text'>]><a>&e;</a>").failure, DocumentError::Cause::Damaged);
    EXPECT_EQ(parse("<!DOCTYPE a [<!ATTLIST a b CDATA 'text'>]><a/>").failure, DocumentError::Cause::Damaged);
}

TEST(XmlParser, RefusesMoreDepthThanAnyRealDocumentHas)
{
    EXPECT_EQ(
        parse(QByteArray("<a>").repeated(1'999) + QByteArray("</a>").repeated(1'999)).failure, std::nullopt);
    EXPECT_EQ(parse(QByteArray("<a>").repeated(2'001)).failure, DocumentError::Cause::TooComplex);
}

TEST(XmlParser, ReportsAnIncompleteDocumentAsDamaged)
{
    EXPECT_EQ(parse("<a>text").failure, DocumentError::Cause::Damaged);
    EXPECT_EQ(parse("").failure, DocumentError::Cause::Damaged);
}
