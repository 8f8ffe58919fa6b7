#pragma once

#include "emf/EmfReader.h"
#include "emf/EmfSink.h"
#include "emf/MetafileContext.h"

#include <QImage>

namespace tarsil::test {

/// The picture that a metafile shows on white, a pixel for each of its device's.
QImage playMetafile(const EmfContents& contents, QSize size);

/// Bounds of all pixels that are not white.
QRect inkOf(const QImage& image);

/// A metafile in memory, and what a player makes of it on 400 x 300 pixels. Looking at it ends the
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
