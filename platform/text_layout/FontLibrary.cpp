// SPDX-License-Identifier: MIT
#include "platform/text_layout/FontLibrary.h"

#include "platform/segmentation/GraphemeClusters.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

// How much a font differs from a request, the most important difference first.
std::tuple<int, int, int> styleDistance(const CatalogueFont &font, int weight, FontSlant slant)
{
    int slantDistance = 0;
    if (font.slant != slant) {
        const bool bothSlanted = font.slant != FontSlant::Upright && slant != FontSlant::Upright;
        slantDistance = bothSlanted ? 1 : 2;
    }
    constexpr int normalWidth = 100;
    return {std::abs(font.width - normalWidth), slantDistance, std::abs(font.weight - weight)};
}

// A cluster may have any number of marks; only this many characters are checked.
constexpr int maxCheckedCharacters = 8;

bool coversAll(const CatalogueFont &font, QStringView cluster)
{
    int checked = 0;
    for (qsizetype i = 0; i < cluster.size() && checked < maxCheckedCharacters; ++checked) {
        const char32_t character = codePointAt(cluster, i);
        if (!isDefaultIgnorable(character) && !font.covers(character))
            return false;
        i += character > 0xFFFF ? 2 : 1;
    }
    return true;
}

} // namespace

QByteArray canonicalLanguage(QStringView language)
{
    const auto isLetter = [](QChar character) {
        const int lower = character.unicode() | 0x20;
        return character.unicode() < 0x80 && lower >= 'a' && lower <= 'z';
    };
    qsizetype length = 0;
    while (length < language.size() && isLetter(language[length]))
        ++length;
    const bool isWhole = length == language.size() || language[length] == u'-' || language[length] == u'_';
    if (length < 2 || length > 3 || !isWhole)
        return {};
    QByteArray primary = language.first(length).toLatin1().toLower();
    if (primary != "zh")
        return primary;
    const auto has = [&](QStringView part) {
        return language.sliced(length).contains(part, Qt::CaseInsensitive);
    };
    if (has(u"-HK") || has(u"-MO") || has(u"_HK"))
        return "zh-hk";
    return has(u"Hant") || has(u"-TW") || has(u"_TW") ? "zh-tw" : "zh-cn";
}

FontChain::FontChain(
    FontLibrary &library, FontRequest request, QByteArray language, std::vector<quint16> named)
    : m_library(library)
    , m_request(std::move(request))
    , m_language(std::move(language))
    , m_named(std::move(named))
{
}

FontFace *FontChain::primary()
{
    return m_library.load(m_named.front());
}

bool FontChain::isPrimaryForAscii()
{
    if (!m_isPrimaryForAscii) {
        const CatalogueFont &font = m_library.m_catalogue->fonts()[m_named.front()];
        m_isPrimaryForAscii = true;
        for (char32_t character = U' '; character <= U'~'; ++character)
            *m_isPrimaryForAscii = *m_isPrimaryForAscii && font.covers(character);
    }
    return *m_isPrimaryForAscii;
}

// All other fonts of the machine: first those for the language, then the large family of matching sans fonts,
// then by style.
const std::vector<quint16> &FontChain::fallbacks()
{
    if (!m_fallbacks.empty())
        return m_fallbacks;
    const std::vector<CatalogueFont> &fonts = m_library.m_catalogue->fonts();
    m_fallbacks.resize(fonts.size());
    for (size_t i = 0; i < fonts.size(); ++i)
        m_fallbacks[i] = static_cast<quint16>(i);
    const auto key = [&](quint16 index) {
        const CatalogueFont &font = fonts[index];
        const bool isForLanguage = !m_language.isEmpty() && font.supports(m_language);
        const bool isOfLargeFamily = font.families.first().startsWith(QStringLiteral("notosans"));
        return std::make_tuple(font.isColored, !isForLanguage, !isOfLargeFamily,
            styleDistance(font, m_request.weight, m_request.slant), index);
    };
    using Key = decltype(key(0));
    std::vector<Key> keys;
    keys.reserve(m_fallbacks.size());
    for (const quint16 index : m_fallbacks)
        keys.push_back(key(index));
    std::sort(m_fallbacks.begin(), m_fallbacks.end(),
        [&](quint16 left, quint16 right) { return keys[left] < keys[right]; });
    return m_fallbacks;
}

template <typename Covers>
std::optional<quint16> FontChain::firstFontThat(Covers covers)
{
    const auto named = std::find_if(m_named.begin(), m_named.end(), covers);
    if (named != m_named.end())
        return *named;
    const std::vector<quint16> &others = fallbacks();
    const auto other = std::find_if(others.begin(), others.end(), covers);
    return other != others.end() ? std::optional(*other) : std::nullopt;
}

// A colour font for an emoji that the first font lacks.
std::optional<quint16> FontChain::coloredFontFor(QStringView emoji)
{
    const std::vector<CatalogueFont> &fonts = m_library.m_catalogue->fonts();
    if (coversAll(fonts[m_named.front()], emoji))
        return std::nullopt;
    const std::vector<quint16> &others = fallbacks();
    const auto found = std::find_if(others.begin(), others.end(),
        [&](quint16 font) { return fonts[font].isColored && coversAll(fonts[font], emoji); });
    return found != others.end() ? std::optional(*found) : std::nullopt;
}

quint16 FontChain::findFontFor(char32_t character)
{
    const QString text = QString::fromUcs4(&character, 1);
    if (isEmojiCluster(text)) {
        if (const std::optional<quint16> colored = coloredFontFor(text))
            return *colored;
    }
    const std::vector<CatalogueFont> &fonts = m_library.m_catalogue->fonts();
    return firstFontThat([&](quint16 font) {
        return fonts[font].covers(character);
    }).value_or(m_named.front());
}

FontChain::Page &FontChain::pageOf(char32_t character)
{
    const char32_t index = character >> 8;
    std::unique_ptr<Page> &page = index < m_basicPages.size() ? m_basicPages[index] : m_otherPages[index];
    if (!page) {
        page = std::make_unique<Page>();
        page->fill(unknown);
    }
    return *page;
}

quint16 FontChain::fontFor(char32_t character)
{
    quint16 &font = pageOf(character)[character & 0xFF];
    if (font == unknown)
        font = findFontFor(character);
    return font;
}

// Whether every character would get the font, alone. If the font lacks one, all others lack it, too.
bool FontChain::isFontForAll(quint16 font, QStringView cluster)
{
    for (qsizetype i = 0; i < cluster.size();) {
        const char32_t character = codePointAt(cluster, i);
        if (fontFor(character) != font)
            return false;
        i += character > 0xFFFF ? 2 : 1;
    }
    return true;
}

quint16 FontChain::findFontForCluster(QStringView cluster)
{
    const std::vector<CatalogueFont> &fonts = m_library.m_catalogue->fonts();
    const quint16 forFirst = fontFor(codePointAt(cluster, 0));
    if (isEmojiCluster(cluster)) {
        if (fonts[forFirst].isColored && coversAll(fonts[forFirst], cluster))
            return forFirst; // as for the first character, it is the first colour font
        if (const std::optional<quint16> colored = coloredFontFor(cluster))
            return *colored;
    }
    // The first font that has the first character is the one for the whole cluster if it has the rest, too.
    if (isFontForAll(forFirst, cluster) || coversAll(fonts[forFirst], cluster))
        return forFirst;
    return firstFontThat([&](quint16 font) { return coversAll(fonts[font], cluster); }).value_or(forFirst);
}

bool FontChain::isNamed(const FontFace *face) const
{
    return std::any_of(
        m_named.begin(), m_named.end(), [&](quint16 font) { return m_library.m_faces[font].get() == face; });
}

FontFace *FontChain::faceFor(QStringView cluster, FontFace *preferred)
{
    const char32_t first = codePointAt(cluster, 0);
    const bool isOneCharacter = cluster.size() == (first > 0xFFFF ? 2 : 1);
    const quint16 found = isOneCharacter ? fontFor(first) : findFontForCluster(cluster);
    FontFace *face = m_library.load(found);
    if (face == preferred || !preferred)
        return face;
    if (isNamed(face))
        return face;
    // If a named font had the character, it would have been found.
    if (isOneCharacter && isNamed(preferred) && !isDefaultIgnorable(first))
        return face;
    // A comma between two words in a fallback font should be in the same font.
    return !isEmojiCluster(cluster) && coversAll(preferred->source(), cluster) ? preferred : face;
}

FontLibrary::FontLibrary(std::shared_ptr<const FontCatalogue> catalogue)
    : m_catalogue(std::move(catalogue))
{
    const std::vector<CatalogueFont> &fonts = m_catalogue->fonts();
    m_faces.resize(fonts.size());
    for (size_t i = 0; i < fonts.size(); ++i) {
        for (const QString &family : fonts[i].families)
            m_families[family].push_back(static_cast<quint16>(i));
    }
}

FontLibrary::~FontLibrary() = default;

void FontLibrary::loadAll()
{
    for (size_t i = 0; i < m_faces.size(); ++i)
        load(static_cast<quint16>(i));
}

QByteArrayList FontLibrary::loadedFiles() const
{
    QByteArrayList files;
    for (const std::unique_ptr<FontFace> &face : m_faces) {
        if (face)
            files.append(face->source().path);
    }
    return files;
}

FontFace *FontLibrary::load(quint16 font)
{
    std::unique_ptr<FontFace> &face = m_faces[font];
    if (!face) {
        const CatalogueFont &source = m_catalogue->fonts()[font];
        FontFile &file = m_files[source.path];
        if (!file)
            file = mapFontFile(source.path);
        face = std::make_unique<FontFace>(source, file);
    }
    return face.get();
}

std::vector<quint16> FontLibrary::namedFonts(const FontRequest &request) const
{
    const std::vector<CatalogueFont> &fonts = m_catalogue->fonts();
    const auto isNearer = [&](quint16 left, quint16 right) {
        return styleDistance(fonts[left], request.weight, request.slant)
            < styleDistance(fonts[right], request.weight, request.slant);
    };
    std::vector<quint16> named;
    for (const QString &family : request.families) {
        const auto found = m_families.constFind(family);
        if (found == m_families.cend())
            continue;
        const quint16 best = *std::min_element(found->begin(), found->end(), isNearer);
        if (std::find(named.begin(), named.end(), best) == named.end())
            named.push_back(best);
    }
    if (!named.empty())
        return named;
    // Not even a default family exists: the best font that has English letters.
    std::vector<quint16> usable;
    for (size_t i = 0; i < fonts.size(); ++i) {
        if (fonts[i].covers(U'a') && fonts[i].covers(U' '))
            usable.push_back(static_cast<quint16>(i));
    }
    const auto best = std::min_element(usable.begin(), usable.end(), isNearer);
    return {best != usable.end() ? *best : quint16{0}};
}

FontChain *FontLibrary::chainFor(const FontAttributes &attributes, const QString &language)
{
    if (isEmpty())
        return nullptr;
    const FontRequest request = makeFontRequest(attributes);
    const QByteArray canonical = canonicalLanguage(language);
    std::vector<quint16> named = namedFonts(request);
    std::unique_ptr<FontChain> &chain = m_chains[{named, request.weight, request.slant, canonical}];
    if (!chain)
        chain = std::make_unique<FontChain>(*this, request, canonical, std::move(named));
    return chain.get();
}
