// SPDX-License-Identifier: MIT
#include "platform/text_layout/FontRequest.h"

#include <algorithm>
#include <array>

namespace {

// Families with the same advances, which substitute each other in this order.
struct MetricGroup {
    std::array<const char16_t *, 6> names; // keys in documents
    std::array<const char16_t *, 5> families; // keys of installed families
};

constexpr std::array metricGroups{
    MetricGroup{{u"helvetica", u"helveticaneue", u"nimbussans", u"sansserif"},
        {u"nimbussans", u"liberationsans", u"arimo", u"texgyreheros", u"arial"}},
    MetricGroup{{u"arial", u"arialmt", u"liberationsans", u"arimo"},
        {u"liberationsans", u"arimo", u"nimbussans", u"texgyreheros", u"helvetica"}},
    MetricGroup{{u"helveticanarrow", u"arialnarrow"}, {u"nimbussansnarrow", u"liberationsansnarrow"}},
    MetricGroup{{u"times", u"timesroman", u"nimbusroman", u"serif"},
        {u"nimbusroman", u"liberationserif", u"tinos", u"texgyretermes", u"timesnewroman"}},
    MetricGroup{{u"timesnewroman", u"timesnewromanps", u"timesnewromanpsmt", u"liberationserif", u"tinos"},
        {u"liberationserif", u"tinos", u"nimbusroman", u"texgyretermes", u"times"}},
    MetricGroup{{u"courier", u"nimbusmonops", u"monospace"},
        {u"nimbusmonops", u"liberationmono", u"cousine", u"texgyrecursor", u"couriernew"}},
    MetricGroup{{u"couriernew", u"couriernewps", u"couriernewpsmt", u"liberationmono", u"cousine"},
        {u"liberationmono", u"cousine", u"nimbusmonops", u"texgyrecursor", u"courier"}},
    MetricGroup{{u"palatino", u"palatinolinotype", u"bookantiqua"}, {u"p052", u"texgyrepagella"}},
    MetricGroup{
        {u"newcenturyschlbk", u"centuryschoolbook", u"newcenturyschoolbook"}, {u"c059", u"texgyreschola"}},
    MetricGroup{{u"bookman", u"itcbookman", u"bookmanoldstyle"}, {u"urwbookman", u"texgyrebonum"}},
    MetricGroup{{u"avantgarde", u"itcavantgardegothic"}, {u"urwgothic", u"texgyreadventor"}},
    MetricGroup{{u"zapfchancery", u"itczapfchancery", u"applechancery"}, {u"z003", u"texgyrechorus"}},
    MetricGroup{{u"zapfdingbats", u"itczapfdingbats"}, {u"d050000l"}},
    MetricGroup{{u"symbol"}, {u"standardsymbolsps"}},
    MetricGroup{{u"menlo", u"monaco", u"lucidaconsole"}, {u"dejavusansmono"}},
    MetricGroup{{u"verdana", u"lucidagrande"}, {u"dejavusans"}},
    MetricGroup{{u"calibri"}, {u"carlito"}},
    MetricGroup{{u"cambria"}, {u"caladea"}},
    MetricGroup{{u"georgia"}, {u"gelasio"}},
};

constexpr qsizetype maxNameLength = 256;

void appendOnce(QStringList &families, const QString &family)
{
    if (!family.isEmpty() && !families.contains(family))
        families.append(family);
}

void appendGroupOf(QStringList &families, const QString &name)
{
    for (const MetricGroup &group : metricGroups) {
        const auto isName = [&](const char16_t *other) { return other && name == QStringView(other); };
        if (std::none_of(group.names.begin(), group.names.end(), isName))
            continue;
        for (const char16_t *family : group.families) {
            if (family)
                appendOnce(families, QString::fromUtf16(family));
        }
        return;
    }
}

QStringList familiesWithDefaultAdvances()
{
    QStringList list{QStringLiteral("helvetica")};
    appendGroupOf(list, list.first());
    return list;
}

} // namespace

QString familyKey(QStringView family)
{
    QString key;
    for (const QChar character : family.first(std::min(family.size(), maxNameLength))) {
        if (character.isLetterOrNumber())
            key.append(character.toLower());
    }
    return key;
}

const QStringList &defaultFamilies()
{
    static const QStringList families = [] {
        QStringList list = familiesWithDefaultAdvances();
        list << QStringLiteral("dejavusans") << QStringLiteral("notosans");
        return list;
    }();
    return families;
}

bool hasDefaultAdvances(const QString &key)
{
    return familiesWithDefaultAdvances().contains(key);
}

FontRequest makeFontRequest(const FontAttributes &attributes)
{
    FontRequest request;
    request.weight = std::clamp(attributes.weight, 1, 1000);
    request.slant = attributes.slant;
    appendOnce(request.families, familyKey(attributes.family));
    if (!request.families.isEmpty())
        appendGroupOf(request.families, request.families.first());
    // The style at the end of a PostScript name.
    const QStringView name = attributes.family;
    const qsizetype hyphen = name.lastIndexOf(u'-');
    if (hyphen > 0) {
        const QString style = familyKey(name.sliced(hyphen + 1));
        const QString family = familyKey(name.first(hyphen));
        appendOnce(request.families, family);
        appendGroupOf(request.families, family);
        if (style.contains(u"bold"))
            request.weight = std::max(request.weight, 700);
        if (style.contains(u"italic"))
            request.slant = FontSlant::Italic;
        else if (style.contains(u"oblique"))
            request.slant = FontSlant::Oblique;
    }
    for (const QString &family : defaultFamilies())
        appendOnce(request.families, family);
    return request;
}
