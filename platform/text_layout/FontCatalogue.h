// SPDX-License-Identifier: MIT
// FontCatalogue lists the usable fonts of the machine, as fontconfig finds them: scalable SFNT fonts, with
// their properties and characters. Choosing and loading fonts is left to FontLibrary.
// Thread: any.  Owner: the font libraries that use it.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

// NOLINTBEGIN(bugprone-reserved-identifier,modernize-use-using): as in the library's own header
typedef struct _FcConfig FcConfig;
typedef struct _FcCharSet FcCharSet;
typedef struct _FcLangSet FcLangSet;
// NOLINTEND(bugprone-reserved-identifier,modernize-use-using)

/// One face of a font file.
struct CatalogueFont {
    QByteArray path;
    int index; ///< of the face in its file; the upper 16 bits number a variable font's named instances from 1
    QStringList families; ///< keys of familyKey()
    int weight; ///< 1 to 1000
    int width; ///< percentage of the normal width
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
    /// More are ignored, so that 16 bits can index a font.
    static constexpr size_t maxFonts = 60'000;

    /// Reads the configuration that the environment selects (FONTCONFIG_FILE). Uses only its folders and its
    /// rejected fonts: substitutions are the same on every machine.
    FontCatalogue();
    FontCatalogue(const FontCatalogue &) = delete;
    FontCatalogue &operator=(const FontCatalogue &) = delete;

    /// In an order that depends only on the fonts, not on their order in the folders.
    [[nodiscard]] const std::vector<CatalogueFont> &fonts() const { return m_fonts; }

private:
    struct ConfigDeleter {
        void operator()(FcConfig *config) const;
    };

    std::unique_ptr<FcConfig, ConfigDeleter> m_config;
    std::vector<CatalogueFont> m_fonts;
};
