// SPDX-License-Identifier: MIT
// FontCatalogue lists the usable fonts of the machine, as fontconfig finds them: SFNT fonts that scale. It
// says what they cover and what they are; FontLibrary chooses and loads.
// Thread: one at a time.  Owner: FontLibrary.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

// NOLINTBEGIN(bugprone-reserved-identifier,modernize-use-using): as the library's own header has them
typedef struct _FcConfig FcConfig;
typedef struct _FcCharSet FcCharSet;
typedef struct _FcLangSet FcLangSet;
// NOLINTEND(bugprone-reserved-identifier,modernize-use-using)

/// One face of a font file.
struct CatalogueFont {
    QByteArray path;
    int index; ///< of the face in its file; in the upper 16 bits the named instance of a variable font, from
               ///< 1
    QStringList families; ///< keys of familyKey()
    int weight; ///< 1 to 1000
    int width; ///< per cent of normal
    FontSlant slant;
    bool isColored;
    const FcCharSet *characters; ///< owned by the catalogue
    const FcLangSet *languages;

    [[nodiscard]] bool covers(char32_t character) const;
    /// language: as of RFC 3066, such as "ja" or "zh-tw".
    [[nodiscard]] bool supports(const QByteArray &language) const;
};

class FontCatalogue {
public:
    /// More are left out, so that 16 bits always name a font.
    static constexpr size_t mostFonts = 60'000;

    /// Reads the configuration that the environment names (FONTCONFIG_FILE), into an object of its own. Only
    /// its folders and its rejected fonts matter: which font stands in for which is the same everywhere.
    FontCatalogue();
    FontCatalogue(const FontCatalogue &) = delete;
    FontCatalogue &operator=(const FontCatalogue &) = delete;

    /// In an order that depends on the fonts alone, not on where in the folders they lie first.
    [[nodiscard]] const std::vector<CatalogueFont> &fonts() const { return m_fonts; }

private:
    struct ConfigDeleter {
        void operator()(FcConfig *config) const;
    };

    std::unique_ptr<FcConfig, ConfigDeleter> m_config;
    std::vector<CatalogueFont> m_fonts;
};
