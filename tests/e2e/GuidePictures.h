// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDir>
#include <QImage>

#include <gtest/gtest.h>

namespace tarsil::test {

/// Saves a picture for the user's guide if TARSIL_GUIDE names a folder.
inline void keepForTheGuide(const char* name, const QImage& picture)
{
    const QString folder = qEnvironmentVariable("TARSIL_GUIDE");
    if (!folder.isEmpty()) {
        EXPECT_TRUE(picture.save(QDir(folder).filePath(QString::fromLatin1(name))));
    }
}

} // namespace tarsil::test
