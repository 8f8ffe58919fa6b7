// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSize>
#include <QString>

namespace tarsil {

class DeviceContext;

/// A picture that can be drawn on any surface, and so be shown and written to files.
class DrawnPicture
{
public:
    DrawnPicture() = default;
    virtual ~DrawnPicture();
    DrawnPicture(const DrawnPicture&) = delete;
    DrawnPicture& operator=(const DrawnPicture&) = delete;

    /// The title of files that have one.
    virtual QString title() const = 0;

    /// Pixels at 96 per inch.
    virtual QSize size() const = 0;

    /// Draws the whole picture, ground included.
    virtual void Draw(DeviceContext& context) const = 0;
};

} // namespace tarsil
