// SPDX-License-Identifier: MIT
// PanelPlace puts a statistics panel into the interface file of its host.
// Thread: main.
#pragma once

#include <QString>

class BaseWordCounterViewController;
class InterfaceFile;

namespace PanelPlace {

/// The panel's view takes the place of the view with that name: its frame, and its order among the views
/// beside it. The place's property labelPositionPolicy, where it has one, says how the panel places its
/// labels. The process ends where the file has no such place: it is a part of the program.
void fill(const InterfaceFile &file, const QString &placeName, BaseWordCounterViewController &panel);

} // namespace PanelPlace
