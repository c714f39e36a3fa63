// SPDX-License-Identifier: MIT
// The activation token of the process, with which the window that its user has asked for may take the focus.
// Thread: main.
#pragma once

#include <QByteArray>

/// Takes it out of the environment: tokens are valid once, so child processes must not inherit it. That of
/// X11 if there are two, since Quillbay's windows use X11 where they can. Empty if there is none.
QByteArray takeActivationToken();
