// SPDX-License-Identifier: Apache-2.0
#include "stability/StabilityModel.h"

#include "analysis/StabilityTexts.h"
#include "base/numbers/NumberFormat.h"
#include "base/numbers/Numbers.h"
#include "model/EVM.h"
#include "stability/VerdictModel.h"

#include <array>

namespace tarsil {

namespace {

struct Heading
{
    const char* text;
    const char* toolTip;
};

constexpr std::array<Heading, stretchColumnCount> stretchHeadings = {{
    {"Modal Evolution", "File of the evolution"},
    {"Mode", "Number of the printed mode, or of that as which the tracked root starts"},
    {"Level", "Damping g above which the stretch lies"},
    {"Direction", "What the mode does as the speed rises"},
    {"Kind", "Flutter oscillates on both sides of the start, divergence on neither"},
    {"Start (KEAS)",
     "Where the stretch starts, and by how much a curve through the points differs"},
    {"f (Hz)", "Frequency at the start"},
    {"Conf.",
     "A: near points, on which curve and straight line agree; B: others; C: different roots"},
    {"Altitude (ft)",
     "Where the start's density, or speed and Mach number, occur; in brackets outside -2,000 to "
     "65,617 ft"},
    {"Mach", "Mach number at the start"},
    {"End (KEAS)", "Where the mode becomes stable again"},
    {"Peak g", "Largest damping of the stretch"},
    {"at (KEAS)", "Speed of the largest damping"},
    {"MPF", "Number and value of the largest participation factor at the start"},
    {"Remark", ""},
}};

std::string speedOf(const std::optional<Crossing>& crossing)
{
    if (!crossing)
        return {};
    if (!hasSpeed(*crossing))
        return speedText(crossing->fromSpeed) + " to " + speedText(crossing->toSpeed);
    return formatNumber(crossing->speed, "0.00");
}

std::string startText(const Stretch& stretch)
{
    if (!stretch.start)
        return "first speed";
    const std::string speed = speedOf(stretch.start);
    return hasSpeed(*stretch.start) ? speed + " +- " + doubtText(*stretch.start) : speed;
}

std::string altitudeText(const FlightCondition& condition)
{
    if (!condition.altitude)
        return {};
    const std::string text = formatNumber(*condition.altitude, "0");
    return isOutsideAtmosphere(*condition.altitude) ? "(" + text + ")" : text;
}

std::string factorText(const std::optional<DominantFactor>& factor)
{
    return factor ? std::to_string(factor->number) + ": " + formatNumber(factor->value, "0.00#")
                  : std::string();
}

/// The text of a column about the start, which has a speed.
std::string ofStart(const Crossing& start, StretchColumn column)
{
    switch (column) {
    case StretchColumn::Frequency:
        return formatNumber(start.frequency, "0.00");
    case StretchColumn::Altitude:
        return altitudeText(start.condition);
    case StretchColumn::Mach:
        return start.condition.mach ? formatNumber(*start.condition.mach, "0.00#") : "";
    case StretchColumn::Factor:
        return factorText(start.dominant);
    default:
        return {};
    }
}

std::string ofStretch(const StabilityLine& line, StretchColumn column)
{
    const Stretch& stretch = line.stretch;
    switch (column) {
    case StretchColumn::Mode:
        return std::to_string(line.mode);
    case StretchColumn::Level:
        return shortestText(line.level);
    case StretchColumn::Course:
        return directionText(stretch);
    case StretchColumn::Kind:
        return stretch.start ? nameOf(stretch.start->kind) : "";
    case StretchColumn::Start:
        return startText(stretch);
    case StretchColumn::Confidence:
        return stretch.start ? nameOf(stretch.start->confidence) : "";
    case StretchColumn::End:
        return speedOf(stretch.end);
    case StretchColumn::Peak:
        return formatNumber(stretch.peak, "0.0000");
    case StretchColumn::PeakSpeed:
        return speedText(stretch.peakSpeed);
    case StretchColumn::Remark:
        return remarkText(stretch);
    default:
        return stretch.start && hasSpeed(*stretch.start) ? ofStart(*stretch.start, column) : "";
    }
}

bool isText(StretchColumn column)
{
    return column == StretchColumn::Evolution || column == StretchColumn::Course
        || column == StretchColumn::Kind || column == StretchColumn::Remark;
}

CellStyle styleOf(const Stretch& stretch)
{
    if (!stretch.start)
        return CellStyle::Bad;
    return hasSpeed(*stretch.start) ? CellStyle::Plain : CellStyle::Warning;
}

} // namespace

void StabilityModel::setStretches(std::vector<PlotStretch> stretches)
{
    beginResetModel();
    m_stretches = std::move(stretches);
    endResetModel();
}

const PlotStretch* StabilityModel::stretch(int row) const
{
    const auto index = static_cast<std::size_t>(row);
    return row >= 0 && index < m_stretches.size() ? &m_stretches[index] : nullptr;
}

int StabilityModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_stretches.size());
}

int StabilityModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : stretchColumnCount;
}

QVariant StabilityModel::data(const QModelIndex& index, int role) const
{
    const PlotStretch* const found = stretch(index.row());
    if (found == nullptr)
        return {};
    const auto column = static_cast<StretchColumn>(index.column());
    if (role == Qt::DisplayRole && column == StretchColumn::Evolution)
        return QString::fromStdString(found->evolution->FileName);
    if (role == Qt::DisplayRole)
        return QString::fromStdString(ofStretch(found->line, column));
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter
                                   | (isText(column) ? Qt::AlignLeft : Qt::AlignRight));
    return colorOf(styleOf(found->line.stretch), role);
}

QVariant StabilityModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    const Heading& heading = stretchHeadings.at(static_cast<std::size_t>(section));
    if (role == Qt::DisplayRole)
        return QString::fromLatin1(heading.text);
    return role == Qt::ToolTipRole ? QVariant(QString::fromLatin1(heading.toolTip)) : QVariant();
}

} // namespace tarsil
