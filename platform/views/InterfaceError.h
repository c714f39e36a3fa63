// SPDX-License-Identifier: MIT
// InterfaceError says what is wrong with an interface file, and where.
// Thread: any; a value.
#pragma once

#include <QString>

struct InterfaceError {
    enum class Cause {
        CannotBeRead, ///< there is no such file or resource, or reading failed
        TooLarge, ///< larger than InterfaceFile::largestSize
        NotWellFormed, ///< not XML; detail is the parser's message
        NotAnInterface, ///< XML, but no form of version 4 with one root widget
        UnsupportedElement, ///< detail is its name: layouts, actions, menus, connections …
        UnsupportedProperty, ///< a property that the view of this class does not know; detail is its name
        BadValue, ///< detail is the property
        TooDeep, ///< widgets nested deeper than InterfaceFile::deepestNesting
        TooManyViews, ///< more than InterfaceFile::mostViews
        UnknownClass, ///< no maker has the class; detail is its name
        DuplicateName, ///< two widgets with the object name of the detail
        MissingOutlet, ///< no widget has the object name of the detail; line is that of the root widget
        OutletOfOtherClass, ///< the widget with the object name of the detail makes a view of another class
    };

    Cause cause;
    QString file; ///< as it was named to InterfaceFile
    qint64 line = 0; ///< from 1; 0 where no line is to blame
    QString detail = {};

    bool operator==(const InterfaceError &) const = default;
};

/// On one line of English: ":/Panel.ui:12: no view can be made for the class QSlider".
QString messageText(const InterfaceError &error);
