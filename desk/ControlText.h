// SPDX-License-Identifier: MIT
// ControlText has the texts of controls in other places than the controls.
// Thread: main.
#pragma once

#include <QString>

/// The text of a control without the mark of its mnemonic and a final colon.
QString plainControlText(QString text);
