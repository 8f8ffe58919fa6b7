#include "plot/Series.h"

namespace tarsil {

Series Series::Clone() const
{
    return *this;
}

void MarkerOptions::applyTo(Series& series) const
{
    series.MarkerSize = size;
    series.MarkerSpacing = spacing;
    series.MarkerStyle = style;
    series.IthMpf = ithMpf;
}

} // namespace tarsil
