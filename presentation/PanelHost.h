// SPDX-License-Identifier: MIT
// What the windows around a statistics panel share: the panel's place in their interface file, the width that
// fits it, and the window's set-up. Their own controls and size are left to them.
// Thread: main.
#pragma once

#include <QString>

#include <functional>

class BaseWordCounterViewController;
class InterfaceFile;
class QObject;
class Window;
class WordCounterViewController;

namespace PanelHost {

/// Replaces the view with that name by the panel's view, which takes its frame and its order among its
/// siblings. The place's property labelPositionPolicy, if it has one, becomes the panel's. Aborts the process
/// if the file has no such place: it is part of the program.
void fillPlace(const InterfaceFile &file, const QString &placeName, BaseWordCounterViewController &panel);

/// The width, in points, to which a container of the given width should change. Deliberately, the last
/// visible label that is at least as wide as the container decides, not the widest one: 10 points more than
/// that label. Without such a label the width stays.
double fittingWidth(const BaseWordCounterViewController &panel, double width);

/// Sets the model to the short form of its texts.
void useShortStyle(WordCounterViewController &panel);

/// Lets the user drag the window by its background and copy the statistics from it. Requests to close the
/// window (window manager, Escape, Ctrl+W) call closeRequested, as long as context lives, and do not close
/// it.
void setUpWindow(Window &window, WordCounterViewController &panel, const QObject &context,
    const std::function<void()> &closeRequested);

} // namespace PanelHost
