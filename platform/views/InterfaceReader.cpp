// SPDX-License-Identifier: MIT
#include "platform/views/InterfaceReader.h"

#include "platform/views/InterfaceFile.h"

#include <QRect>

#include <array>
#include <cmath>

using Cause = InterfaceError::Cause;

namespace {

// Elements of a form that say nothing about its views.
bool isPassedOver(QStringView element)
{
    constexpr std::array passedOver{u"author", u"class", u"comment", u"customwidgets", u"designerdata",
        u"exportmacro", u"layoutdefault", u"pixmapfunction", u"resources", u"tabstops"};
    for (const QStringView name : passedOver) {
        if (element == name)
            return true;
    }
    return false;
}

std::optional<QVariant> valueOf(QStringView kind, const QString &text)
{
    bool isNumber = true;
    if (kind == u"number" || kind == u"longLong") {
        const qlonglong number = text.toLongLong(&isNumber);
        return isNumber ? std::optional<QVariant>(number) : std::nullopt;
    }
    if (kind == u"double") {
        const double number = text.toDouble(&isNumber);
        return isNumber && std::isfinite(number) ? std::optional<QVariant>(number) : std::nullopt;
    }
    if (kind == u"bool") {
        const bool isTrue = text == u"true";
        return isTrue || text == u"false" ? std::optional<QVariant>(isTrue) : std::nullopt;
    }
    return text;
}

bool isTextKind(QStringView kind)
{
    constexpr std::array kinds{
        u"number", u"longLong", u"double", u"bool", u"string", u"cstring", u"enum", u"set"};
    for (const QStringView name : kinds) {
        if (kind == name)
            return true;
    }
    return false;
}

} // namespace

bool InterfaceReader::fail(Cause cause, const QString &detail)
{
    m_error = InterfaceError{cause, m_file, m_xml.lineNumber(), detail};
    return false;
}

QString InterfaceReader::attribute(QStringView name) const
{
    return m_xml.attributes().value(name.toString()).toString();
}

bool InterfaceReader::read()
{
    if (!isWellFormed())
        return false;
    if (!m_xml.readNextStartElement() || m_xml.name() != u"ui" || !attribute(u"version").startsWith(u"4."))
        return fail(Cause::NotAnInterface);
    while (m_xml.readNextStartElement()) {
        if (!readFormElement())
            return false;
    }
    return !m_widgets.empty() || fail(Cause::NotAnInterface);
}

bool InterfaceReader::isWellFormed()
{
    QXmlStreamReader xml(m_contents);
    while (!xml.atEnd())
        xml.readNext();
    if (xml.hasError())
        m_error = InterfaceError{Cause::NotWellFormed, m_file, xml.lineNumber(), xml.errorString()};
    return !xml.hasError();
}

bool InterfaceReader::readFormElement()
{
    if (m_xml.name() == u"widget")
        return m_widgets.empty() ? readWidgets() : fail(Cause::NotAnInterface);
    if (m_xml.name() == u"connections" || m_xml.name() == u"slots")
        return requireEmptyElement();
    if (!isPassedOver(m_xml.name()))
        return fail(Cause::UnsupportedElement, m_xml.name().toString());
    m_xml.skipCurrentElement();
    return true;
}

bool InterfaceReader::requireEmptyElement()
{
    return !m_xml.readNextStartElement() || fail(Cause::UnsupportedElement, m_xml.name().toString());
}

bool InterfaceReader::readWidgets()
{
    if (!openWidget())
        return false;
    while (!m_open.empty()) {
        if (!m_xml.readNextStartElement())
            m_open.pop_back();
        else if (m_xml.name() == u"widget" ? !openWidget() : !readProperty())
            return false;
    }
    return true;
}

bool InterfaceReader::openWidget()
{
    if (m_open.size() >= InterfaceFile::deepestNesting)
        return fail(Cause::TooDeep);
    if (m_widgets.size() >= InterfaceFile::mostViews)
        return fail(Cause::TooManyViews);
    m_widgets.push_back({attribute(u"class"), attribute(u"name"), m_xml.lineNumber(),
        m_open.empty() ? std::nullopt : std::optional(m_open.back())});
    m_open.push_back(m_widgets.size() - 1);
    return true;
}

bool InterfaceReader::readProperty()
{
    if (m_xml.name() != u"property")
        return fail(Cause::UnsupportedElement, m_xml.name().toString());
    InterfaceProperty property{attribute(u"name"), {}, {}, m_xml.lineNumber()};
    if (!m_xml.readNextStartElement())
        return fail(Cause::BadValue, property.name);
    if (!readValue(property) || !requireEmptyElement()) // the rest of the property
        return false;
    m_widgets[m_open.back()].properties.push_back(std::move(property));
    return true;
}

bool InterfaceReader::readValue(InterfaceProperty &property)
{
    property.kind = m_xml.name().toString();
    if (property.kind == u"rect")
        return readRect(property);
    if (isTextKind(property.kind))
        return readText(property);
    if (property.kind != u"iconset")
        return fail(Cause::UnsupportedProperty, property.name);
    property.value = attribute(u"theme");
    m_xml.skipCurrentElement(); // files to show where there is no theme
    return true;
}

bool InterfaceReader::readText(InterfaceProperty &property)
{
    const std::optional<QVariant> value = valueOf(property.kind, m_xml.readElementText());
    if (!value || m_xml.hasError()) // an element where only text may be
        return fail(Cause::BadValue, property.name);
    property.value = *value;
    return true;
}

bool InterfaceReader::readRect(InterfaceProperty &property)
{
    constexpr std::array names{u"x", u"y", u"width", u"height"};
    std::array<std::optional<int>, names.size()> lengths;
    while (m_xml.readNextStartElement()) {
        size_t index = 0;
        while (index < names.size() && m_xml.name() != QStringView(names[index]))
            ++index;
        bool isNumber = false;
        const int length = m_xml.readElementText().toInt(&isNumber);
        if (index == names.size() || !isNumber || m_xml.hasError()
            || std::abs(qint64(length)) > InterfaceFile::largestLength)
            return fail(Cause::BadValue, property.name);
        lengths[index] = length;
    }
    for (const std::optional<int> &length : lengths) {
        if (!length)
            return fail(Cause::BadValue, property.name);
    }
    if (*lengths[2] < 0 || *lengths[3] < 0)
        return fail(Cause::BadValue, property.name);
    property.value = QRect(*lengths[0], *lengths[1], *lengths[2], *lengths[3]);
    return true;
}
