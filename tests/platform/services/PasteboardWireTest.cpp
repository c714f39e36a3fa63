// SPDX-License-Identifier: MIT
#include "platform/services/PasteboardWire.h"
#include "tests/harness/QuillbayTest.h"

#include <QDBusUnixFileDescriptor>

#include <sys/mman.h>
#include <unistd.h>

namespace {

const QString type = QStringLiteral("text/plain");

QVariantMap mapOf(const QVariant &value)
{
    return {{type, value}};
}

} // namespace

TEST(PasteboardWire, CarriesEveryForm)
{
    const Pasteboard sent(
        {{QStringLiteral("text/html"), "<p>"}, {type, QByteArray("\0x", 2)}, {QStringLiteral("a"), ""},
            {QStringLiteral("b"), QByteArray(3 * PasteboardWire::maxInlineSize, 'b')}});
    const std::optional<Pasteboard> received = PasteboardWire::fromMessage(PasteboardWire::toMessage(sent));
    ASSERT_TRUE(received);
    EXPECT_EQ(received->forms(), sent.forms());
}

TEST(PasteboardWire, SendsLongFormsAsMemoryFiles)
{
    const auto typeOf = [](qsizetype length) {
        return PasteboardWire::toMessage(Pasteboard({{type, QByteArray(length, 'x')}}))
            .value(type)
            .metaType();
    };
    EXPECT_EQ(typeOf(PasteboardWire::maxInlineSize), QMetaType::fromType<QByteArray>());
    EXPECT_EQ(typeOf(PasteboardWire::maxInlineSize + 1), QMetaType::fromType<QDBusUnixFileDescriptor>());
}

TEST(PasteboardWire, RefusesMemoryThatItsSenderCanChange)
{
    const int descriptor = memfd_create("unsealed", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    ASSERT_GE(descriptor, 0);
    EXPECT_FALSE(
        PasteboardWire::fromMessage(mapOf(QVariant::fromValue(QDBusUnixFileDescriptor(descriptor)))));
    ::close(descriptor);
}

TEST(PasteboardWire, RefusesValuesOfAnotherType)
{
    EXPECT_FALSE(PasteboardWire::fromMessage(mapOf(QStringLiteral("text"))));
    EXPECT_FALSE(PasteboardWire::fromMessage(mapOf(5)));
}

TEST(PasteboardWire, RefusesMoreThanTheMaximumOfForms)
{
    QVariantMap map;
    for (qsizetype i = 0; i < PasteboardWire::maxForms; ++i)
        map.insert(QString::number(i), QByteArray());
    EXPECT_TRUE(PasteboardWire::fromMessage(map));
    map.insert(type, QByteArray());
    EXPECT_FALSE(PasteboardWire::fromMessage(map));
}
