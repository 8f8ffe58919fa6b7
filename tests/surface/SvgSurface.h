#pragma once

#include "surface/SvgContext.h"

#include <QBuffer>
#include <QImage>

#include <optional>

namespace tarsil::test {

/// The picture that an SVG of `SvgContext` shows on white. The player knows the elements that such
/// a picture is made of, and raises std::runtime_error for any other and for XML that is not well
/// formed.
QImage playSvg(const QByteArray& svg);

/// An SVG in memory, and what the player makes of it on 400 x 300 pixels. Looking at it ends the
/// drawing; another one, empty, takes its place.
class SvgSurface
{
public:
    SvgSurface();

    SvgContext& context() { return *m_context; }
    QByteArray bytes();
    QImage image() { return playSvg(bytes()); }
    QRect ink();

private:
    void begin();

    QBuffer m_buffer;
    std::optional<SvgContext> m_context;
};

} // namespace tarsil::test
