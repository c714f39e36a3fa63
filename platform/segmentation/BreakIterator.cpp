// SPDX-License-Identifier: MIT
#include "platform/segmentation/BreakIterator.h"

#include <QtGlobal>

#include <unicode/brkiter.h>
#include <unicode/utext.h>

#include <algorithm>
#include <new>

namespace {

std::unique_ptr<icu::BreakIterator> makeRules(BreakKind kind)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale &root = icu::Locale::getRoot();
    std::unique_ptr<icu::BreakIterator> rules;
    switch (kind) {
    case BreakKind::GraphemeCluster:
        rules.reset(icu::BreakIterator::createCharacterInstance(root, status));
        break;
    case BreakKind::Word:
        rules.reset(icu::BreakIterator::createWordInstance(root, status));
        break;
    case BreakKind::Sentence:
        rules.reset(icu::BreakIterator::createSentenceInstance(root, status));
        break;
    case BreakKind::Line:
        rules.reset(icu::BreakIterator::createLineInstance(root, status));
        break;
    }
    if (status == U_MEMORY_ALLOCATION_ERROR)
        throw std::bad_alloc();
    if (U_FAILURE(status))
        qFatal("ICU has no segmentation rules: %s", u_errorName(status)); // a broken installation of ICU
    return rules;
}

} // namespace

struct BreakIterator::Implementation {
    explicit Implementation(BreakKind kind)
        : rules(makeRules(kind))
    {
    }
    Implementation(const Implementation &) = delete;
    Implementation &operator=(const Implementation &) = delete;
    ~Implementation() { utext_close(&text); }

    std::unique_ptr<icu::BreakIterator> rules;
    UText text = UTEXT_INITIALIZER;
    bool isEmpty = true;
};

BreakIterator::BreakIterator(BreakKind kind)
    : m_implementation(std::make_unique<Implementation>(kind))
{
}

BreakIterator::BreakIterator(BreakIterator &&) noexcept = default;
BreakIterator &BreakIterator::operator=(BreakIterator &&) noexcept = default;
BreakIterator::~BreakIterator() = default;

void BreakIterator::setText(QStringView text)
{
    m_implementation->isEmpty = text.isEmpty();
    if (text.isEmpty())
        return;
    UErrorCode status = U_ZERO_ERROR;
    utext_openUChars(&m_implementation->text, text.utf16(), std::min(text.size(), maxTextLength), &status);
    m_implementation->rules->setText(&m_implementation->text, status);
    if (U_FAILURE(status))
        throw std::bad_alloc(); // the only way to fail
}

qsizetype BreakIterator::next()
{
    if (m_implementation->isEmpty)
        return -1;
    const int32_t boundary = m_implementation->rules->next();
    return boundary == icu::BreakIterator::DONE ? -1 : boundary;
}
