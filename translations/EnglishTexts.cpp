// SPDX-License-Identifier: MIT
#include "translations/EnglishTexts.h"

namespace {

thread_local int scopes = 0;

} // namespace

EnglishTexts::EnglishTexts()
{
    ++scopes;
}

EnglishTexts::~EnglishTexts()
{
    --scopes;
}

bool EnglishTexts::areWanted()
{
    return scopes > 0;
}
