// SPDX-License-Identifier: MIT
// Texts in many scripts, each with the font that it is set in, to compare two layouts by.
// Thread: any; values.
#pragma once

#include <QString>

#include <ostream>
#include <vector>

struct AgreementText {
    const char *name;
    QString family;
    QString fontFile;
    QString text; ///< one paragraph
};

/// For GoogleTest: by its name, not by its bytes.
inline void PrintTo(const AgreementText &sample, std::ostream *stream)
{
    *stream << sample.name;
}

const std::vector<AgreementText> &agreementTexts();
