// SPDX-License-Identifier: MIT
// Texts in many scripts, each with the font that it is set in, to compare two layouts by.
// Thread: any; values.
#pragma once

#include <QString>

#include <vector>

struct AgreementText {
    const char *name;
    QString family;
    QString fontFile;
    QString text; ///< one paragraph
};

const std::vector<AgreementText> &agreementTexts();
