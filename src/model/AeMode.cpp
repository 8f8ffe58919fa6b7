// SPDX-License-Identifier: Apache-2.0
#include "model/AeMode.h"

namespace tarsil {

void AeMode::copyFrom(const AeMode& source)
{
    if (this == &source)
        return;
    std::vector<Point> points(source.Points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i].Clone(source.Points[i]);
        points[i].Parent = this;
    }
    Id = source.Id;
    Tag = source.Tag;
    Points = std::move(points);
    flutterPoints.clear();
}

} // namespace tarsil
