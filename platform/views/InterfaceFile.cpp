// SPDX-License-Identifier: MIT
#include "platform/views/InterfaceFile.h"

#include "platform/views/Controls.h"

#include <QCoreApplication>
#include <QFile>
#include <QVariant>
#include <QXmlStreamReader>

namespace {

constexpr int maxNesting = 64; // widgets in widgets
constexpr int maxLength = 100'000; // points; of a size, and of a position in either direction

std::shared_ptr<View> makeView(const QString &className)
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

std::optional<bool> parseBool(const QString &value)
{
    const bool isTrue = value == u"true";
    return isTrue || value == u"false" ? std::optional(isTrue) : std::nullopt;
}

std::optional<LabelAlignment> parseAlignment(const QString &flags)
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

/// Returns whether the view has such a property and the property can have the value.
bool setProperty(View &view, const QString &name, const QString &value)
{
    auto *const label = dynamic_cast<Label *>(&view);
    auto *const button = dynamic_cast<Button *>(&view);
    bool isNumber = false;
    const qint64 number = value.toLongLong(&isNumber);
    if (name == u"tag" && isNumber)
        view.setTag(number);
    else if (name == u"visible" && parseBool(value))
        view.setHidden(!*parseBool(value));
    else if (name == u"accessibleName")
        view.setAccessibleName(value);
    else if (name == u"toolTip")
        view.setToolTip(value);
    else if (label && name == u"text")
        label->setStringValue(value);
    else if (label && name == u"alignment" && parseAlignment(value))
        label->setAlignment(*parseAlignment(value));
    else if (button && name == u"text")
        button->setTitle(value);
    else if (button && name == u"icon" && !value.isEmpty())
        button->setIconName(value);
    else if (button && name == u"enabled" && parseBool(value))
        button->setEnabled(*parseBool(value));
    else
        return dynamic_cast<Box *>(&view) && name == u"orientation"; // visible in the geometry already
    return true;
}

} // namespace

/// Reads the XML of one file. The first error ends the reading.
class InterfaceFile::Reader {
public:
    Reader(const QByteArray &contents, const QString &file)
        : m_xml(contents)
    {
        m_file.m_file = file;
    }

    Result<InterfaceFile, QString> read()
    {
        readForm();
        while (!m_xml.atEnd()) // the rest must be well-formed, too
            m_xml.readNext();
        if (m_xml.hasError())
            return QStringLiteral("%1:%2: %3")
                .arg(m_file.m_file)
                .arg(m_xml.lineNumber())
                .arg(m_xml.errorString());
        return std::move(m_file);
    }

private:
    [[nodiscard]] QString attribute(const char *name) const
    {
        return m_xml.attributes().value(QLatin1String(name)).toString();
    }

    void fail(const QString &error)
    {
        if (!m_xml.hasError()) // keeps the first one
            m_xml.raiseError(error);
    }

    void readForm()
    {
        if (!m_xml.readNextStartElement() || m_xml.name() != u"ui" || !attribute("version").startsWith(u"4."))
            return fail(QStringLiteral("not a form of version 4"));
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == u"class")
                m_context = m_xml.readElementText().toUtf8();
            else if (m_xml.name() != u"widget")
                m_xml.skipCurrentElement(); // does not describe views
            else if (m_file.m_rootView)
                fail(QStringLiteral("more than one root widget"));
            else
                m_file.m_rootView = readWidget(nullptr, 0);
        }
        if (!m_file.m_rootView)
            fail(QStringLiteral("no root widget"));
    }

    std::shared_ptr<View> readWidget(View *superview, int nesting)
    {
        const QString className = attribute("class");
        const QString name = attribute("name");
        std::shared_ptr<View> view = makeView(className);
        if (!view)
            fail(QStringLiteral("unsupported widget class %1").arg(className));
        else if (nesting >= maxNesting)
            fail(QStringLiteral("more than %1 nested widgets").arg(maxNesting));
        else if (m_file.m_outlets.contains(name))
            fail(QStringLiteral("duplicate widget name %1").arg(name));
        if (m_xml.hasError())
            return nullptr;
        view->setIdentifier(name);
        if (!name.isEmpty())
            m_file.m_outlets.insert(name, view);
        if (superview)
            superview->addSubview(view);
        readContent(*view, nesting);
        return view;
    }

    void readContent(View &view, int nesting)
    {
        bool hasGeometry = false;
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() == u"property" && attribute("name") == u"geometry") {
                readGeometry(view);
                hasGeometry = true;
            } else if (m_xml.name() == u"property") {
                readProperty(view);
            } else if (m_xml.name() == u"widget" && hasGeometry) {
                readWidget(&view, nesting + 1);
            } else {
                fail(QStringLiteral("unsupported element %1").arg(m_xml.name()));
            }
        }
        if (!hasGeometry)
            fail(QStringLiteral("widget %1 has no geometry").arg(view.identifier()));
    }

    int readLength(QStringView name, int minLength)
    {
        bool isNumber = m_xml.readNextStartElement() && m_xml.name() == name;
        const int length = isNumber ? m_xml.readElementText().toInt(&isNumber) : 0;
        if (!isNumber || length < minLength || length > maxLength)
            fail(QStringLiteral("geometry without a valid %1").arg(name));
        return length;
    }

    void readGeometry(View &view)
    {
        m_xml.readNextStartElement(); // rect, whose elements Designer always writes in this order
        const int x = readLength(u"x", -maxLength);
        const int y = readLength(u"y", -maxLength);
        const QSizeF size{
            static_cast<double>(readLength(u"width", 0)), static_cast<double>(readLength(u"height", 0))};
        if (m_xml.readNextStartElement() || m_xml.readNextStartElement())
            return fail(QStringLiteral("geometry of %1 is not a rectangle").arg(view.identifier()));
        view.setFrameSize(size);
        if (const View *const superview = view.superview())
            view.setFrameOrigin({static_cast<double>(x), superview->frame().height() - y - size.height()});
    }

    void readProperty(View &view)
    {
        const QString name = attribute("name");
        if (!m_xml.readNextStartElement())
            return fail(QStringLiteral("property %1 has no value").arg(name));
        const bool isIcon = m_xml.name() == u"iconset";
        const bool isNumber = m_xml.name() == u"number";
        const bool isTranslated = m_xml.name() == u"string" && attribute("notr") != u"true";
        const QString theme = attribute("theme");
        const QString text = m_xml.readElementText(
            isIcon ? QXmlStreamReader::SkipChildElements : QXmlStreamReader::ErrorOnUnexpectedElement);
        const QString shown = isTranslated ? translated(text) : text;
        const QString value = isIcon ? theme : shown;
        bool isInteger = false;
        const qint64 number = value.toLongLong(&isInteger);
        if (!setProperty(view, name, value)) {
            if (isNumber && isInteger)
                view.setProperty(name.toUtf8().constData(), number);
            else
                fail(QStringLiteral("property %1 cannot be \"%2\"").arg(name, value));
        }
        if (m_xml.readNextStartElement())
            fail(QStringLiteral("property %1 has a second value").arg(name));
    }

    // The class of the form is the context of its texts, as for forms that Qt compiles.
    [[nodiscard]] QString translated(const QString &text) const
    {
        return text.isEmpty() ? text
                              : QCoreApplication::translate(m_context.constData(), text.toUtf8().constData());
    }

    QXmlStreamReader m_xml;
    InterfaceFile m_file;
    QByteArray m_context;
};

InterfaceFile InterfaceFile::load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: cannot be opened: %s", qPrintable(path), qPrintable(file.errorString()));
    Result<InterfaceFile, QString> interface = parse(file.readAll(), path);
    if (!interface)
        qFatal("%s", qPrintable(interface.error()));
    return std::move(interface).value();
}

Result<InterfaceFile, QString> InterfaceFile::parse(const QByteArray &contents, const QString &file)
{
    return Reader(contents, file).read();
}

void InterfaceFile::failForOutlet(const QString &name) const
{
    qFatal("%s: no view of the expected class is named %s", qPrintable(m_file), qPrintable(name));
}

std::optional<qint64> InterfaceFile::integerProperty(const QString &viewName, const QString &name) const
{
    const std::shared_ptr<View> view = m_outlets.value(viewName);
    const QVariant number = view ? view->property(name.toUtf8().constData()) : QVariant();
    return number.isValid() ? std::optional(number.toLongLong()) : std::nullopt;
}
