// SPDX-License-Identifier: MIT
#include "preferences/StandardPage.h"

QString StandardPage::text() const
{
    return QString::number(size)
        + (unit == Unit::Words ? QStringLiteral(" words") : QStringLiteral(" characters"));
}

std::optional<StandardPage> StandardPage::fromText(QStringView text)
{
    text = text.trimmed();
    qsizetype digits = 0;
    while (digits < text.size() && text[digits] >= u'0' && text[digits] <= u'9')
        ++digits;
    bool isNumber = false;
    const qint64 size = text.first(digits).toLongLong(&isNumber);
    if (!isNumber || size < 1 || size > maxSize)
        return std::nullopt;
    const QStringView unit = text.sliced(digits).trimmed();
    if (unit.isEmpty() || unit == u"characters")
        return StandardPage{size, Unit::Characters};
    if (unit == u"words")
        return StandardPage{size, Unit::Words};
    return std::nullopt;
}
