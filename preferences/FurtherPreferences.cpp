// SPDX-License-Identifier: MIT
#include "preferences/FurtherPreferences.h"

#include "preferences/QBYUserDefaultsController.h"

#include <algorithm>

namespace {

using Controller = QBYUserDefaultsController;

DefaultsValue storedOrDefault(Preference preference)
{
    const std::optional<DefaultsValue> stored =
        Controller::sharedUserDefaults().objectForKey(keyOf(preference));
    return stored ? *stored : unwrittenDefaultOf(preference).value_or(false);
}

void store(Preference preference, const DefaultsValue &value)
{
    Controller::sharedUserDefaults().setObject(value, keyOf(preference));
    if (isAnnounced(preference))
        Controller::postPreferencesChangedNotification();
}

} // namespace

bool FurtherPreferences::isShown(Preference preference)
{
    return boolValue(storedOrDefault(preference));
}

void FurtherPreferences::setShown(Preference preference, bool isShown)
{
    store(preference, isShown);
}

StandardPage FurtherPreferences::standardPage()
{
    const DefaultsValue value = storedOrDefault(Preference::StandardPageSize);
    const QString *const text = std::get_if<QString>(&value);
    return text ? StandardPage::fromText(*text).value_or(StandardPage()) : StandardPage();
}

void FurtherPreferences::setStandardPage(const StandardPage &page)
{
    store(Preference::StandardPageSize, page.text());
}

qint64 FurtherPreferences::speed(Preference preference)
{
    return std::clamp(integerValue(storedOrDefault(preference)), minSpeed, maxSpeed);
}

void FurtherPreferences::setSpeed(Preference preference, qint64 wordsPerMinute)
{
    store(preference, wordsPerMinute);
}

double FurtherPreferences::verticalMargin(Preference preference)
{
    return std::max(0.0, doubleValue(storedOrDefault(preference)));
}

void FurtherPreferences::setVerticalMargin(Preference preference, double inches)
{
    store(preference, inches);
}
