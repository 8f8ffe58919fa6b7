// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "emf/EmfReader.h"
#include "emf/EmfSink.h"
#include "emf/MetafileContext.h"

#include <QImage>

namespace tarsil::test {

/// The picture of a metafile on white, one pixel for each pixel of its device.
QImage playMetafile(const EmfContents& contents, QSize size);

/// The bounds of all pixels that are not white.
QRect inkOf(const QImage& image);

/// A metafile in memory, and its picture of 400 x 300 pixels. Asking for the picture ends the
/// drawing.
class MetafileSurface
{
public:
    MetafileSurface() : m_context(m_memory, QStringLiteral("a test")) { }

    MetafileContext& context() { return m_context; }
    QImage image();
    QRect ink() { return inkOf(image()); }

private:
    EmfMemory m_memory;
    MetafileContext m_context;
};

} // namespace tarsil::test
