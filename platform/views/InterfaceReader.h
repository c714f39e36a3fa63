// SPDX-License-Identifier: MIT
// InterfaceReader reads the XML of one interface file into its views; InterfaceFile says what it accepts.
// Thread: main.  Owner: InterfaceFile; used once.
#pragma once

#include "platform/views/InterfaceFile.h"

#include <QXmlStreamReader>

class InterfaceReader {
public:
    InterfaceReader(const QByteArray &contents, const QString &file);

    [[nodiscard]] Result<InterfaceFile, QString> read();

private:
    void readForm();
    /// Adds the view to its superview, none for the root. Null where the file is at fault.
    std::shared_ptr<View> readWidget(View *superview);
    void readContent(View &view);
    void readGeometry(View &view);
    void readProperty(View &view);
    /// Of the element at the reader's position; empty where it has none of that name.
    [[nodiscard]] QString attribute(const char *name) const;
    /// Makes the XML reader give no further element.
    void fail(const QString &error);

    QXmlStreamReader m_xml;
    InterfaceFile m_file;
};
