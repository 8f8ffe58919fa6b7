// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/SvgContext.h"

#include <QBuffer>
#include <QImage>

#include <optional>

namespace tarsil::test {

/// The picture that an SVG of `SvgContext` shows on white. Throws std::runtime_error for any
/// element that `SvgContext` does not write, and for XML that is not well-formed.
QImage playSvg(const QByteArray& svg);

/// An SVG in memory, and its picture of 400 x 300 pixels. Asking for the picture ends the drawing
/// and starts an empty one.
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
