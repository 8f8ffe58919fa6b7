// SPDX-License-Identifier: Apache-2.0
#include "app/LeftOutRows.h"

#include "base/text/ShortList.h"
#include "base/user/UserInterface.h"
#include "document/MdlData.h"
#include "vgfplot/EvmPlot.h"

#include <cstddef>

namespace tarsil {

namespace {

std::vector<std::string> linesOf(const EvmPlot& plot, bool withCaption)
{
    const std::string caption =
        withCaption ? " of " + plot.properties().Caption().toStdString() : std::string();
    std::vector<std::string> lines;
    for (const std::size_t row : plot.rows().withoutMode())
        lines.push_back(mdlData::missingModeText(plot.rows().at(row)) + " (row "
                        + std::to_string(row + 1) + caption + ")");
    return lines;
}

} // namespace

void showLeftOutRows(const std::vector<const EvmPlot*>& plots, const std::string& from,
                     UserInterface& user)
{
    std::vector<std::string> lines;
    for (const EvmPlot* const plot : plots) {
        const std::vector<std::string> more = linesOf(*plot, plots.size() > 1);
        lines.insert(lines.end(), more.begin(), more.end());
    }
    if (lines.empty())
        return;
    user.showMessage("Rows without a curve are left out of " + from + ":\n"
                         + shortList(lines, mostRowLines),
                     "Tarsil", MessageIcon::Exclamation);
}

} // namespace tarsil
