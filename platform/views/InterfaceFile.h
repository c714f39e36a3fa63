// SPDX-License-Identifier: MIT
// InterfaceFile makes the tree of views that a form of Qt Designer (.ui, version 4) describes, without any
// widget. What the file says and no view can have is an error, never passed over. Layouts are not
// supported: every widget has a geometry. Thread: main.  Owner: whoever loads the file; shares the ownership
// of its views.
#pragma once

#include "platform/base/Result.h"
#include "platform/views/InterfaceError.h"
#include "platform/views/InterfaceMakers.h"

#include <QVariant>

#include <optional>

class InterfaceFile {
public:
    static constexpr qint64 largestSize = 1 << 20; ///< bytes
    static constexpr int deepestNesting = 64; ///< widgets in widgets
    static constexpr int mostViews = 4096;
    static constexpr qint64 largestLength = 100'000; ///< points, either way, of a position or a size

    /// path: of a file, or of a resource as ":/StatsPanel.ui".
    ///
    /// Geometries become frames: Designer's pixels are points, and its distance from the top is one from the
    /// bottom unless the superview is flipped. The root view lies at the origin. Of the properties
    /// - geometry, visible, accessibleName, toolTip and tag are for every view,
    /// - text and alignment (horizontal) for labels,
    /// - text, icon (its theme name) and enabled for buttons,
    /// - frameShape of a QFrame, orientation of a Line: a separator in one direction; frameShadow means
    /// nothing. Any other one that is a number, a boolean or a string is handed out by its name.
    static Result<InterfaceFile, InterfaceError> load(
        const QString &path, const InterfaceMakers &makers = InterfaceMakers());
    /// For files that are a part of the program: the process ends where the file cannot be used.
    static InterfaceFile loadOwn(const QString &path);
    /// file: the name that errors show.
    static Result<InterfaceFile, InterfaceError> parse(
        const QByteArray &contents, const QString &file, const InterfaceMakers &makers = InterfaceMakers());

    [[nodiscard]] const std::shared_ptr<View> &rootView() const { return m_rootView; }

    /// The view with that object name.
    template <typename ViewClass>
    Result<std::shared_ptr<ViewClass>, InterfaceError> outlet(const QString &name) const
    {
        const auto place = m_places.constFind(name);
        if (place == m_places.cend())
            return InterfaceError{InterfaceError::Cause::MissingOutlet, m_file, m_rootLine, name};
        if (auto view = std::dynamic_pointer_cast<ViewClass>(place->view))
            return view;
        return InterfaceError{InterfaceError::Cause::OutletOfOtherClass, m_file, place->line, name};
    }

    /// For files that are a part of the program: the process ends where the file has no such view.
    template <typename ViewClass>
    std::shared_ptr<ViewClass> ownOutlet(const QString &name) const
    {
        const auto view = outlet<ViewClass>(name);
        if (!view)
            endProcess(view.error());
        return view.value();
    }

    /// A further property of the view with that object name; absent where the file gives it none of this name
    /// and kind.
    [[nodiscard]] std::optional<qint64> integerProperty(const QString &viewName, const QString &name) const;
    [[nodiscard]] std::optional<bool> booleanProperty(const QString &viewName, const QString &name) const;
    [[nodiscard]] std::optional<QString> stringProperty(const QString &viewName, const QString &name) const;

private:
    friend class InterfaceBuilder;

    struct Place {
        std::shared_ptr<View> view;
        qint64 line = 0;
        QHash<QString, QVariant> properties = {};
    };

    [[noreturn]] static void endProcess(const InterfaceError &error);
    template <typename Value>
    [[nodiscard]] std::optional<Value> property(const QString &viewName, const QString &name) const;

    QString m_file;
    qint64 m_rootLine = 0;
    std::shared_ptr<View> m_rootView;
    QHash<QString, Place> m_places; // by object name
};
