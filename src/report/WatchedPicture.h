// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "vgfplot/DrawnPicture.h"

#include <QSize>
#include <QString>

namespace tarsil {

class DeviceContext;
class StepCounter;

/// A picture that looks for a stop while it is drawn. It is the same as the given one unless it is
/// stopped; the rest is left out then.
class WatchedPicture : public DrawnPicture
{
public:
    /// Both must outlive this object.
    WatchedPicture(const DrawnPicture& picture, StepCounter& steps)
        : m_picture(picture), m_steps(steps)
    { }

    QString title() const override { return m_picture.title(); }
    QSize size() const override { return m_picture.size(); }
    void Draw(DeviceContext& context) const override;

private:
    const DrawnPicture& m_picture;
    StepCounter& m_steps;
};

} // namespace tarsil
