// SPDX-License-Identifier: MIT
// FontLibrary chooses a font for every character of a text: the one that the text names, one with the same
// advances, or any that has the character. The choice depends on the fonts of the machine and on what is
// asked, on nothing else.
// Thread: one at a time.  Owner: LayoutEngine.
#pragma once

#include "platform/text_layout/FontCatalogue.h"
#include "platform/text_layout/FontFace.h"
#include "platform/text_layout/FontRequest.h"

#include <QByteArrayList>
#include <QHash>
#include <QStringView>

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <tuple>

class FontLibrary;

/// The fonts for one request, in the order in which they are tried for a character. Lives as long as its
/// library.
class FontChain {
public:
    FontChain(FontLibrary &library, FontRequest request, QByteArray language, std::vector<quint16> named);

    /// The font for characters that none has.
    [[nodiscard]] FontFace *primary();

    /// The font of a grapheme cluster. preferred: the font of the cluster before, or null; a cluster that the
    /// named fonts lack stays in it where it can. Never null.
    FontFace *faceFor(QStringView cluster, FontFace *preferred);

    /// Whether the first font has all printable characters of ASCII.
    [[nodiscard]] bool isPrimaryForAscii();

private:
    static constexpr quint16 unknown = 0xFFFF;
    using Page = std::array<quint16, 256>;

    quint16 fontFor(char32_t character);
    quint16 findFontFor(char32_t character);
    quint16 findFontForCluster(QStringView cluster);
    std::optional<quint16> coloredFontFor(QStringView emoji);
    /// The first font, of the named and then the others, for which covers(font) holds.
    template <typename Covers>
    std::optional<quint16> firstThat(Covers covers);
    const std::vector<quint16> &fallbacks();

    FontLibrary &m_library;
    FontRequest m_request;
    QByteArray m_language;
    std::vector<quint16> m_named; // fonts of the families asked for, by index in the catalogue; never empty
    std::vector<quint16> m_fallbacks; // all others, sorted at the first need
    std::map<char32_t, std::unique_ptr<Page>> m_pages; // what was found, 256 code points a page
    std::optional<bool> m_isPrimaryForAscii;
};

class FontLibrary {
public:
    FontLibrary();
    FontLibrary(const FontLibrary &) = delete;
    FontLibrary &operator=(const FontLibrary &) = delete;
    ~FontLibrary();

    /// True where the machine has no usable font; then there are no chains.
    [[nodiscard]] bool isEmpty() const { return m_catalogue.fonts().empty(); }

    /// language: BCP 47 or empty. Null only where isEmpty().
    FontChain *chainFor(const FontAttributes &attributes, const QString &language);

    /// The files of the fonts that were needed so far, in the order of the catalogue.
    [[nodiscard]] QByteArrayList loadedFiles() const;

private:
    friend class FontChain;
    FontFace *load(quint16 font);
    /// The best font of each family, in the order of the request; of all fonts where no family is there.
    [[nodiscard]] std::vector<quint16> namedFonts(const FontRequest &request) const;

    using ChainKey = std::tuple<std::vector<quint16>, int, FontSlant, QByteArray>;

    FontCatalogue m_catalogue;
    QHash<QString, std::vector<quint16>> m_families;
    std::vector<std::unique_ptr<FontFace>> m_faces; // by index in the catalogue, null until loaded
    std::map<ChainKey, std::unique_ptr<FontChain>> m_chains;
};

/// A language as it may choose glyphs and fonts, of which there are few, whatever documents write: two or
/// three letters, and for Chinese the script or region that decides between its forms.
QByteArray canonicalLanguage(QStringView language);
