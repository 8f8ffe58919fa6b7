// SPDX-License-Identifier: Apache-2.0
#include "report/PageFlow.h"

namespace tarsil {

void PageFlow::beginPage(bool isLandscape)
{
    m_isLandscape = isLandscape;
    m_area = paper::contentArea(isLandscape);
    m_y = m_area.top();
    m_pages.push_back({paper::sizeOf(isLandscape), {}, {}, {}});
}

void PageFlow::require(double height)
{
    if (height > heightLeft() && !isAtTop())
        continueOnNewPage();
}

void PageFlow::addText(double x, double y, const QString& text, const ReportFont& font,
                       const QString& color)
{
    if (!text.isEmpty())
        page().texts.push_back({{m_area.left() + x, y + ascentOf(font)}, text, font, color});
}

} // namespace tarsil
