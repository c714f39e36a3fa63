// SPDX-License-Identifier: MIT
// InterfaceFile makes the tree of views that a form of Qt Designer (.ui, version 4) describes, without any
// widget. Interface files are compiled into the program: whatever a view cannot have is an error, and an
// error is a mistake in the program. Layouts are not supported: every widget has a geometry.
// Thread: main.  Owner: whoever loads the file; shares the ownership of its views.
#pragma once

#include "platform/system/Result.h"
#include "platform/views/View.h"

#include <QHash>

#include <optional>

class InterfaceFile {
public:
    /// path: of a resource, such as ":/interface_files/Panel.ui". Ends the process, with the error, where the
    /// file cannot be used.
    static InterfaceFile load(const QString &path);
    /// file: its name in the error, which reads "Panel.ui:12: there is no view for the class QSlider".
    ///
    /// Geometries become frames: Designer's pixels are points, and its distance from the top becomes one from
    /// the bottom. The root view lies at the origin. Every view takes visible, accessibleName, toolTip and
    /// tag; labels take text and alignment (horizontal), buttons text, icon (its theme name) and enabled,
    /// lines orientation. Further properties that are numbers are there for integerProperty().
    static Result<InterfaceFile, QString> parse(const QByteArray &contents, const QString &file);

    [[nodiscard]] const std::shared_ptr<View> &rootView() const { return m_rootView; }

    /// The view with that object name. Ends the process where there is none, or one of another class.
    template <typename ViewClass = View>
    [[nodiscard]] std::shared_ptr<ViewClass> outlet(const QString &name) const
    {
        auto view = std::dynamic_pointer_cast<ViewClass>(m_outlets.value(name).view);
        if (!view)
            endProcess(name);
        return view;
    }

    /// A further property of the view with that object name; absent where the file does not give it.
    [[nodiscard]] std::optional<qint64> integerProperty(const QString &viewName, const QString &name) const;

private:
    friend class InterfaceReader;

    struct Outlet {
        std::shared_ptr<View> view = {};
        QHash<QString, qint64> numbers = {}; // by the name of the property
    };

    [[noreturn]] void endProcess(const QString &outletName) const;

    QString m_file;
    std::shared_ptr<View> m_rootView;
    QHash<QString, Outlet> m_outlets; // by object name
};
