// SPDX-License-Identifier: MIT
// InterfaceReader reads the XML of an interface file into a flat list of widgets and their properties, and
// leaves to InterfaceFile what they mean. Thread: any.  Owner: whoever reads; used once.
#pragma once

#include "platform/views/InterfaceError.h"

#include <QVariant>
#include <QXmlStreamReader>

#include <optional>
#include <vector>

struct InterfaceProperty {
    QString name;
    /// The element that holds the value: number and longLong give qlonglong, double double, bool bool, string
    /// and cstring QString, enum and set QString, rect QRect, iconset its theme name as QString.
    QString kind;
    QVariant value;
    qint64 line = 0;
};

struct InterfaceWidget {
    QString className;
    QString name;
    qint64 line = 0;
    std::optional<size_t> parent; ///< its place in the list; absent for the root
    std::vector<InterfaceProperty> properties = {};
};

class InterfaceReader {
public:
    InterfaceReader(const QByteArray &contents, QString file)
        : m_contents(contents)
        , m_xml(contents)
        , m_file(std::move(file))
    {
    }

    /// The root first, every widget after its parent, siblings in their order. False where the file is at
    /// fault: see error().
    [[nodiscard]] bool read();
    [[nodiscard]] const InterfaceError &error() const { return *m_error; }
    [[nodiscard]] std::vector<InterfaceWidget> takeWidgets() { return std::move(m_widgets); }

private:
    /// Looked at in advance, so that what reads the form meets no broken XML.
    bool isWellFormed();
    bool readFormElement();
    bool readWidgets();
    bool openWidget();
    bool readProperty();
    bool readValue(InterfaceProperty &property);
    bool readRect(InterfaceProperty &property);
    bool readText(InterfaceProperty &property);
    bool requireEmptyElement();

    /// Of the element at the reader's position; empty where it has none of that name.
    [[nodiscard]] QString attribute(QStringView name) const;
    bool fail(InterfaceError::Cause cause, const QString &detail = {});

    QByteArray m_contents;
    QXmlStreamReader m_xml;
    QString m_file;
    std::vector<InterfaceWidget> m_widgets;
    std::vector<size_t> m_open; // the widgets that enclose the reader's position
    std::optional<InterfaceError> m_error;
};
