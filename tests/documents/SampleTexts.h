// SPDX-License-Identifier: MIT
// SampleTexts provides a few sentences in several languages, and their bytes in an encoding, for the tests
// of the readers.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QString>

namespace SampleTexts {

extern const QString english; ///< with typographic quotes, a dash and an ellipsis
extern const QString french;
extern const QString german;
extern const QString spanish;
extern const QString italian;
extern const QString portuguese;
extern const QString swedish;
extern const QString polish;
extern const QString czech;
extern const QString turkish;
extern const QString greek;
extern const QString russian;
extern const QString ukrainian;
extern const QString hebrew;
extern const QString arabic;
extern const QString hindi;
extern const QString japanese;
extern const QString simplifiedChinese;
extern const QString traditionalChinese;
extern const QString korean;

/// The bytes of a text without a byte order mark; fails the test if the encoding lacks a character of the
/// text. encoding: a name ICU knows.
QByteArray encodeText(const QString &text, const char *encoding);

} // namespace SampleTexts
