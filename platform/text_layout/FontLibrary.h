// SPDX-License-Identifier: MIT
// FontLibrary chooses a font for every character of a text: the font that the text names, one with the same
// advances, or any font that has the character. The choice depends only on the request and on the machine's
// fonts.
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

/// The fonts for one request, in the order in which they are tried for a character. Owned by the library.
class FontChain {
public:
    FontChain(FontLibrary &library, FontRequest request, QByteArray language, std::vector<quint16> named);

    /// The first font, which is also used for characters that no font has.
    [[nodiscard]] FontFace *primary();

    /// The font for a grapheme cluster; never null. preferred: the font of the previous cluster, or null; it
    /// is used for clusters that the named fonts lack, if it has them.
    FontFace *faceFor(QStringView cluster, FontFace *preferred);

    /// Whether the first font has all printable ASCII characters.
    [[nodiscard]] bool isPrimaryForAscii();

private:
    static constexpr quint16 unknown = 0xFFFF;
    using Page = std::array<quint16, 256>;

    Page &pageOf(char32_t character);
    quint16 fontFor(char32_t character);
    quint16 findFontFor(char32_t character);
    bool isFontForAll(quint16 font, QStringView cluster);
    quint16 findFontForCluster(QStringView cluster);
    std::optional<quint16> coloredFontFor(QStringView emoji);
    [[nodiscard]] bool isNamed(const FontFace *face) const;
    /// The first font for which covers(font) is true: of the named fonts, then of the others.
    template <typename Covers>
    std::optional<quint16> firstFontThat(Covers covers);
    const std::vector<quint16> &fallbacks();

    FontLibrary &m_library;
    FontRequest m_request;
    QByteArray m_language;
    std::vector<quint16> m_named; // fonts of the requested families, by index in the catalogue; never empty
    std::vector<quint16> m_fallbacks; // all others, sorted on first use
    // The fonts found so far, 256 code points per page.
    std::array<std::unique_ptr<Page>, 256> m_basicPages;
    std::map<char32_t, std::unique_ptr<Page>> m_otherPages; // from U+10000 on
    std::optional<bool> m_isPrimaryForAscii;
};

class FontLibrary {
public:
    /// catalogue: not null; may be shared with libraries of other threads.
    explicit FontLibrary(
        std::shared_ptr<const FontCatalogue> catalogue = std::make_shared<const FontCatalogue>());
    FontLibrary(const FontLibrary &) = delete;
    FontLibrary &operator=(const FontLibrary &) = delete;
    ~FontLibrary();

    /// True if the machine has no usable font; then there are no chains.
    [[nodiscard]] bool isEmpty() const { return m_catalogue->fonts().empty(); }

    [[nodiscard]] const std::shared_ptr<const FontCatalogue> &catalogue() const { return m_catalogue; }

    /// language: BCP 47 or empty. Null only if isEmpty().
    FontChain *chainFor(const FontAttributes &attributes, const QString &language);

    /// Loads every font now. Afterwards, choosing one opens no file.
    void loadAll();

    /// The files of the fonts loaded so far, in the order of the catalogue.
    [[nodiscard]] QByteArrayList loadedFiles() const;

private:
    friend class FontChain;
    FontFace *load(quint16 font);
    /// The best font of each family, in the order of the request; if no family exists, the best of all fonts.
    [[nodiscard]] std::vector<quint16> namedFonts(const FontRequest &request) const;

    using ChainKey = std::tuple<std::vector<quint16>, int, FontSlant, QByteArray>;

    std::shared_ptr<const FontCatalogue> m_catalogue;
    QHash<QString, std::vector<quint16>> m_families;
    std::map<QByteArray, FontFile> m_files; // by path
    std::vector<std::unique_ptr<FontFace>> m_faces; // by index in the catalogue, null until loaded
    std::map<ChainKey, std::unique_ptr<FontChain>> m_chains;
};

/// Reduces a language to what affects glyphs and fonts, so that documents cannot cause any number of them:
/// two or three letters, and for Chinese the region whose forms it uses. Empty for anything else.
QByteArray canonicalLanguage(QStringView language);
