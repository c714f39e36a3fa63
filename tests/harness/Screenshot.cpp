// SPDX-License-Identifier: MIT
#include "tests/harness/Screenshot.h"

#include "tests/harness/TestHome.h"

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

#include <gtest/gtest.h>

namespace {

QString screenshotFolder()
{
    const QString folder = qEnvironmentVariable("QUILLBAY_SCREENSHOTS");
    return folder.isEmpty() ? TestHome::instance().root() + QStringLiteral("/screenshots") : folder;
}

} // namespace

QImage takeScreenshot()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

QImage saveScreenshot(const QString &name)
{
    const QImage image = takeScreenshot();
    const QString folder = screenshotFolder();
    const QString path = folder + u'/' + name + QStringLiteral(".png");
    if (!QDir().mkpath(folder) || !image.save(path))
        ADD_FAILURE() << "cannot write " << path.toStdString();
    return image;
}
