// SPDX-License-Identifier: MIT
#include "watching/OpenPanelExtension.h"

#include "watching/FileTypeNames.h"

OpenPanel QBYExtension::openPanelForTextFiles()
{
    return openPanelForTextFilesAllowMultipleSelection(false);
}

OpenPanel QBYExtension::openPanelForTextFilesAllowMultipleSelection(bool allowMultipleSelection)
{
    OpenPanel panel;
    for (const QStringView type :
        {FileTypeNames::folder, FileTypeNames::richText, FileTypeNames::text, FileTypeNames::wordDocument})
        panel.allowedFileTypes << type.toString();
    panel.packageSuffixes.append(FileTypeNames::richTextPackageSuffix.toString());
    panel.allowsMultipleSelection = allowMultipleSelection;
    return panel;
}
