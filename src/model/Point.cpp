// SPDX-License-Identifier: Apache-2.0
#include "model/Point.h"

#include "base/user/RunTimeError.h"

namespace tarsil {

void ParticipationFactors::append(float factor)
{
    if (m_count == capacity)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "Point",
                           "a point has at most five modal participation factors");
    m_values[m_count++] = factor;
}

void Point::Clone(const Point& source)
{
    kfreq = source.kfreq;
    re = source.re;
    im = source.im;
    speed = source.speed;
    G = source.G;
    f = source.f;
    mach = source.mach;
    sigma = source.sigma;
    ParticipationFactors factors;
    for (const float factor : source.mpf)
        factors.append(factor);
    mpf = factors;
    Parent = source.Parent;
}

} // namespace tarsil
