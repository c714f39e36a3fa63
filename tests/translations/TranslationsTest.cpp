// SPDX-License-Identifier: MIT
#include "translations/Translations.h"

#include "documents/DocumentError.h"
#include "tests/harness/QuillbayTest.h"
#include "translations/EnglishTexts.h"

#include <thread>

namespace {

std::string cause()
{
    return causeText(DocumentError(DocumentError::Cause::Encrypted, DocumentKind::WordDocument))
        .toStdString();
}

constexpr const char *german = "ist verschlüsselt; ohne Passwort speichern";
constexpr const char *english = "is encrypted; save it without a password";

} // namespace

// One test: a process has one language.
TEST(Translations, AreInTheLanguageOfTheUserButForLogLines)
{
    EXPECT_EQ(cause(), english);
    ::setenv("LANG", "de_DE.UTF-8", 1);
    installTranslations();
    EXPECT_EQ(cause(), german);
    EXPECT_EQ(inEnglish(cause), english);
    {
        const EnglishTexts texts;
        EXPECT_EQ(inEnglish(cause), english);
        EXPECT_EQ(cause(), english);
        std::string ofOtherThread;
        std::thread([&ofOtherThread] { ofOtherThread = cause(); }).join();
        EXPECT_EQ(ofOtherThread, german);
    }
    EXPECT_EQ(cause(), german);
}
