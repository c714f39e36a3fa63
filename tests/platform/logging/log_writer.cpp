// SPDX-License-Identifier: MIT
// Writes one message with a private and a public argument to a channel of its own.
#include "platform/logging/LogChannel.h"

int main()
{
    LogChannel channel(QStringLiteral("com.quillbay.test"), QStringLiteral("writer"));
    channel.error(u"Cannot read {} in {}", {QStringLiteral("secret.txt"), publicly(QStringLiteral("a\nb"))});
    channel.debug(u"never seen");
    return 0;
}
