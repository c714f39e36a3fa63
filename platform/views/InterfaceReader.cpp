// SPDX-License-Identifier: MIT
#include "platform/views/InterfaceReader.h"

#include "platform/views/Box.h"
#include "platform/views/Button.h"
#include "platform/views/Label.h"
#include "platform/views/ProgressIndicator.h"

namespace {

constexpr int maxNesting = 64; // widgets in widgets
constexpr int maxLength = 100'000; // points, either way, of a position or a size

std::shared_ptr<View> viewForClass(const QString &className)
{
    if (className == u"QWidget")
        return std::make_shared<View>();
    if (className == u"QLabel")
        return std::make_shared<Label>();
    if (className == u"QPushButton" || className == u"QToolButton")
        return std::make_shared<Button>();
    if (className == u"QProgressBar")
        return std::make_shared<ProgressIndicator>();
    if (className == u"Line")
        return std::make_shared<Box>(Box::Kind::Separator);
    return nullptr;
}

std::optional<bool> truth(const QString &value)
{
    const bool isTrue = value == u"true";
    return isTrue || value == u"false" ? std::optional(isTrue) : std::nullopt;
}

std::optional<LabelAlignment> alignment(const QString &flags)
{
    LabelAlignment alignment = LabelAlignment::Left;
    for (const QStringView flag : QStringView(flags).split(u'|')) {
        if (flag == u"Qt::AlignRight" || flag == u"Qt::AlignTrailing")
            alignment = LabelAlignment::Right;
        else if (flag == u"Qt::AlignHCenter" || flag == u"Qt::AlignCenter")
            alignment = LabelAlignment::Center;
        else if (flag != u"Qt::AlignLeft" && flag != u"Qt::AlignLeading" && flag != u"Qt::AlignVCenter")
            return std::nullopt;
    }
    return alignment;
}

/// The following answer whether the view has such a property and the property can have the value.
bool setProperty(Label &label, const QString &name, const QString &value)
{
    const std::optional<LabelAlignment> labelAlignment = alignment(value);
    if (name == u"text")
        label.setStringValue(value);
    else if (name == u"alignment" && labelAlignment)
        label.setAlignment(*labelAlignment);
    else
        return false;
    return true;
}

bool setProperty(Button &button, const QString &name, const QString &value)
{
    if (name == u"text")
        button.setTitle(value);
    else if (name == u"icon" && !value.isEmpty())
        button.setIconName(value);
    else if (name == u"enabled" && truth(value))
        button.setEnabled(*truth(value));
    else
        return false;
    return true;
}

bool setPropertyOfClass(View &view, const QString &name, const QString &value)
{
    if (auto *const label = dynamic_cast<Label *>(&view))
        return setProperty(*label, name, value);
    if (auto *const button = dynamic_cast<Button *>(&view))
        return setProperty(*button, name, value);
    return dynamic_cast<Box *>(&view) && name == u"orientation";
}

bool setProperty(View &view, const QString &name, const QString &value)
{
    bool isNumber = false;
    const qint64 number = value.toLongLong(&isNumber);
    if (name == u"tag" && isNumber)
        view.setTag(number);
    else if (name == u"visible" && truth(value))
        view.setHidden(!*truth(value));
    else if (name == u"accessibleName")
        view.setAccessibleName(value);
    else if (name == u"toolTip")
        view.setToolTip(value);
    else
        return setPropertyOfClass(view, name, value);
    return true;
}

} // namespace

InterfaceReader::InterfaceReader(const QByteArray &contents, const QString &file)
    : m_xml(contents)
{
    m_file.m_file = file;
}

QString InterfaceReader::attribute(const char *name) const
{
    return m_xml.attributes().value(QLatin1String(name)).toString();
}

void InterfaceReader::fail(const QString &error)
{
    if (!m_xml.hasError()) // the first one counts
        m_xml.raiseError(error);
}

Result<InterfaceFile, QString> InterfaceReader::read()
{
    readForm();
    while (!m_xml.atEnd()) // what follows the form must be well-formed too
        m_xml.readNext();
    if (m_xml.hasError())
        return QStringLiteral("%1:%2: %3")
            .arg(m_file.m_file)
            .arg(m_xml.lineNumber())
            .arg(m_xml.errorString());
    return std::move(m_file);
}

void InterfaceReader::readForm()
{
    if (!m_xml.readNextStartElement() || m_xml.name() != u"ui" || !attribute("version").startsWith(u"4."))
        return fail(QStringLiteral("this is no form of version 4"));
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() != u"widget")
            m_xml.skipCurrentElement(); // says nothing about views
        else if (m_file.m_rootView)
            fail(QStringLiteral("there is a second root widget"));
        else
            m_file.m_rootView = readWidget(nullptr);
    }
    if (!m_file.m_rootView)
        fail(QStringLiteral("there is no widget"));
}

std::shared_ptr<View> InterfaceReader::readWidget(View *superview)
{
    const QString className = attribute("class");
    const QString name = attribute("name");
    std::shared_ptr<View> view = viewForClass(className);
    if (!view) {
        fail(QStringLiteral("there is no view for the class %1").arg(className));
        return nullptr;
    }
    if (m_file.m_outlets.contains(name))
        fail(QStringLiteral("a second widget is named %1").arg(name));
    view->setIdentifier(name);
    if (!name.isEmpty())
        m_file.m_outlets.insert(name, {view});
    if (superview)
        superview->addSubview(view);
    readContent(*view);
    return view;
}

void InterfaceReader::readContent(View &view)
{
    int nesting = 0;
    for (const View *above = view.superview(); above; above = above->superview())
        ++nesting;
    if (nesting >= maxNesting)
        return fail(QStringLiteral("widgets are nested deeper than %1").arg(maxNesting));
    bool hasGeometry = false;
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == u"property" && attribute("name") == u"geometry") {
            readGeometry(view);
            hasGeometry = true;
        } else if (m_xml.name() == u"property") {
            readProperty(view);
        } else if (m_xml.name() == u"widget" && hasGeometry) {
            readWidget(&view);
        } else {
            fail(QStringLiteral("the element %1 is not supported here").arg(m_xml.name()));
        }
    }
    if (!hasGeometry)
        fail(QStringLiteral("the widget %1 has no geometry").arg(view.identifier()));
}

void InterfaceReader::readGeometry(View &view)
{
    const QStringList names{
        QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("width"), QStringLiteral("height")};
    QHash<QString, int> lengths;
    m_xml.readNextStartElement(); // rect
    while (m_xml.readNextStartElement()) {
        const QString name = m_xml.name().toString();
        bool isNumber = false;
        const int length = m_xml.readElementText().toInt(&isNumber);
        const int minLength = name == u"x" || name == u"y" ? -maxLength : 0;
        if (isNumber && names.contains(name) && length >= minLength && length <= maxLength)
            lengths.insert(name, length);
    }
    if (lengths.size() != names.size() || m_xml.readNextStartElement())
        return fail(QStringLiteral("the geometry of %1 is no rectangle").arg(view.identifier()));
    const double height = lengths[names[3]];
    const View *const superview = view.superview();
    view.setFrameSize({double(lengths[names[2]]), height});
    if (superview)
        view.setFrameOrigin(
            {double(lengths[names[0]]), superview->frame().height() - lengths[names[1]] - height});
}

void InterfaceReader::readProperty(View &view)
{
    const QString name = attribute("name");
    if (!m_xml.readNextStartElement())
        return fail(QStringLiteral("the property %1 has no value").arg(name));
    const bool isNumber = m_xml.name() == u"number";
    const bool isIcon = m_xml.name() == u"iconset";
    const QString theme = attribute("theme");
    const QString text = m_xml.readElementText(
        isIcon ? QXmlStreamReader::SkipChildElements : QXmlStreamReader::ErrorOnUnexpectedElement);
    const QString value = isIcon ? theme : text;
    bool isInteger = false;
    const qint64 number = value.toLongLong(&isInteger);
    const bool isFurtherNumber = isNumber && isInteger && m_file.m_outlets.contains(view.identifier());
    const bool isSet = setProperty(view, name, value);
    if (!isSet && isFurtherNumber)
        m_file.m_outlets[view.identifier()].numbers.insert(name, number);
    else if (!isSet)
        fail(QStringLiteral("the property %1 cannot be \"%2\" here").arg(name, value));
    if (m_xml.readNextStartElement())
        fail(QStringLiteral("the property %1 has a second value").arg(name));
}
