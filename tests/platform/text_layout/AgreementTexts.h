// SPDX-License-Identifier: MIT
// Texts in many scripts, each with its font, for comparing two layouts.
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

/// For GoogleTest: prints the name instead of the bytes.
inline void PrintTo(const AgreementText &sample, std::ostream *stream)
{
    *stream << sample.name;
}

const std::vector<AgreementText> &agreementTexts();
